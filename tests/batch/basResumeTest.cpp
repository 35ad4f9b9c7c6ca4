// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/basResume.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvex::batch {
namespace {

// "a: text", where a refusal begins with "!".
class PlainLines final : public ResultFormat {
public:
    explicit PlainLines(std::string head) : head_(std::move(head)) {}

    [[nodiscard]] std::string Head() const override { return head_; }

    [[nodiscard]] std::string StartOf(BatchFile const& file) const override { return file.Path + ": "; }

    [[nodiscard]] bool TellsRefusal(std::string_view line, BatchFile const& file) const override {
        return line.substr(StartOf(file).size()).starts_with('!');
    }

    [[nodiscard]] bool QuotesLineEnds() const override { return false; }

private:
    std::string head_;
};

// Of the files "a", "b" and "c", whose lines end with "done".
EarlierRun Read(std::string const& results, std::string const& head = "head\n") {
    PlainLines const format(head);
    auto const next = [paths = PathsOf({"a", "b", "c"})]() -> std::optional<BatchFile> {
        auto const path = paths();
        return path ? std::optional(BatchFile{*path, {}}) : std::nullopt;
    };
    text::TextSource source(results);
    return ReadEarlierRun(source, format, next, [](BatchFile const& file) { return file.Path + ": done\n"; });
}

TEST(ReadEarlierRun, CountsWholeLines) {
    auto const run = Read("head\na: !bad\nb: done\nc: do");
    EXPECT_EQ(run.Refusal, "");
    EXPECT_EQ(run.FileCount, 2U);
    EXPECT_EQ(run.RefusedCount, 1U);
    EXPECT_EQ(run.Length, 21U);
}

TEST(ReadEarlierRun, FindsNothingWhereNothingWasFinished) {
    for (auto const* results : {"", "he", "head"}) {
        auto const run = Read(results);
        EXPECT_EQ(run.Refusal, "") << results;
        EXPECT_EQ(run.FileCount, 0U);
        EXPECT_EQ(run.Length, 0U);
    }
    EXPECT_EQ(Read("head\na: d").Length, 5U);
    EXPECT_EQ(Read("a: done\n", "").Length, 8U);
}

TEST(ReadEarlierRun, RefusesTheLinesOfAnotherBatch) {
    EXPECT_EQ(Read("other\na: done\n").Refusal, "Its first line is another one than these options give");
    EXPECT_EQ(Read("head\na: done\nx: done\n").Refusal, "Line 3 is not that of b");
    EXPECT_EQ(Read("x: done\n", "").Refusal, "Line 1 is not that of a");
    EXPECT_EQ(Read("head\na: done\nb: done\nc: done\nd: done\n").Refusal,
              "It has more lines than there are files");
    EXPECT_EQ(Read("head\na: done\nb: otherwise\n").Refusal,
              "The line of b would be another one now: other options, or the file has changed");
}

TEST(ReadEarlierRun, ProvesTheOptionsByTheLastLineWithoutRefusal) {
    EXPECT_EQ(Read("head\na: otherwise\nb: !bad\n").Refusal,
              "The line of a would be another one now: other options, or the file has changed");
    EXPECT_EQ(Read("head\na: done\nb: !bad\nc: do").Refusal, "");
}

TEST(ReadEarlierRun, LooksOnceMoreAtARefusalInTheLastLine) {
    auto run = Read("head\na: !bad\nb: !bad\n");
    EXPECT_EQ(run.Length, 13U);
    EXPECT_EQ(run.LastLine, "b: done\n");
    EXPECT_EQ(run.FileCount, 2U);
    EXPECT_EQ(run.RefusedCount, 1U);
    run = Read("head\na: !bad\nb: done\n");
    EXPECT_EQ(run.LastLine, "");
    EXPECT_EQ(run.Length, 21U);
}

TEST(ReadEarlierRun, TakesTheFilesThatAreDone) {
    PlainLines const format("");
    auto const paths = PathsOf({"a", "b", "c"});
    auto const next = [&]() -> std::optional<BatchFile> {
        auto const path = paths();
        return path ? std::optional(BatchFile{*path, {}}) : std::nullopt;
    };
    text::TextSource source("a: done\n");
    static_cast<void>(
        ReadEarlierRun(source, format, next, [](BatchFile const&) { return std::string("a: done\n"); }));
    EXPECT_EQ(next()->Path, "b");
}

} // namespace
} // namespace quorvex::batch
