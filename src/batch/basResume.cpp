// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/basResume.h"

#include "batch/RecordReader.h"

#include <string>
#include <utility>

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
        run.Length = reader_.Length();
        if (!run.Refusal.empty()) {
            return run;
        }
        if (good_.File && doAgain(*good_.File) != good_.Text) {
            run.Refusal = "The line of " + good_.File->Path +
                          " would be another one now: other options, or the file has changed";
        } else if (last_.File && format_.TellsRefusal(last_.Text, *last_.File)) {
            LookAgain(run, doAgain(*last_.File));
        }
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
            last_.File = next_();
            if (!last_.File) {
                return "It has more lines than there are files";
            }
            if (!line->starts_with(format_.StartOf(*last_.File))) {
                return "Line " + std::to_string(run.FileCount + (head.empty() ? 1 : 2)) + " is not that of " +
                       last_.File->Path;
            }
            last_.Text = *line;
            ++run.FileCount;
            if (format_.TellsRefusal(last_.Text, *last_.File)) {
                ++run.RefusedCount;
            } else {
                good_ = last_;
            }
        }
        return {};
    }

    // The last line, a refusal, gives way to the one that the file has now.
    void LookAgain(EarlierRun& run, std::string line) const {
        if (!line.empty() && line != last_.Text) {
            run.Length -= last_.Text.size();
            run.RefusedCount -= format_.TellsRefusal(line, *last_.File) ? 0U : 1U;
            run.LastLine = std::move(line);
        }
    }

    struct Line {
        std::optional<BatchFile> File;
        std::string Text;
    };

    RecordReader reader_;
    ResultFormat const& format_;
    NextFile const& next_;
    Line last_;
    Line good_; // the last one that tells no refusal
};

} // namespace

EarlierRun ReadEarlierRun(text::ByteSource& results, ResultFormat const& format, NextFile const& next,
                          DoAgain const& doAgain) {
    return EarlierLines(results, format, next).Read(doAgain);
}

} // namespace quorvex::batch
