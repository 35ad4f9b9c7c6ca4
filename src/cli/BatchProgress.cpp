// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/BatchProgress.h"

#include "cli/StandardStreams.h"
#include "text/basFormats.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace quorvex::cli {

namespace {

std::string Files(std::uint64_t count) {
    return std::to_string(count) + (count == 1 ? " file" : " files");
}

// "3900", below ten "0.4".
std::string Rate(std::uint64_t count, double seconds) {
    constexpr double Quickest = 1e-6;
    constexpr double Ten = 10;
    double const rate = static_cast<double>(count) / std::max(seconds, Quickest);
    return text::FormatNumber(rate, rate < Ten ? "0.0" : "0") + " a second";
}

// "2 s", "3 min 20 s", "1 h 5 min".
std::string Duration(double seconds) {
    constexpr std::uint64_t Sixty = 60;
    auto const whole = static_cast<std::uint64_t>(std::ceil(seconds));
    auto const minutes = whole / Sixty;
    if (minutes == 0) {
        return std::to_string(whole) + " s";
    }
    auto const hours = minutes / Sixty;
    return hours == 0 ? std::to_string(minutes) + " min " + std::to_string(whole % Sixty) + " s"
                      : std::to_string(hours) + " h " + std::to_string(minutes % Sixty) + " min";
}

} // namespace

std::string ProgressText(BatchCounts const& counts, std::chrono::duration<double> taken, std::size_t width) {
    std::uint64_t const done = counts.Before + counts.Now;
    std::string const rate = ", " + Rate(counts.Now, taken.count());
    if (!counts.Whole) {
        return (Files(done) + rate).substr(0, width);
    }
    std::uint64_t const whole = std::max(*counts.Whole, done);
    double const share = whole == 0 ? 1 : static_cast<double>(done) / static_cast<double>(whole);
    std::string text = ", " + std::to_string(done) + " of " + Files(whole) + rate;
    if (counts.Now > 0) {
        double const each = taken.count() / static_cast<double>(counts.Now);
        text += ", " + Duration(each * static_cast<double>(whole - done)) + " left";
    }
    std::size_t const shortest = ProgressText(share, 0).size() + text.size();
    return (ProgressText(share, width - std::min(width, shortest)) + text).substr(0, width);
}

std::string Summary(BatchCounts const& counts, std::chrono::duration<double> taken, bool isWhole) {
    std::string summary = isWhole ? "" : "Interrupted: ";
    summary += Files(counts.Before + counts.Now);
    if (counts.Before > 0) {
        summary += ", " + std::to_string(counts.Before) + " of them before";
    }
    summary += "; " + std::to_string(counts.Refused) + " with a message; " +
               text::FormatNumber(taken.count(), "0.0") + " s";
    return counts.Now > 0 ? summary + ", " + Rate(counts.Now, taken.count()) : summary;
}

void BatchProgress::SetWhole(std::uint64_t files) {
    std::scoped_lock const lock(mutex_);
    counts_.Whole = files;
}

void BatchProgress::AddBefore(std::uint64_t files, std::uint64_t refused) {
    std::scoped_lock const lock(mutex_);
    counts_.Before += files;
    counts_.Refused += refused;
}

void BatchProgress::Add(bool hasRefused) {
    std::scoped_lock const lock(mutex_);
    ++counts_.Now;
    counts_.Refused += hasRefused ? 1U : 0U;
}

void BatchProgress::Complain(std::string const& name, std::vector<std::string> const& messages) {
    std::scoped_lock const lock(mutex_);
    line_.Erase();
    for (std::string const& message : messages) {
        cli::Complain(name, message);
    }
}

void BatchProgress::Show() {
    std::scoped_lock const lock(mutex_);
    line_.Show(ProgressText(counts_, Taken(), width_));
}

void BatchProgress::End(bool isWhole) {
    std::scoped_lock const lock(mutex_);
    line_.Erase();
    cli::Complain({}, Summary(counts_, Taken(), isWhole));
}

bool BatchProgress::HasRefused() const {
    std::scoped_lock const lock(mutex_);
    return counts_.Refused > 0;
}

} // namespace quorvex::cli
