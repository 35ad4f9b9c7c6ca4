// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basListing.h"

#include "EditorTest.h"
#include "editor/basEdit.h"
#include "platform/fake/RecordingPrinter.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace quorvex::tests {
namespace {

using platform::fake::PrintedDocument;
using platform::fake::PrintedPage;
using platform::fake::PrintedText;
using testing::ElementsAre;

constexpr double Near = 0.01; // inches

// What stands on a page in front of the rows: name, dates and eight heads.
constexpr std::size_t HeadTexts = 10;
constexpr std::size_t RowLength = 8;

class Listing : public EditorTest {
protected:
    std::optional<text::RunTimeError> Print() {
        return text::Trap(
            [&] { editor::PrintQuotes(*edited, series->QuoteFileName, settings, queue, queue); });
    }

    // The one document, printed to its end.
    PrintedDocument const& Printed() {
        EXPECT_FALSE(Print());
        EXPECT_EQ(queue.Documents.size(), 1U);
        EXPECT_TRUE(queue.Documents.back().IsEnded);
        return queue.Documents.back();
    }

    // The texts of the page's row, counted from 0.
    static Texts RowOn(PrintedPage const& page, std::size_t row) {
        Texts texts;
        for (std::size_t index = 0; index < RowLength; ++index) {
            texts.push_back(page.Texts.at(HeadTexts + row * RowLength + index).Text);
        }
        return texts;
    }

    static bool HasFooter(PrintedPage const& page, std::string const& footer) {
        return page.Texts.back().Text == footer;
    }

