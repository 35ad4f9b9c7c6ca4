// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/basResume.h"

#include "batch/RecordReader.h"

#include <string>

namespace quorvex::batch {

namespace {

class EarlierLines {
public:
    EarlierLines(text::ByteSource& results, ResultFormat const& format, NextFile const& next)
        : reader_(results, format.QuotesLineEnds()),
          format_(format),
          next_(next) {}

    [[nodiscard]] EarlierRun Read(DoAgain const& doAgain) {
        EarlierRun run;
        run.Refusal = ReadLines(run);
        if (run.Refusal.empty() && file_ && doAgain(*file_) != line_) {
            run.Refusal = "The line of " + file_->Path +
                          " would be another one now: other options, or the file has changed";
        }
        run.Length = reader_.Length();
        return run;
    }

private:
    // Returns the refusal.
    [[nodiscard]] std::string ReadLines(EarlierRun& run) {
        std::string const head = format_.Head();
        if (!head.empty()) {
            auto const line = reader_.Next();
            if (!line) {
                return {};
            }
            if (*line != head) {
                return "Its first line is another one than these options give";
            }
        }
        while (auto const line = reader_.Next()) {
            file_ = next_();
            if (!file_) {
                return "It has more lines than there are files";
            }
            if (!line->starts_with(format_.StartOf(*file_))) {
                return "Line " + std::to_string(run.FileCount + (head.empty() ? 1 : 2)) + " is not that of " +
                       file_->Path;
            }
            line_ = *line;
            ++run.FileCount;
            run.RefusedCount += format_.TellsRefusal(line_, *file_) ? 1U : 0U;
        }
        return {};
    }

    RecordReader reader_;
    ResultFormat const& format_;
    NextFile const& next_;
    std::optional<BatchFile> file_; // of the last line
    std::string line_;
};

} // namespace

EarlierRun ReadEarlierRun(text::ByteSource& results, ResultFormat const& format, NextFile const& next,
                          DoAgain const& doAgain) {
    return EarlierLines(results, format, next).Read(doAgain);
}

} // namespace quorvex::batch
