// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ProgressBar.h"

#include <cstddef>
#include <cstdio>
#include <string>

namespace quorvex::cli {

namespace {

constexpr std::size_t BarWidth = 40;

// When it does not get there, a bar is missing and nothing else.
void PutOnErrors(std::string const& text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr));
    static_cast<void>(std::fflush(stderr));
}

} // namespace

ProgressBar::~ProgressBar() {
    if (percent_ >= 0) {
        PutOnErrors('\r' + std::string(BarWidth + 8, ' ') + '\r');
    }
}

void ProgressBar::Show(double share) {
    constexpr int Whole = 100;
    auto const percent = static_cast<int>(share * Whole);
    if (!isShown_ || percent == percent_) {
        return;
    }
    percent_ = percent;
    std::string bar(static_cast<std::size_t>(percent) * BarWidth / Whole, '#');
    bar.resize(BarWidth, '.');
    PutOnErrors("\r[" + bar + "] " + std::to_string(percent) + " %");
}

} // namespace quorvex::cli