    platform::fake::RecordingPrintQueue queue;
};

double RightOf(PrintedText const& text) {
    return text.X + text.Width;
}

void ExpectFont(PrintedText const& text, int size, bool isBold) {
    EXPECT_EQ(text.Font, "Times New Roman") << text.Text;
    EXPECT_EQ(text.Size, size) << text.Text;
    EXPECT_EQ(text.IsBold, isBold) << text.Text;
}

TEST_F(Listing, OfAFileIsNamedAfterIt) {
    OpenDays(1);
    EXPECT_EQ(Printed().Name, "test listing");
}

TEST_F(Listing, HasAHeadWithNameDatesAndColumns) {
    OpenDays(40);
    auto const& page = Printed().Pages.at(0);
    EXPECT_EQ(page.Texts.at(0).Text, "test.txt");
    ExpectFont(page.Texts[0], 14, true);
    EXPECT_EQ(page.Texts.at(1).Text, "01/01/01 to 02/23/01");
    ExpectFont(page.Texts[1], 12, true);
    Texts heads;
    for (std::size_t index = 2; index < HeadTexts; ++index) {
        heads.push_back(page.Texts.at(index).Text);
        ExpectFont(page.Texts[index], 10, true);
    }
    EXPECT_THAT(heads, ElementsAre("Day", "Date  ", "Open  ", "High  ", "Low   ", "Close  ", "Volume ",
                                   "Open Interest"));
    EXPECT_TRUE(page.Shapes.empty());
}

TEST_F(Listing, CentresNameAndDatesOnALetterPage) {
    OpenDays(40);
    queue.Sheet.Width = 11906; // the paper makes no difference
    auto const& page = Printed().Pages.at(0);
    for (std::size_t index : {0U, 1U}) {
        EXPECT_NEAR(page.Texts.at(index).X + page.Texts.at(index).Width / 2, 4.25, Near);
    }
}

TEST_F(Listing, AlignsEveryColumnAtItsStop) {
    OpenDays(3);
    auto const& page = Printed().Pages.at(0);
    ASSERT_EQ(page.Texts.size(), HeadTexts + 3 * RowLength);
    constexpr std::array<double, RowLength> Stops = {1.2, 2.05, 2.9, 3.75, 4.6, 5.45, 6.3, 7.15};
    for (std::size_t index = 2; index < page.Texts.size(); ++index) {
        EXPECT_NEAR(RightOf(page.Texts[index]), Stops.at((index - 2) % RowLength), Near)
            << page.Texts[index].Text;
    }
}

TEST_F(Listing, PrintsRowsOnLinesOfTheirOwnInRegularType) {
    OpenDays(3);
    auto const& page = Printed().Pages.at(0);
    for (std::size_t index = HeadTexts; index < page.Texts.size(); ++index) {
        ExpectFont(page.Texts[index], 10, false);
        auto const& first = page.Texts[HeadTexts + (index - HeadTexts) / RowLength * RowLength];
        EXPECT_EQ(page.Texts[index].Y, first.Y);
    }
    double const line = 1.15 * 10 / 72;
    double const firstRow = page.Texts[HeadTexts].Y;
    EXPECT_NEAR(page.Texts[HeadTexts + RowLength].Y - firstRow, line, Near);
    EXPECT_NEAR(firstRow - page.Texts[HeadTexts - 1].Y, 2 * line, Near); // one empty line between
}

TEST_F(Listing, LeavesEmptyLinesInTheHead) {
    OpenDays(1);
    auto const& page = Printed().Pages.at(0);
    auto const lines = [](double count, int size) { return count * 1.15 * size / 72; };
    // One line in the printer's own font, three of the head.
    EXPECT_NEAR(page.Texts.at(0).Y, lines(1, 8) + lines(3, 14), Near);
    EXPECT_NEAR(page.Texts.at(1).Y - page.Texts[0].Y, lines(1, 14), Near);
    EXPECT_NEAR(page.Texts.at(2).Y - page.Texts[1].Y, lines(2, 12), Near);
}

TEST_F(Listing, PrintsTheRowsTexts) {
    settings.CurrencyFormat = "####0.0";
    OpenDays(2);
    auto const& page = Printed().Pages.at(0);
    EXPECT_THAT(RowOn(page, 0),
                ElementsAre("1", "01/01/01", "101.3", "101.8", "101.0", "101.0", "1200", "3400"));
    EXPECT_THAT(RowOn(page, 1),
                ElementsAre("2", "01/02/01", "102.3", "102.8", "102.0", "102.0", "1200", "3400"));
}

TEST_F(Listing, ShowsTheGridAsItStands) {
    OpenDays(3);
    Type(1, 1, "3/5/2002");
    Type(2, 5, "1,234.567");
    Type(2, 6, "10.5");
    Type(3, 1, "no date");
    Type(3, 5, "-1");
    auto const& page = Printed().Pages.at(0);
    EXPECT_EQ(page.Texts.at(1).Text, "03/05/02 to no date");
    EXPECT_THAT(RowOn(page, 0),
                ElementsAre("1", "03/05/02", "101.25", "101.75", "101.00", "101.00", "1200", "3400"));
    EXPECT_THAT(RowOn(page, 1),
                ElementsAre("2", "01/02/01", "102.25", "102.75", "102.00", "1234.57", "11", "3400"));
    EXPECT_THAT(RowOn(page, 2),
                ElementsAre("3", "no date", "103.25", "103.75", "103.00", "-1.00", "1200", "3400"));
    EXPECT_TRUE(dialogs.Messages.empty()); // nothing is checked
}

TEST_F(Listing, WithoutRowsIsAHeadWithoutDates) {
    Open(std::make_unique<quotes::QuoteSeries>());
    auto const& document = Printed();
    ASSERT_EQ(document.Pages.size(), 1U);
    EXPECT_EQ(document.Name, "Quorvex listing");
    // The name is empty and leaves no text.
    ASSERT_EQ(document.Pages[0].Texts.size(), HeadTexts - 1);
    EXPECT_EQ(document.Pages[0].Texts[0].Text, " to ");
}

TEST_F(Listing, WithoutRowsForgetsTheDatesOfDeletedOnes) {
    OpenDays(1);
    spread.GotoCell(1, 1);
    dialogs.Answers = {platform::Answer::Yes};
    editor::DeleteRow(*edited, settings, dialogs);
    EXPECT_EQ(Printed().Pages.at(0).Texts.at(1).Text, " to ");
}

TEST_F(Listing, OfFiftyRowsIsOnePageWithoutNumber) {
    OpenDays(50);
    auto const& document = Printed();
    ASSERT_EQ(document.Pages.size(), 1U);
    EXPECT_EQ(document.Pages[0].Texts.size(), HeadTexts + 50 * RowLength);
    EXPECT_EQ(RowOn(document.Pages[0], 49).front(), "50");
}

TEST_F(Listing, OfFiftyOneRowsNumbersTheFirstPageAlone) {
    OpenDays(51);
    auto const& pages = Printed().Pages;
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].Texts.size(), HeadTexts + 50 * RowLength + 1);
    auto const& footer = pages[0].Texts.back();
    EXPECT_EQ(footer.Text, "Page 1");
    ExpectFont(footer, 10, false);
    EXPECT_NEAR(footer.X + footer.Width / 2, 4.25, Near);
    auto const& lastRow = pages[0].Texts[pages[0].Texts.size() - 2];
    EXPECT_NEAR(footer.Y - lastRow.Y, 2 * 1.15 * 10 / 72, Near); // one empty line between
    EXPECT_EQ(pages[1].Texts.size(), HeadTexts + RowLength);
    EXPECT_EQ(RowOn(pages[1], 0).front(), "51");
    EXPECT_EQ(pages[1].Texts[0].Text, "test.txt");
    EXPECT_EQ(pages[1].Texts[1].Text, pages[0].Texts[1].Text);
}

