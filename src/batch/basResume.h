// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Going on behind what an earlier run of a batch has written.
#pragma once

#include "batch/QuoteFileNames.h"
#include "batch/Results.h"
#include "text/basFields.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quorvex::batch {

// What an earlier run has left.
struct EarlierRun {
    std::uint64_t Length = 0; // bytes of its whole lines that stay
    std::uint64_t FileCount = 0;
    std::uint64_t RefusedCount = 0;
    std::string LastLine; // to be written behind them: of the last file, in the place of its refusal
    std::string Refusal;  // why these are not lines of this batch; empty when they are
};

// The callback gives the next file of the batch.
using NextFile = std::function<std::optional<BatchFile>()>;

// The callback does a file once more and gives its line, nothing when it was ended early.
using DoAgain = std::function<std::string(BatchFile const&)>;

// Reads its lines and takes as many files. They must be those of the files, and the last one that tells no
// refusal must come out the same again: otherwise it was another batch, or the files have changed since. A
// refusal in the last line, whose cause may have ended the run, is looked at once more. Raises the faults of
// the source.
[[nodiscard]] EarlierRun ReadEarlierRun(text::ByteSource& results, ResultFormat const& format,
                                        NextFile const& next, DoAgain const& doAgain);

} // namespace quorvex::batch
