// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a batch writes: lines, one for each file.
#pragma once

#include "batch/QuoteFileNames.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::batch {

// What became of a file.
struct FileResult {
    BatchFile File;
    std::string Line;                    // with its end
    bool HasRefused = false;             // anything: then somebody must look at it
    std::vector<std::string> Complaints; // what the line has no place for
};

// How lines are spelled.
class ResultFormat {
public:
    ResultFormat() = default;
    ResultFormat(ResultFormat const&) = delete;
    ResultFormat& operator=(ResultFormat const&) = delete;
    virtual ~ResultFormat() = default;

    // The line in front of all others with its end; empty when there is none.
    [[nodiscard]] virtual std::string Head() const = 0;

    // What the line of this file begins with, which tells it from those of other files.
    [[nodiscard]] virtual std::string StartOf(BatchFile const& file) const = 0;

    // Whether the line of this file tells of a refusal.
    [[nodiscard]] virtual bool TellsRefusal(std::string_view line, BatchFile const& file) const = 0;

    // Whether a line may end within quotation marks and go on.
    [[nodiscard]] virtual bool QuotesLineEnds() const = 0;
};

} // namespace quorvex::batch
