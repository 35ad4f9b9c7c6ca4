// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "FaultOf.h"
#include "FieldSources.h"
#include "support/Golden.h"
#include "text/RunTimeError.h"
#include "text/basFields.h"
#include "text/basNumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace quorvex::text {

namespace {

constexpr std::size_t MostText = 65'536;      // that is kept of a field
constexpr std::size_t LargestBuffer = 72'000; // that the reader may have

// A device that fails once its text is read.
class FailingSource final : public ByteSource {
public:
    explicit FailingSource(std::string_view text) : source_(text) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        std::size_t const count = source_.Read(buffer);
        if (count == 0) {
            throw RunTimeError(Fault::DiskFull);
        }
        return count;
    }

private:
    TextSource source_;
};

// Keeps what the reader asked for: the largest room it offered, and how often it asked.
class WatchedSource final : public ByteSource {
public:
    explicit WatchedSource(std::string_view text) : source_(text) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        LargestRoom = std::max(LargestRoom, buffer.size());
        std::size_t const count = source_.Read(buffer);
        EmptyReads += count == 0 ? 1 : 0;
        return count;
    }

    std::size_t LargestRoom = 0;
    int EmptyReads = 0;

private:
    TextSource source_;
};

TEST(TextSource, GivesItsTextInOrderAndThenNothing) {
    TextSource source("abcde");
    std::array<char, 3> buffer{};
    EXPECT_EQ(source.Read(buffer), 3U);
    EXPECT_EQ(std::string_view(buffer.data(), 3), "abc");
    EXPECT_EQ(source.Read(buffer), 2U);
    EXPECT_EQ(std::string_view(buffer.data(), 2), "de");
    EXPECT_EQ(source.Read(buffer), 0U);
    EXPECT_EQ(source.Read(buffer), 0U);
}

TEST(FieldReaderBuffer, GivesTheReferenceFieldsFromPiecesOfAnySize) {
    for (auto const& entry : tests::GoldenVector("fields")) {
        SCOPED_TRACE(entry.dump());
        auto const text = entry[0].get<std::string>();
        for (std::size_t pieceSize = 1; pieceSize <= text.size() + 1; ++pieceSize) {
            EXPECT_EQ(FieldsInPieces(text, pieceSize), entry[1].get<FieldTexts>()) << pieceSize;
        }
    }
}

