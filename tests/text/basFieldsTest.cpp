// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basFields.h"

#include "FaultOf.h"
#include "FieldSources.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace quorvex::text {

namespace {

TEST(FieldReader, TakesTheFieldsOfEveryReferenceText) {
    auto const entries = tests::GoldenVector("fields");
    ASSERT_EQ(entries.size(), 20U);
    for (auto const& entry : entries) {
        SCOPED_TRACE(entry.dump());
        EXPECT_EQ(FieldsOf(entry[0].get<std::string>()), entry[1].get<FieldTexts>());
    }
}

TEST(FieldReader, EndsAFieldAtACommaOrAtTheLinesEnd) {
    EXPECT_EQ(FieldsOf("a,b\r\nc,d"), (FieldTexts{"a", "b", "c", "d"}));
    EXPECT_EQ(FieldsOf("a b;c,d"), (FieldTexts{"a b;c", "d"}));
}

TEST(FieldReader, EndsLinesWithCarriageReturnLineFeedOrBoth) {
    EXPECT_EQ(FieldsOf("a\r\nb\nc\rd"), (FieldTexts{"a", "b", "c", "d"}));
    EXPECT_EQ(FieldsOf("a\n\rb"), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("\"a\r\"b\n\"c\r\nd"), (FieldTexts{"a", "b", "c", "d"}));
}

TEST(FieldReader, DropsBlanksAndTabsAroundAPlainField) {
    EXPECT_EQ(FieldsOf(" \ta \t,\t b c\t \r\n  d  "), (FieldTexts{"a", "b c", "d"}));
}

TEST(FieldReader, FindsNoFieldInALineOfBlanks) {
    EXPECT_EQ(FieldsOf("a\r\n\r\n \t \r\n\n\rb\r\n"), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("\r\n\r\na"), (FieldTexts{"a"}));
}

TEST(FieldReader, FindsAnEmptyFieldBetweenCommas) {
    EXPECT_EQ(FieldsOf("a,,b"), (FieldTexts{"a", "", "b"}));
    EXPECT_EQ(FieldsOf("a, ,b"), (FieldTexts{"a", "", "b"}));
    EXPECT_EQ(FieldsOf(",a"), (FieldTexts{"", "a"}));
    EXPECT_EQ(FieldsOf(","), (FieldTexts{""}));
}

TEST(FieldReader, FindsAnEmptyFieldBetweenACommaAndTheLinesEndWhenMoreFollows) {
    EXPECT_EQ(FieldsOf("a,\r\nb"), (FieldTexts{"a", "", "b"}));
    EXPECT_EQ(FieldsOf("a, \t\r\n\r\nb"), (FieldTexts{"a", "", "b"}));
    EXPECT_EQ(FieldsOf("a,\n,\nb"), (FieldTexts{"a", "", "", "", "b"}));
    EXPECT_EQ(FieldsOf("\"a\",\rb"), (FieldTexts{"a", "", "b"}));
}

TEST(FieldReader, FindsNoFieldBehindTheLastComma) {
    EXPECT_EQ(FieldsOf("a,"), (FieldTexts{"a"}));
    EXPECT_EQ(FieldsOf("a, \t"), (FieldTexts{"a"}));
    EXPECT_EQ(FieldsOf("a,\r\n \r\n"), (FieldTexts{"a"}));
    EXPECT_EQ(FieldsOf("a,\r\n\x1a"), (FieldTexts{"a"}));
}

TEST(FieldReader, KeepsCommasAndBlanksInsideQuotes) {
    EXPECT_EQ(FieldsOf("\"a, b\",c"), (FieldTexts{"a, b", "c"}));
    EXPECT_EQ(FieldsOf("\" a \",c"), (FieldTexts{" a ", "c"}));
    EXPECT_EQ(FieldsOf("  \"a,\"  ,c"), (FieldTexts{"a,", "c"}));
    EXPECT_EQ(FieldsOf("\"\",\"\""), (FieldTexts{"", ""}));
}

TEST(FieldReader, SkipsWhatFollowsTheClosingQuote) {
    EXPECT_EQ(FieldsOf("\"a\"junk,b"), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("\"a\"\"b\",c"), (FieldTexts{"a", "c"}));
    EXPECT_EQ(FieldsOf("\"a\" junk\r\nb"), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("\"a\"junk"), (FieldTexts{"a"}));
}

TEST(FieldReader, RunsAnUnterminatedQuoteToTheLinesEnd) {
    EXPECT_EQ(FieldsOf("\"a, b \r\nc"), (FieldTexts{"a, b ", "c"}));
    EXPECT_EQ(FieldsOf("x,\"a, b"), (FieldTexts{"x", "a, b"}));
    EXPECT_EQ(FieldsOf("x,\""), (FieldTexts{"x", ""}));
    EXPECT_EQ(FieldsOf("\"\r\nx"), (FieldTexts{"", "x"}));
}

TEST(FieldReader, TakesAQuoteInsideAPlainFieldAsItStands) {
    EXPECT_EQ(FieldsOf("a\"b\",c\""), (FieldTexts{"a\"b\"", "c\""}));
}

TEST(FieldReader, IsAtItsEndWhereOnlyWhiteSpaceIsLeft) {
    EXPECT_EQ(FieldsOf(""), FieldTexts{});
    EXPECT_EQ(FieldsOf(" \t\r\n \r\n"), FieldTexts{});
    EXPECT_EQ(FieldsOf("a \r\n\r\n \t"), (FieldTexts{"a"}));
}

TEST(FieldReader, IsAtItsEndAtACtrlZInPlaceOfAField) {
    EXPECT_EQ(FieldsOf("\x1a"), FieldTexts{});
    EXPECT_EQ(FieldsOf("a,b\r\n\x1a"), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("a,b\r\n \x1a"
                       "c,d\r\n"),
              (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("a, \x1a,b"), (FieldTexts{"a"}));
}

TEST(FieldReader, StaysAtItsEnd) {
    TextSource source("a\r\n\x1a,b");
    FieldReader reader(source);
    EXPECT_EQ(reader.Take(), "a");
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_TRUE(reader.AtEnd());
    for (int tries = 0; tries < 2; ++tries) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(reader.Take()); }), "Input past end of file");
    }
}

