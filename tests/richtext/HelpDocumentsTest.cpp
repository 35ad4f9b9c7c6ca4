// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The help documents as the viewer will show them.

#include "support/HelpDocuments.h"

#include "text/Characters.h"
#include "text/basTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::richtext {
namespace {

using tests::ParagraphsOf;
using tests::TablesOf;
using tests::TextOf;

// What the order of the index goes by: letters in one case, digits and blanks.
std::string FoldOf(std::string_view text) {
    std::string fold;
    for (char const letter : text::UpperCase(text)) {
        if (letter == ' ' || text::IsDigit(letter) || (letter >= 'A' && letter <= 'Z')) {
            fold += letter;
        }
    }
    return fold;
}

std::vector<std::string> CellsOf(TableRow const& row) {
    std::vector<std::string> cells;
    for (TableCell const& cell : row.Cells) {
        cells.push_back(TextOf(cell));
    }
    return cells;
}

// The table with this heading above its first column.
Table const& TableHeaded(RichTextDocument const& document, std::string_view heading) {
    auto const tables = TablesOf(document);
    auto const found = std::ranges::find_if(
        tables, [&](Table const* table) { return CellsOf(table->Rows.front()).front() == heading; });
    return **found;
}

class HelpDocument : public testing::TestWithParam<std::string_view> {
protected:
    RichTextDocument document_ = tests::ReadHelp(GetParam());
};

TEST_P(HelpDocument, BeginsWithItsTitleAndHasText) {
    auto const paragraphs = ParagraphsOf(document_);
    ASSERT_GT(paragraphs.size(), 20U);
    auto const title = tests::StyleOf(*paragraphs.front());
    EXPECT_TRUE(title.Bold);
    EXPECT_EQ(title.HalfPoints, 40);
    EXPECT_GT(TextOf(document_).size(), 4000U);
}

TEST_P(HelpDocument, HasNoMangledCharacter) {
    std::string const text = TextOf(document_);
    EXPECT_EQ(text.find("\xEF\xBF\xBD"), std::string::npos) << "U+FFFD";
    for (std::string_view const word : {"\\par", "\\u8", "\\f1", "\\cell", "{", "}"}) {
        EXPECT_EQ(text.find(word), std::string::npos) << word;
    }
}

TEST_P(HelpDocument, UsesFontsThatExistEverywhere) {
    for (Paragraph const* paragraph : ParagraphsOf(document_)) {
        for (Inline const& part : paragraph->Content) {
            if (auto const* run = std::get_if<TextRun>(&part)) {
                EXPECT_THAT(document_.Fonts.at(run->Style.Font), testing::AnyOf("Arial", "Courier New"))
                    << run->Text;
            }
        }
    }
}

TEST_P(HelpDocument, FitsBetweenTheMarginsOfItsPage) {
    ASSERT_TRUE(document_.Page.PaperWidth && document_.Page.LeftMargin && document_.Page.RightMargin);
    int const room = *document_.Page.PaperWidth - *document_.Page.LeftMargin - *document_.Page.RightMargin;
    for (Table const* table : TablesOf(document_)) {
        int width = 0;
        for (int const column : table->ColumnWidths) {
            width += column;
        }
        EXPECT_LE(width, room);
    }
    for (Paragraph const* paragraph : ParagraphsOf(document_)) {
        for (Inline const& part : paragraph->Content) {
            if (auto const* picture = std::get_if<Picture>(&part)) {
                EXPECT_GT(picture->Width, 0);
                EXPECT_LE(picture->Width, room);
                EXPECT_TRUE(picture->Png.ends_with("IEND\xAE\x42\x60\x82"));
            }
        }
    }
}

TEST_P(HelpDocument, HasTablesWithOneHeaderRowAndRowsAlike) {
    for (Table const* table : TablesOf(document_)) {
        for (TableRow const& row : table->Rows) {
            EXPECT_EQ(row.IsHeader, &row == &table->Rows.front());
            EXPECT_EQ(row.Cells.size(), table->ColumnWidths.size()) << CellsOf(row).front();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, HelpDocument, testing::ValuesIn(tests::HelpFileNames),
                         [](testing::TestParamInfo<std::string_view> const& name) {
                             std::string letters = FoldOf(name.param);
                             std::erase(letters, ' ');
                             return letters;
                         });

TEST(QuickStartDocument, ShowsTheMainWindowAndTheForecast) {
    auto const document = tests::ReadHelp("Quorvex-QuickStart.rtf");
    std::size_t pictures = 0;
    for (Paragraph const* paragraph : ParagraphsOf(document)) {
        pictures += static_cast<std::size_t>(std::ranges::count_if(
            paragraph->Content, [](Inline const& part) { return std::holds_alternative<Picture>(part); }));
    }
    EXPECT_EQ(pictures, 2U);
}

TEST(QuickStartDocument, HasTenSteps) {
    std::string const text = TextOf(tests::ReadHelp("Quorvex-QuickStart.rtf"));
    std::size_t at = 0;
    for (int step = 1; step <= 10; ++step) {
        at = text.find("Step " + std::to_string(step) + ": ", at);
        ASSERT_NE(at, std::string::npos) << step;
    }
}

TEST(IndexDocument, IsInAlphabeticalOrder) {
    auto const entries = tests::ReadIndexEntries();
    ASSERT_GT(entries.size(), 150U);
    std::pair<std::string, std::string> before;
    for (tests::IndexEntry const& entry : entries) {
        std::pair key(FoldOf(entry.Name), FoldOf(entry.Place));
        EXPECT_LT(before, key) << entry.Name;
        before = std::move(key);
    }
}

TEST(IndexDocument, ExplainsEveryEntry) {
    for (tests::IndexEntry const& entry : tests::ReadIndexEntries()) {
        EXPECT_TRUE(entry.Explanation.ends_with('.') || entry.Explanation.ends_with("\xE2\x80\x9D"))
            << entry.Name << ": " << entry.Explanation;
    }
}

// An entry that says "See" in front of another one names it.
TEST(IndexDocument, RefersToEntriesThatExist) {
    std::set<std::string> headings;
    auto const entries = tests::ReadIndexEntries();
    for (tests::IndexEntry const& entry : entries) {
        headings.insert(entry.Place.empty() ? entry.Name : entry.Name + " (" + entry.Place + ")");
    }
    for (tests::IndexEntry const& entry : entries) {
        constexpr std::string_view See = "See ";
        if (entry.Explanation.starts_with(See)) {
            std::string const target = entry.Explanation.substr(See.size());
            EXPECT_TRUE(std::ranges::any_of(
                headings, [&](std::string const& heading) { return target.starts_with(heading + "."); }))
                << entry.Name << ": " << target;
        }
    }
}

// The explanation of an entry, which must be there.
std::string ExplanationOf(std::string_view name, std::string_view place) {
    for (tests::IndexEntry const& entry : tests::ReadIndexEntries()) {
        if (entry.Name == name && entry.Place == place) {
            return entry.Explanation;
        }
    }
    ADD_FAILURE() << "no entry " << name;
    return {};
}

TEST(IndexDocument, TellsThatADateFormatCanTakeTheCenturyForTheYear) {
    EXPECT_THAT(
        ExplanationOf("Date Format", "Custom converter"),
        testing::HasSubstr("mm/dd/yy also accepts mm/dd/yyyy and then takes the century for the year, "
                           "so that 11/05/1999 becomes 11/05/19."));
}

TEST(IndexDocument, TellsWhatATooLargeNumberOfFieldsGives) {
    EXPECT_THAT(ExplanationOf("No. of Fields", "Custom converter"),
                testing::HasSubstr("A larger number that you type is refused with \u201CSubscript out of "
                                   "range\u201D or, beyond 32767, with \u201COverflow\u201D."));
    EXPECT_THAT(ExplanationOf("\u201CSubscript out of range\u201D", "message"),
                testing::HasSubstr("when No. of Fields is more than 10; choose 1 to 10."));
    EXPECT_THAT(ExplanationOf("\u201COverflow\u201D", "message"),
                testing::HasSubstr("when No. of Fields is more than 32767; choose 1 to 10."));
}

TEST(IndexDocument, TellsHowDecimalCommasBecomePoints) {
    EXPECT_THAT(ExplanationOf("Field Delimiter", "Custom converter"),
                testing::HasSubstr("304,75;305,00 has to become 304.75,305.00."));
}

TEST(IndexDocument, TellsThatSwitchingProgramsReadsAHelpDocumentAgain) {
    EXPECT_THAT(
        ExplanationOf("Help viewer", "window"),
        testing::HasSubstr("switching to another program and back, reads the document again: the view "
                           "goes back to its top, and nothing is selected any more."));
}

TEST(IndexDocument, TellsWhichCharactersTheContentsBoxShows) {
    EXPECT_THAT(ExplanationOf("Contents box", "converters"),
                testing::HasSubstr("Characters are shown as UTF-8 or, where they are none, as Windows-1252"));
}

TEST(ConvertingDocument, TellsWhatGoesUnnoticedAndWhatIsRefused) {
    std::string const text = TextOf(tests::ReadHelp("ConvertCustom.rtf"));
    for (std::string_view const sentence :
         {"mm/dd/yy also accepts dates written mm/dd/yyyy and then takes the century for the year: "
          "11/05/1999 becomes 11/05/19, and the message still says \u201Ccreated successfully\u201D.",
          "No. of Fields goes up to 10. A larger number that you type is refused with \u201CSubscript out of "
          "range\u201D or, beyond 32767, with \u201COverflow\u201D.",
          "Many programs write semicolons between the fields and commas within the numbers, as in "
          "01/15/02;302,50;305,00;301,25;304,75. Such a file is refused. First replace every comma by a "
          "point, then every semicolon by a comma."}) {
        EXPECT_THAT(text, testing::HasSubstr(sentence));
    }
}

TEST(ConvertingDocument, ExplainsTheMessagesOfANumberThatIsTooLarge) {
    auto const document = tests::ReadHelp("ConvertCustom.rtf");
    std::vector<std::string> meanings;
    for (TableRow const& row : TableHeaded(document, "Message").Rows) {
        auto const cells = CellsOf(row);
        if (cells.at(0) == "Overflow" || cells.at(0) == "Subscript out of range") {
            meanings.push_back(cells.at(1));
        }
    }
    EXPECT_THAT(meanings, testing::ElementsAre(
                              testing::HasSubstr("Custom: or No. of Fields is more than 32767."),
                              testing::HasSubstr("No. of Fields of the Custom converter is more than 10.")));
}

TEST(SymbolsDocument, HasATableOfContracts) {
    auto const document = tests::ReadHelp("CommoditySymbols.rtf");
    Table const& table = TableHeaded(document, "Exchange");
    EXPECT_THAT(CellsOf(table.Rows.front()),
                testing::ElementsAre("Exchange", "Contract", "Size", "Symbol", "Months", "Tick", "Value"));
    EXPECT_GE(table.Rows.size(), 51U);
    std::set<std::string> contracts;
    for (TableRow const& row : table.Rows) {
        auto const cells = CellsOf(row);
        EXPECT_THAT(cells, testing::Each(testing::Not(testing::IsEmpty()))) << cells.at(1);
        EXPECT_TRUE(contracts.insert(cells.at(0) + " " + cells.at(3)).second) << cells.at(3);
    }
}

// Single letters in the order of the year, unless a word stands for them.
TEST(SymbolsDocument, NamesDeliveryMonthsByTheirLetters) {
    auto const document = tests::ReadHelp("CommoditySymbols.rtf");
    Table const& letters = TableHeaded(document, "F");
    std::string year;
    for (std::string const& letter : CellsOf(letters.Rows.front())) {
        year += letter;
    }
    EXPECT_EQ(year, "FGHJKMNQUVXZ");
    Table const& table = TableHeaded(document, "Exchange");
    for (std::size_t row = 1; row < table.Rows.size(); ++row) {
        std::string const months = CellsOf(table.Rows[row]).at(4);
        if (months == "All" || months == "Quarterly") {
            continue;
        }
        std::size_t before = 0;
        for (std::size_t at = 0; at < months.size(); at += 2) {
            std::size_t const month = year.find(months[at]);
            ASSERT_NE(month, std::string::npos) << months;
            EXPECT_TRUE(at == 0 || month > before) << months;
            EXPECT_TRUE(at + 1 == months.size() || months[at + 1] == ' ') << months;
            before = month;
        }
    }
}

} // namespace
} // namespace quorvex::richtext
