// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/RecordReader.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::tests {
namespace {

using imports::Separator;

// So many bytes after the others; one by one, every pause is tried.
class DrippingSource final : public text::ByteSource {
public:
    explicit DrippingSource(std::string_view text, std::size_t pieceSize = 1)
        : rest_(text),
          pieceSize_(pieceSize) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        std::size_t const count = rest_.copy(buffer.data(), pieceSize_);
        rest_.remove_prefix(count);
        return count;
    }

private:
    std::string_view rest_;
    std::size_t pieceSize_;
};

std::string AllOf(text::ByteSource& source, Separator separator) {
    imports::RecordReader reader(source, separator);
    std::string all;
    while (reader.Next()) {
        all += std::to_string(reader.Line()) + ":";
        for (imports::Field const& field : reader.Fields()) {
            all += (field.WasQuoted ? "'" : "[") + std::string(field.Text) + "]";
        }
        all += " ";
    }
    return all + (reader.Trouble().empty() ? "" : std::to_string(reader.Line()) + "!");
}

// The records as they come from a fast source, after a look whether a slow one gives the same.
std::string Records(std::string_view text, Separator separator = Separator::Comma) {
    text::TextSource source(text);
    std::string const all = AllOf(source, separator);
    DrippingSource slow(text);
    EXPECT_EQ(AllOf(slow, separator), all);
    return all;
}

TEST(RecordReader, SplitsAtEachSeparator) {
    EXPECT_EQ(Records("a, b ,c\n"), "1:[a][b][c] ");
    EXPECT_EQ(Records("a;b,c;", Separator::Semicolon), "1:[a][b,c][] ");
    EXPECT_EQ(Records("a\t b c\t\td\n", Separator::Tab), "1:[a][b c][][d] ");
    EXPECT_EQ(Records("a|b\n", Separator::Bar), "1:[a][b] ");
    EXPECT_EQ(Records("  a \t b\tc  \n", Separator::Blanks), "1:[a][b][c] ");
}

TEST(RecordReader, EndsLinesInAnyWay) {
    EXPECT_EQ(Records("a\nb\r\nc\rd"), "1:[a] 2:[b] 3:[c] 4:[d] ");
    EXPECT_EQ(Records("a\r"), "1:[a] ");
    EXPECT_EQ(Records(""), "");
    EXPECT_EQ(Records("\n\r\n \t\na\n\n"), "4:[a] ") << "empty lines are passed over and counted";
}

TEST(RecordReader, EndsAtCtrlZInPlaceOfALine) {
    EXPECT_EQ(Records("a\n\x1a"
                      "b\n"),
              "1:[a] ");
    EXPECT_EQ(Records("a\x1a\n"), "1:[a\x1a] ");
}

TEST(RecordReader, UnquotesAsTheStandardSays) {
    EXPECT_EQ(Records("\"a,b\", \"c \" ,\"\"\n"), "1:'a,b]'c ]'] ");
    EXPECT_EQ(Records("\"say \"\"no\"\"\"\n"), "1:'say \"no\"] ");
    EXPECT_EQ(Records("\"a\r\nb\nc\",d\ne"), "1:'a\r\nb\nc][d] 4:[e] ");
    EXPECT_EQ(Records("\"a b\" c", Separator::Blanks), "1:'a b][c] ");
    EXPECT_EQ(Records("\"a b\"", Separator::Blanks), "1:'a b] ");
}

TEST(RecordReader, TakesOtherQuotationMarksAsTheyAre) {
    EXPECT_EQ(Records("5\" disk,a\n"), "1:[5\" disk][a] ");
    EXPECT_EQ(Records("\"a\"b,c\n"), "1:[\"a\"b][c] ");
}

TEST(RecordReader, RefusesAQuotationMarkThatIsNotClosed) {
    EXPECT_EQ(Records("a\n\"b,c\nd"), "1:[a] 2!");
}

TEST(RecordReader, RefusesALineWithoutEnd) {
    std::string const text = "a\n" + std::string(70'000, 'x');
    DrippingSource slow(text, 997);
    EXPECT_EQ(AllOf(slow, Separator::Comma), "1:[a] 2!");
}

// Which the buffer holds as a whole; however many fields it has.
TEST(RecordReader, RefusesALongLineOfManyFields) {
    std::string text = "a,b\n";
    for (int field = 0; field < 40'000; ++field) {
        text += "a,";
    }
    for (auto const* end : {"", "\nb,c\n"}) {
        std::string const whole = text + end;
        text::TextSource source(whole);
        EXPECT_EQ(AllOf(source, Separator::Comma), "1:[a][b] 2!");
    }
}

TEST(RecordReader, ReadsLongTablesThroughOneBuffer) {
    std::string text;
    std::string expected;
    for (int line = 1; line <= 20'000; ++line) {
        text += "a,\"b\"\"\",c\r\n";
        expected += std::to_string(line) + ":[a]'b\"][c] ";
    }
    text::TextSource source(text);
    EXPECT_EQ(AllOf(source, Separator::Comma), expected);
}

// Not only where the bytes come in pieces that are smaller.
TEST(RecordReader, RefusesALongRecordHoweverItArrives) {
    std::size_t const most = imports::RecordReader::MostOfRecord;
    auto const recordOf = [](std::size_t size) { return std::string(size - 1, 'x') + "\n"; };
    std::string const whole = recordOf(most) + "b\n";
    text::TextSource fits(whole);
    EXPECT_TRUE(AllOf(fits, Separator::Comma).ends_with("x] 2:[b] "));
    std::string const longer = recordOf(most + 1) + "b\n";
    text::TextSource tooLong(longer);
    EXPECT_EQ(AllOf(tooLong, Separator::Comma), "1!");
    std::string const blanks = std::string(most, ' ') + "\nb\n";
    text::TextSource empty(blanks);
    EXPECT_EQ(AllOf(empty, Separator::Comma), "1!");
}

} // namespace
} // namespace quorvex::tests
