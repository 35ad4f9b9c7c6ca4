// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/ProgressLine.h"
#include "platform/Console.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::cli {

// How far a batch is.
struct BatchCounts {
    std::uint64_t Before = 0;           // files done by an earlier run
    std::uint64_t Now = 0;              // and by this one
    std::uint64_t Refused = 0;          // of both: those with a message
    std::optional<std::uint64_t> Whole; // files, when that is known
};

// "[####....] 50 %, 5000 of 10000 files, 2500 a second, 2 s left", with as long a bar as so many characters
// have room for; without the whole "5000 files, 2500 a second".
[[nodiscard]] std::string ProgressText(BatchCounts const& counts, std::chrono::duration<double> taken,
                                       std::size_t width);

// What a batch has come to, as a sentence without full stop.
[[nodiscard]] std::string Summary(BatchCounts const& counts, std::chrono::duration<double> taken,
                                  bool isWhole);

// The counts of a batch that runs and what they tell. For any thread.
class BatchProgress {
public:
    explicit BatchProgress(platform::Console const& console)
        : width_(static_cast<std::size_t>(std::max(console.Width() - 1, 1))),
          line_(console) {}

    void SetWhole(std::uint64_t files);

    // Files of an earlier run, of which so many had a message.
    void AddBefore(std::uint64_t files, std::uint64_t refused);

    void Add(bool hasRefused);

    // Puts the messages about the file on standard error.
    void Complain(std::string const& name, std::vector<std::string> const& messages);

    void Show();

    // Takes the line off and tells the summary.
    void End(bool isWhole);

    [[nodiscard]] bool HasRefused() const;

private:
    [[nodiscard]] std::chrono::duration<double> Taken() const {
        return std::chrono::steady_clock::now() - start_;
    }

    std::size_t width_; // in characters; a line as wide as the terminal would begin another one
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    mutable std::mutex mutex_; // guards the next two
    BatchCounts counts_;
    ProgressLine line_;
};

} // namespace quorvex::cli
