// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basLines.h"

#include "FieldSources.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace quorvex::text {

namespace {

using Lines = std::vector<std::string>;

Lines AllLines(ByteSource& source) {
    LineReader reader(source);
    Lines lines;
    while (auto const line = reader.Next()) {
        lines.emplace_back(*line);
    }
    EXPECT_FALSE(reader.Next()); // the end stays the end
    return lines;
}

// A device like /dev/zero.
class EndlessSource final : public ByteSource {
public:
    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        std::ranges::fill(buffer, '\0');
        taken_ += buffer.size();
        return buffer.size();
    }

    [[nodiscard]] std::size_t Taken() const { return taken_; }

private:
    std::size_t taken_ = 0;
};

Lines LinesOf(std::string_view text) {
    TextSource source(text);
    return AllLines(source);
}

TEST(LineReader, EndsLinesWithCarriageReturnLineFeedOrBoth) {
    EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(LinesOf("a\n\rb"), (Lines{"a", "", "b"}));
    EXPECT_EQ(LinesOf("a\r\r\nb"), (Lines{"a", "", "b"}));
}

TEST(LineReader, FindsNoLineBehindTheLastLineEnd) {
    EXPECT_EQ(LinesOf("a\r\n"), Lines{"a"});
    EXPECT_EQ(LinesOf("a\n"), Lines{"a"});
    EXPECT_EQ(LinesOf("a\r"), Lines{"a"});
    EXPECT_EQ(LinesOf("a"), Lines{"a"});
    EXPECT_EQ(LinesOf(""), Lines{});
}

TEST(LineReader, KeepsEmptyLinesAndBlanks) {
    EXPECT_EQ(LinesOf("\r\n\r\n"), (Lines{"", ""}));
    EXPECT_EQ(LinesOf(" a \n\n\tb"), (Lines{" a ", "", "\tb"}));
}

TEST(LineReader, SkipsAByteOrderMarkAtTheStartOnly) {
    EXPECT_EQ(LinesOf("\xEF\xBB\xBFone\n\xEF\xBB\xBFtwo"), (Lines{"one", "\xEF\xBB\xBFtwo"}));
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"), Lines{});
    EXPECT_EQ(LinesOf("\xEF\xBB"), Lines{"\xEF\xBB"});
    EXPECT_EQ(LinesOf("\xEFx\n"), Lines{"\xEFx"});
}

TEST(LineReader, EndsAtACtrlZInPlaceOfALine) {
    EXPECT_EQ(LinesOf("a\r\n\x1a"), Lines{"a"});
    EXPECT_EQ(LinesOf("a\r\n\x1a\r\nb"), Lines{"a"});
    EXPECT_EQ(LinesOf("a\x1a\r\nb"), (Lines{"a\x1a", "b"}));
}

TEST(LineReader, PassesOtherBytesThrough) {
    std::string const text("a\0b\xFF\x01", 5);
    EXPECT_EQ(LinesOf(text + "\nx"), (Lines{text, "x"}));
}

TEST(LineReader, TakesTheSameLinesFromASlowDevice) {
    std::string const text = "\xEF\xBB\xBFone\r\ntwo\r\rthree\n\nfour\r\n\x1arest";
    for (std::size_t pieceSize = 1; pieceSize <= text.size(); ++pieceSize) {
        SCOPED_TRACE(pieceSize);
        PieceSource source(text, pieceSize);
        EXPECT_EQ(AllLines(source), (Lines{"one", "two", "", "three", "", "four"}));
    }
}

TEST(LineReader, TakesLinesThatCrossTheEdgeOfItsBuffer) {
    constexpr std::size_t BufferSize = 65'536;
    for (std::size_t length = BufferSize - 3; length <= BufferSize; ++length) {
        SCOPED_TRACE(length);
        std::string const line(length, 'x');
        std::string text = line;
        text.append("\r\n").append(line).append("\nend");
        EXPECT_EQ(LinesOf(text), (Lines{line, line, "end"}));
    }
}

TEST(LineReader, TakesLinesOfEveryEndInOneTextOfManyBuffers) {
    std::string text;
    Lines expected;
    for (std::size_t line = 0; line < 30'000; ++line) {
        expected.push_back(std::to_string(line) + std::string(line % 7, 'x'));
        bool const isStretchOfCr = line % 10'000 < 8000;
        text += expected.back() + (isStretchOfCr ? "\r" : line % 2 == 0 ? "\n" : "\r\n");
    }
    EXPECT_EQ(LinesOf(text), expected);
}

constexpr std::size_t MostOfLine = 65'536; // that is kept

TEST(LineReader, GivesTheStartOfALongerLineAndThenTheNextLine) {
    for (std::size_t const length : {MostOfLine + 1, 2 * MostOfLine, std::size_t{1'000'000}}) {
        for (std::string const end : {"\n", "\r", "\r\n"}) {
            SCOPED_TRACE(std::to_string(length) + " " + std::to_string(end.size()));
            std::string const line(length, 'x');
            std::string const start = line.substr(0, MostOfLine);
            EXPECT_EQ(LinesOf("a\n" + line + end + "b"), (Lines{"a", start, "b"}));
            EXPECT_EQ(LinesOf(line + end + end + line), (Lines{start, "", start}));
            EXPECT_EQ(LinesOf(line + end + "\x1a" + line), Lines{start});
        }
    }
}

TEST(LineReader, GivesTheSameStartFromASlowDevice) {
    std::string const text = std::string(MostOfLine + 10, 'x') + "\r\nb";
    for (std::size_t const pieceSize : {1U, 7U, 60'000U}) {
        SCOPED_TRACE(pieceSize);
        PieceSource source(text, pieceSize);
        EXPECT_EQ(AllLines(source), (Lines{text.substr(0, MostOfLine), "b"}));
    }
}

TEST(LineReader, TellsWhichLinesAreCut) {
    std::string const most(MostOfLine, 'x');
    std::string const text = most + "\n" + most + "y\n" + most + "\r\n" + most + most;
    TextSource source(text);
    LineReader reader(source);
    for (bool const isCut : {false, true, false, true}) {
        EXPECT_EQ(reader.Next(), most);
        EXPECT_EQ(reader.IsCut(), isCut);
    }
    EXPECT_FALSE(reader.Next());
    EXPECT_FALSE(reader.IsCut());
}

TEST(LineReader, ReadsNoMoreOfAnEndlessLineThanItGives) {
    EndlessSource source;
    LineReader reader(source);
    EXPECT_EQ(reader.Next(), std::string(MostOfLine, '\0'));
    EXPECT_TRUE(reader.IsCut());
    EXPECT_LE(source.Taken(), 2 * MostOfLine);
}

} // namespace

} // namespace quorvex::text