TEST(FieldReaderBuffer, GivesTheSameFieldsOfAnyTextInPiecesOfAnySize) {
    std::mt19937_64 random(20020305); // NOLINT: the same texts in every run
    constexpr std::string_view Alphabet = "ab\",\r\n \t,\n\"\x1a\xEF\xBB\xBF";
    std::uniform_int_distribution<std::size_t> letter(0, Alphabet.size() - 1);
    std::uniform_int_distribution<std::size_t> length(0, 40);
    std::size_t fieldCount = 0;
    for (int round = 0; round < 5'000; ++round) {
        std::string text(length(random), ' ');
        for (char& c : text) {
            c = Alphabet[letter(random)];
        }
        auto const fields = FieldsOf(text);
        fieldCount += fields.size();
        for (std::size_t const pieceSize : {1U, 2U, 7U}) {
            ASSERT_EQ(FieldsInPieces(text, pieceSize), fields) << testing::PrintToString(text);
        }
    }
    EXPECT_GT(fieldCount, 10'000U);
}

std::string Spelled(SpelledNumber const& number) {
    return PlainNumber(number.Value) + '/' + std::to_string(number.Decimals);
}

// A plain decimal as its number and decimals, other fields as they stand.
std::string SpelledField(std::string_view field) {
    SpelledNumber const number = field.empty() ? SpelledNumber() : LeadingSpelledNumber(field);
    return number.Decimals < 0 ? std::string(field) : Spelled(number);
}

// The same of all fields, with the plain decimals taken the quick way where that is open.
FieldTexts SpelledInPieces(std::string_view text, std::size_t pieceSize, int& quickCount) {
    PieceSource source(text, pieceSize);
    FieldReader reader(source);
    FieldTexts fields;
    while (!reader.AtEnd()) {
        SpelledNumber const number = reader.TakePlainDecimal();
        quickCount += number.Decimals < 0 ? 0 : 1;
        fields.push_back(number.Decimals < 0 ? SpelledField(reader.Take()) : Spelled(number));
    }
    return fields;
}

TEST(FieldReaderBuffer, TakesPlainDecimalsAsItTakesFields) {
    std::mt19937_64 random(20020305); // NOLINT: the same texts in every run
    constexpr std::string_view Alphabet = "0123456789987654321012345678.,,,\r\n -x\"";
    std::uniform_int_distribution<std::size_t> letter(0, Alphabet.size() - 1);
    std::uniform_int_distribution<std::size_t> length(0, 150);
    int quickCount = 0;
    for (int round = 0; round < 300; ++round) {
        std::string text(length(random), ' ');
        for (char& c : text) {
            c = Alphabet[letter(random)];
        }
        FieldTexts expected = FieldsOf(text);
        std::ranges::transform(expected, expected.begin(), SpelledField);
        for (std::size_t const pieceSize : {23U, 150U}) {
            ASSERT_EQ(SpelledInPieces(text, pieceSize, quickCount), expected) << testing::PrintToString(text);
        }
    }
    EXPECT_GT(quickCount, 500);
}

TEST(FieldReaderBuffer, TakesDecimalsOfSevenDigitsOnEitherSideTheQuickWay) {
    TextSource source("1234567.7654321,.5,12345678,1.12345678,.,0007,-1,1 ,1e1,12:,7\r\n                ");
    FieldReader reader(source);
    EXPECT_EQ(Spelled(reader.TakePlainDecimal()), "1234567.7654321/7");
    EXPECT_EQ(Spelled(reader.TakePlainDecimal()), "0.5/1");
    for (char const* const notQuick : {"12345678", "1.12345678"}) {
        EXPECT_LT(reader.TakePlainDecimal().Decimals, 0);
        EXPECT_EQ(reader.Take(), notQuick);
    }
    EXPECT_EQ(Spelled(reader.TakePlainDecimal()), "0/0");
    EXPECT_EQ(Spelled(reader.TakePlainDecimal()), "7/0");
    for (char const* const notPlain : {"-1", "1", "1e1", "12:"}) {
        EXPECT_LT(reader.TakePlainDecimal().Decimals, 0);
        EXPECT_EQ(reader.Take(), notPlain);
    }
    EXPECT_EQ(Spelled(reader.TakePlainDecimal()), "7/0");
    EXPECT_LT(reader.TakePlainDecimal().Decimals, 0);
    EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReaderBuffer, SkipsAByteOrderMarkThatComesInPieces) {
    EXPECT_EQ(FieldsInPieces("\xEF\xBB\xBF\"a\",b", 1), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsInPieces("\xEF\xBB\xBF\"a\",b", 2), (FieldTexts{"a", "b"}));
}

TEST(FieldReaderBuffer, KeepsAFieldWholeThatStraddlesTheBuffersEnd) {
    WatchedSource probe("a");
    AllFields(probe);
    for (std::size_t inFront = probe.LargestRoom - 12; inFront <= probe.LargestRoom + 2; ++inFront) {
        SCOPED_TRACE(inFront);
        std::string const blanks(inFront, ' ');
        EXPECT_EQ(FieldsOf(blanks + "a,abcdef , ghi\r\njkl"), (FieldTexts{"a", "abcdef", "ghi", "jkl"}));
        EXPECT_EQ(FieldsOf(blanks + "a\r\n\"ab,cdef\" , \r\njkl"), (FieldTexts{"a", "ab,cdef", "", "jkl"}));
    }
}

TEST(FieldReaderBuffer, KeepsManyFieldsWholeOverManyBuffers) {
    std::string text;
    FieldTexts expected;
    for (int number = 0; number < 60'000; ++number) {
        expected.push_back(std::to_string(number));
        text += expected.back();
        text += number % 7 == 0 ? "\r\n" : " , ";
    }
    ASSERT_GT(text.size(), 4 * MostText);
    EXPECT_EQ(FieldsOf(text), expected);
    EXPECT_EQ(FieldsInPieces(text, 1'000), expected);
}

TEST(FieldReaderBuffer, GivesTheFirstPartOfAFieldLargerThanItKeeps) {
    for (std::size_t const length : {MostText - 1, MostText, MostText + 1, 5 * MostText}) {
        SCOPED_TRACE(length);
        std::string const large(length, 'x');
        std::string const kept = large.substr(0, MostText);
        EXPECT_EQ(FieldsOf("a," + large + ",b"), (FieldTexts{"a", kept, "b"}));
        EXPECT_EQ(FieldsOf("a,\"" + large + "\"junk,b"), (FieldTexts{"a", kept, "b"}));
        EXPECT_EQ(FieldsOf("a,\"" + large + "\r\nb"), (FieldTexts{"a", kept, "b"}));
        EXPECT_EQ(FieldsInPieces("a," + large + "\nb", 4'099), (FieldTexts{"a", kept, "b"}));
        EXPECT_EQ(FieldsOf(large), (FieldTexts{kept}));
    }
}

TEST(FieldReaderBuffer, DropsTheBlanksAtTheEndOfWhatItKeeps) {
    std::string const blanks(MostText, ' ');
    EXPECT_EQ(FieldsOf("a" + blanks + "b,c"), (FieldTexts{"a", "c"}));
    EXPECT_EQ(FieldsOf("\"a" + blanks + "b\",c"), (FieldTexts{"a" + blanks.substr(1), "c"}));
}

TEST(FieldReaderBuffer, TakesNoMoreMemoryForAnEndlessField) {
    std::string const endless(500 * MostText, '\0');
    for (std::string const& text : {"a," + endless + ",b", "a,\"" + endless + "\",b"}) {
        WatchedSource source(text);
        EXPECT_EQ(AllFields(source), (FieldTexts{"a", endless.substr(0, MostText), "b"}));
        EXPECT_LE(source.LargestRoom, LargestBuffer);
    }
    std::string const stretch = "a," + std::string(500 * MostText, ' ') + std::string(500 * MostText, '\n');
    std::string const text = stretch + "b";
    WatchedSource blanks(text);
    EXPECT_EQ(AllFields(blanks), (FieldTexts{"a", "", "b"}));
    EXPECT_LE(blanks.LargestRoom, LargestBuffer);
}

TEST(FieldReaderBuffer, SkipsMoreThanABufferOfBlanksOrJunk) {
    std::string const blanks(3 * MostText, ' ');
    std::string const lines(3 * MostText, '\n');
    std::string const junk(3 * MostText, 'x');
    EXPECT_EQ(FieldsOf(blanks + "a" + blanks + ',' + blanks + "b"), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("a" + lines + "b" + lines), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("a," + blanks + lines + "b," + blanks), (FieldTexts{"a", "", "b"}));
    EXPECT_EQ(FieldsOf("\"a\"" + junk + ",b"), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsInPieces("\"a\"" + junk + "\nb", 5'003), (FieldTexts{"a", "b"}));
}

TEST(FieldReaderBuffer, StreamsALongTextThroughOneBuffer) {
    std::string text;
    while (text.size() < 20 * MostText) {
        text += "03/05/02, 245.25, \"246\" x,,7\r\n \t\r\n";
    }
    text += std::string(5 * MostText, ' ') + std::string(5 * MostText, '\n') + 'x';
    WatchedSource source(text);
    EXPECT_EQ(AllFields(source).back(), "x");
    EXPECT_LE(source.LargestRoom, LargestBuffer);
}

TEST(FieldReaderBuffer, AsksASourceNoMoreOnceItEnded) {
    WatchedSource source("a,b\r\n");
    FieldReader reader(source);
    EXPECT_EQ(reader.Take(), "a");
    EXPECT_EQ(reader.Take(), "b");
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_EQ(source.EmptyReads, 1);
}

TEST(FieldReaderBuffer, KeepsTheFieldReadableUntilTheNextCall) {
    // The separator behind the first field is not in the buffer yet when the field ends.
    PieceSource source("abc,def", 3);
    FieldReader reader(source);
    std::string_view const first = reader.Take();
    EXPECT_EQ(first, "abc");
    EXPECT_EQ(reader.Take(), "def");
}

TEST(FieldReaderBuffer, PassesTheFaultOfTheDeviceOn) {
    EXPECT_EQ(FaultOf([] {
                  FailingSource source("");
                  FieldReader const reader(source);
              }),
              "Disk full");
    FailingSource source("abc,def");
    FieldReader reader(source);
    EXPECT_EQ(reader.Take(), "abc");
    EXPECT_EQ(FaultOf([&] { static_cast<void>(reader.Take()); }), "Disk full");
}

} // namespace

} // namespace quorvex::text