TEST_F(Listing, OfAHundredRowsHasOneNumber) {
    OpenDays(100);
    auto const& pages = Printed().Pages;
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_TRUE(HasFooter(pages[0], "Page 1"));
    EXPECT_EQ(pages[1].Texts.size(), HeadTexts + 50 * RowLength);
    EXPECT_EQ(RowOn(pages[1], 49).front(), "100");
}

TEST_F(Listing, OfFiveHundredRowsNumbersAllButTheLastPage) {
    Open(GoldenSeries("q500.txt", "####0.00"));
    auto const& pages = Printed().Pages;
    ASSERT_EQ(pages.size(), 10U);
    for (std::size_t page = 0; page < 9; ++page) {
        EXPECT_TRUE(HasFooter(pages[page], "Page " + std::to_string(page + 1)));
    }
    EXPECT_EQ(pages[9].Texts.size(), HeadTexts + 50 * RowLength);
    EXPECT_EQ(RowOn(pages[9], 49).front(), "500");
    EXPECT_EQ(pages[9].Texts[0].Text, "q500.txt");
}

TEST_F(Listing, FitsOnLetterAndOnA4) {
    OpenDays(51);
    auto const& pages = Printed().Pages;
    constexpr double LowestOfBoth = 11;
    constexpr double NarrowestOfBoth = 8.27;
    for (auto const& page : pages) {
        for (auto const& text : page.Texts) {
            EXPECT_GE(text.X, 0);
            EXPECT_LT(RightOf(text), NarrowestOfBoth);
            EXPECT_LT(text.Y + 1.15 * text.Size / 72, LowestOfBoth);
        }
    }
}

TEST_F(Listing, HoldsTheHourglassWhileItPrints) {
    OpenDays(3);
    EXPECT_FALSE(Print());
    EXPECT_THAT(queue.HourglassAtStart, ElementsAre(1));
    EXPECT_EQ(queue.HourglassCount, 0);
}

TEST_F(Listing, OfACellThatIsNoNumberIsNotPrinted) {
    OpenDays(3);
    Type(1, 5, "555");
    Type(2, 6, "abc");
    auto const error = Print();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Type mismatch");
    EXPECT_EQ(edited->EditQuotes[1].Close, 101); // the copy is as it was
    EXPECT_TRUE(queue.Documents.empty());
    EXPECT_EQ(queue.HourglassCount, 0);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(Listing, EndsWhereverThePrinterFails) {
    OpenDays(51);
    // In the empty line on top, in the head, in the rows, in the footer and on the second page.
    for (int text : {1, 5, 7, 8, 10, 300, 418, 425, 440}) {
        SCOPED_TRACE(text);
        queue.Documents.clear();
        queue.Sheet.FailingText = text;
        auto const error = Print();
        ASSERT_TRUE(error);
        EXPECT_EQ(error->Description(), "Printer error");
        EXPECT_FALSE(queue.Documents.at(0).IsEnded);
        EXPECT_EQ(queue.HourglassCount, 0);
    }
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(Listing, NeedsAPrinter) {
    OpenDays(3);
    platform::NoPrintQueue none;
    auto const error = text::Trap([&] { editor::PrintQuotes(*edited, "test.txt", settings, none, queue); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Printer error");
    EXPECT_EQ(queue.HourglassCount, 0);
}

} // namespace
} // namespace quorvex::tests
