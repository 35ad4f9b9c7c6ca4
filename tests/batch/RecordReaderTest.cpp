// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/RecordReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace quorvex::batch {
namespace {

using testing::ElementsAre;

// Gives one byte at a time.
class SlowSource final : public text::ByteSource {
public:
    explicit SlowSource(std::string_view text) : text_(text) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override { return text_.Read(buffer.first(1)); }

private:
    text::TextSource text_;
};

struct Found {
    std::vector<std::string> Lines;
    std::uint64_t Length = 0;
};

Found Read(text::ByteSource& source, bool quotesLineEnds) {
    RecordReader reader(source, quotesLineEnds);
    Found found;
    while (auto const line = reader.Next()) {
        found.Lines.emplace_back(*line);
    }
    EXPECT_EQ(reader.Next(), std::nullopt);
    found.Length = reader.Length();
    return found;
}

Found LinesOf(std::string_view text, bool quotesLineEnds) {
    SlowSource slow(text);
    text::TextSource quick(text);
    Found const found = Read(slow, quotesLineEnds);
    EXPECT_EQ(Read(quick, quotesLineEnds).Lines, found.Lines);
    return found;
}

TEST(RecordReader, GivesWholeLines) {
    auto const found = LinesOf("one\n\ntwo\nthr", false);
    EXPECT_THAT(found.Lines, ElementsAre("one\n", "\n", "two\n"));
    EXPECT_EQ(found.Length, 9U);
    EXPECT_TRUE(LinesOf("", true).Lines.empty());
    EXPECT_TRUE(LinesOf("no end", true).Lines.empty());
}

TEST(RecordReader, TakesLineEndsWithinMarksForTextWhereTheyAreQuoted) {
    auto const found = LinesOf("\"a\nb\",c\n\"\"\"\n\",d\n\"e\n", true);
    EXPECT_THAT(found.Lines, ElementsAre("\"a\nb\",c\n", "\"\"\"\n\",d\n"));
    EXPECT_THAT(LinesOf("\"a\nb\"\n", false).Lines, ElementsAre("\"a\n", "b\"\n"));
}

TEST(RecordReader, GivesLinesOfAnyLength) {
    std::string const line = std::string(300'000, 'x') + '\n';
    text::TextSource source(line);
    EXPECT_THAT(Read(source, false).Lines, ElementsAre(line));
}

} // namespace
} // namespace quorvex::batch
