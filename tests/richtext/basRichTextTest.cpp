// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/basRichText.h"

#include "Notation.h"
#include "richtext/GroupStack.h"
#include "support/Golden.h"
#include "support/Sanitizers.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace quorvex::richtext {
namespace {

constexpr std::size_t Million = 1'000'000;

std::string Repeat(std::string_view part, std::size_t count) {
    std::string text;
    text.reserve(part.size() * count);
    for (std::size_t time = 0; time < count; ++time) {
        text += part;
    }
    return text;
}

TEST(RichText, IsRefusedUnlessItStartsAsSuch) {
    for (std::string_view const bytes : {"", "{", "{\\rt", "text", " {\\rtf1 x}", "\\rtf1 x", "<html>"}) {
        SCOPED_TRACE(bytes);
        auto const error = text::Trap([&] { static_cast<void>(ReadRichText(bytes)); });
        ASSERT_TRUE(error.has_value());
        EXPECT_EQ(error->Kind(), text::Fault::InvalidProcedureCall);
    }
}

TEST(RichText, MayBeEmpty) {
    EXPECT_TRUE(ReadRichText("{\\rtf").Blocks.empty());
    EXPECT_TRUE(ReadRichText("{\\rtf1}").Blocks.empty());
}

TEST(RichText, EndsWithItsGroup) {
    EXPECT_EQ(OutlineOf(ReadRichText("{\\rtf1 a}b{c}")), "a");
    EXPECT_EQ(OutlineOf(ReadRichText("{\\rtf1 a}}}")), "a");
}

TEST(RichTextGroups, ThatAreNoTextAreSkipped) {
    EXPECT_EQ(TextOf(R"({\stylesheet{\s1 Heading;}}{\info{\title T}{\author A}}{\header H\par}{\footer F}a)"),
              "a");
    EXPECT_EQ(TextOf(R"(a{\footnote n}{\xe{\v index}}{\*\bkmkstart b}b)"), "ab");
    EXPECT_EQ(TextOf(R"({\*\generator x;}{\*\unknown{\deep{er}}\'7d}a{\* b}{\*}c)"), "a bc");
}

TEST(RichTextGroups, ThatAreUnknownAreShown) {
    EXPECT_EQ(TextOf(R"({\unknown a\unknown5 b})"), "ab");
}

TEST(RichTextGroups, MarkedAsIgnorableAreSkippedEvenWithAKnownWord) {
    EXPECT_EQ(TextOf(R"({\*\b a}{\*\cs5\b b}{\*\emdash c}d)"), "d");
}

TEST(RichTextGroups, DoNotSkipTheWholeDocument) {
    EXPECT_EQ(TextOf(R"(a\*\unknown b\header c)"), "abc");
}

TEST(RichTextGroups, OfFieldsShowTheirResult) {
    EXPECT_EQ(TextOf(R"(a{\field{\*\fldinst HYPERLINK "http://x"}{\fldrslt{\ul link}}}b)"), "alinkb");
    EXPECT_EQ(TextOf(R"({\field\flddirty{\fldinst PAGE}{\*\fldrslt 7}})"), "7");
}

TEST(RichTextGroups, CarryBinaryDataWithBracesInIt) {
    EXPECT_EQ(TextOf(R"(a{\*\objdata\bin3 }}}b}c\bin2 {}d)"), "acd");
}

TEST(RichTextGroups, NestAMillionDeep) {
    EXPECT_EQ(TextOf(Repeat("{", Million) + "a" + Repeat("}", Million) + "b"), "ab");
    EXPECT_EQ(TextOf(Repeat("{", Million) + "a"), "a");
    EXPECT_EQ(TextOf(R"({\*\x )" + Repeat("{", Million) + Repeat("}", Million) + "}b"), "b");
}

TEST(RichTextGroups, NestAMillionDeepWithChangingStyles) {
    auto const document =
        ReadBody(Repeat(R"({\b{\b0)", Million / 2) + " a" + Repeat("}", Million) + R"(b\i c)");
    EXPECT_EQ(OutlineOf(document), "abc");
    EXPECT_TRUE(StyleOf(document, "c").Italic);
    EXPECT_FALSE(StyleOf(document, "c").Bold);
    EXPECT_FALSE(StyleOf(document, "ab").Italic);
}

TEST(GroupStack, KeepsOneStateForGroupsThatChangeNothing) {
    GroupStack groups;
    groups.Open();
    groups.Open();
    groups.Current().Style.Bold = true;
    groups.Open();
    groups.Current().Style.Bold = false;
    EXPECT_EQ(groups.Depth(), 3U);
    groups.Close();
    EXPECT_TRUE(groups.Current().Style.Bold);
    groups.Close();
    EXPECT_FALSE(groups.Current().Style.Bold);
    groups.Close();
    EXPECT_EQ(groups.Depth(), 0U);
}

TEST(GroupStack, SharesTheLastStateBeyondTheMost) {
    GroupStack groups;
    for (std::size_t depth = 0; depth < GroupStack::MostStates + 10; ++depth) {
        groups.Current().FallbackLength = static_cast<int>(depth);
        groups.Open();
    }
    for (int deepest = 0; deepest < 11; ++deepest) {
        groups.Close();
        EXPECT_EQ(groups.Current().FallbackLength, static_cast<int>(GroupStack::MostStates) - 1);
    }
    groups.Close();
    EXPECT_EQ(groups.Current().FallbackLength, static_cast<int>(GroupStack::MostStates) - 2);
}

TEST(DamagedRichText, GivesWhatWasReadBeforeItsEnd) {
    EXPECT_EQ(OutlineOf(ReadRichText(R"({\rtf1 a\par b)")), "a\nb");
    EXPECT_EQ(OutlineOf(ReadRichText(R"({\rtf1 a\par{\b b\)")), "a\nb");
    EXPECT_EQ(OutlineOf(ReadRichText(R"({\rtf1 a{\*\skipped b)")), "a");
    EXPECT_EQ(OutlineOf(ReadRichText(R"({\rtf1 a{\pict\pngblip 89504e470d0a1a0a0)")), "a<picture>");
    EXPECT_EQ(OutlineOf(ReadRichText(R"({\rtf1 {\listtext 1.)")), "(1.)");
    EXPECT_EQ(ReadRichText(R"({\rtf1{\fonttbl{\f0 Ari)").Fonts.at(0), "Ari");
}

TEST(DamagedRichText, KeepsTheFormatThatHoldsAtItsEnd) {
    auto const document = ReadRichText(R"({\rtf1{\qc a)");
    EXPECT_EQ(ParagraphAt(document, 0).Format.Alignment, Alignment::Centre);
}

TEST(DamagedRichText, PassesOverWordsWithoutTheirNumbers) {
    EXPECT_EQ(TextOf(R"(\f\fs\cf\u?\uc\li\tx\cellx\itap\bin\'\'zz a)"), "zz a");
}

TEST(DamagedRichText, CanBeCutAnywhere) {
    std::size_t most = 0;
    for (auto const* const name : {"text", "table", "picture"}) {
        auto const whole = tests::GoldenFile("rich-text/" + std::string(name) + ".rtf");
        auto const expected = OutlineOf(ReadRichText(whole));
        std::size_t last = 0;
        for (std::size_t length = 5; length < whole.size(); length += tests::Stride) {
            last = OutlineOf(ReadRichText(whole.substr(0, length))).size();
            ASSERT_LE(last, expected.size() + 8) << name << " cut to " << length;
        }
        EXPECT_GE(last + 8, expected.size());
        most = std::max(most, last);
    }
    EXPECT_GT(most, 100U);
}

TEST(DamagedRichText, CanLackAnyByte) {
    auto const whole = tests::GoldenFile("rich-text/table.rtf");
    for (std::size_t at = 5; at < whole.size(); at += tests::Stride) {
        auto damaged = whole;
        damaged.erase(at, 1);
        auto const document = ReadRichText(damaged);
        ASSERT_EQ(document.Rulers.at(0).size(), 0U) << "without byte " << at;
        ASSERT_FALSE(document.Fonts.empty());
    }
}

} // namespace
} // namespace quorvex::richtext