TEST(FieldReader, RaisesInputPastEndWhenNoFieldIsLeft) {
    for (char const* const text : {"", " \r\n", "\x1a", "\xEF\xBB\xBF"}) {
        TextSource source(text);
        FieldReader reader(source);
        EXPECT_EQ(FaultOf([&] { static_cast<void>(reader.Take()); }), "Input past end of file");
    }
    TextSource source("a,\r\n");
    FieldReader reader(source);
    EXPECT_EQ(reader.Take(), "a");
    EXPECT_EQ(FaultOf([&] { static_cast<void>(reader.Take()); }), "Input past end of file");
}

TEST(FieldReader, LosesNoFieldByBeingAskedForItsEnd) {
    TextSource source(" a,\r\nb");
    FieldReader reader(source);
    for (char const* const expected : {"a", "", "b"}) {
        EXPECT_FALSE(reader.AtEnd());
        EXPECT_FALSE(reader.AtEnd());
        EXPECT_EQ(reader.Take(), expected);
    }
    EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, SkipsAByteOrderMarkAtTheStartOnly) {
    EXPECT_EQ(FieldsOf("\xEF\xBB\xBF"
                       "a,b"),
              (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf("\xEF\xBB\xBF\r\n\"a\""), (FieldTexts{"a"}));
    EXPECT_EQ(FieldsOf("a,\xEF\xBB\xBF"
                       "b"),
              (FieldTexts{"a", "\xEF\xBB\xBF"
                               "b"}));
    EXPECT_EQ(FieldsOf("\xEF\xBB\xBF\xEF\xBB\xBF"
                       "a"),
              (FieldTexts{"\xEF\xBB\xBF"
                          "a"}));
    EXPECT_EQ(FieldsOf("\xEF\xBB"), (FieldTexts{"\xEF\xBB"}));
}

TEST(FieldReader, LooksNoFurtherThanItsText) {
    EXPECT_EQ(FieldsOf(std::string_view("a,bc").substr(0, 3)), (FieldTexts{"a", "b"}));
    EXPECT_EQ(FieldsOf(std::string_view("a,bc").substr(0, 2)), (FieldTexts{"a"}));
}

TEST(FieldReader, PassesBytesBeyondAsciiThrough) {
    EXPECT_EQ(FieldsOf("M\xE4rz,\"\xC3\xA9\"\n\xA0x\xA0"), (FieldTexts{"M\xE4rz", "\xC3\xA9", "\xA0x\xA0"}));
}

TEST(FieldReader, PassesNulBytesThrough) {
    using namespace std::string_literals;
    EXPECT_EQ(FieldsOf("a\0b, \0 ,\"\0\"\n\0"s), (FieldTexts{"a\0b"s, "\0"s, "\0"s, "\0"s}));
}

TEST(FieldReader, PassesOtherControlCharactersThrough) {
    EXPECT_EQ(FieldsOf("a\x1a"
                       "b,\f,\v"),
              (FieldTexts{"a\x1a"
                          "b",
                          "\f", "\v"}));
}

} // namespace

} // namespace quorvex::text
