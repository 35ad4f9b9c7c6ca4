// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ProgressLine.h"

#include <algorithm>
#include <cstdio>

namespace quorvex::cli {

namespace {

// When it does not get there, a line is missing and nothing else.
void PutOnErrors(std::string const& text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr));
    static_cast<void>(std::fflush(stderr));
}

} // namespace

void ProgressLine::Show(std::string const& text) {
    if (!isShown_ || text == text_) {
        return;
    }
    std::string line = '\r' + text;
    if (text.size() < text_.size()) {
        line.append(text_.size() - text.size(), ' ');
    }
    PutOnErrors(line);
    text_ = text;
}

void ProgressLine::Erase() {
    if (!text_.empty()) {
        PutOnErrors('\r' + std::string(text_.size(), ' ') + '\r');
        text_.clear();
    }
}

std::string ProgressText(double share, std::size_t room) {
    constexpr int Whole = 100;
    std::size_t const width = std::min(room, UsualBar);
    auto const percent = static_cast<int>(share * Whole);
    std::string bar(static_cast<std::size_t>(percent) * width / Whole, '#');
    bar.resize(width, '.');
    return '[' + bar + "] " + std::to_string(percent) + " %";
}

} // namespace quorvex::cli
