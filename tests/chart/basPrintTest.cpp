// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basPrint.h"

#include "platform/fake/RecordingPrinter.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/Operations.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <span>

namespace quorvex::chart {
namespace {

using nlohmann::json;
using platform::DrawingOperation;
using platform::fake::PrintedPage;
using platform::fake::PrintedText;
using Kind = DrawingOperation::Kind;

constexpr double Twip = 0.01; // places are compared to a hundredth
constexpr double Inch = 1440;

struct ChartPrint {
    // The series printed is empty when no file is named.
    explicit ChartPrint(std::string const& file = "", std::string const& currencyFormat = "####0.00")
        : Series(file.empty() ? std::make_unique<quotes::QuoteSeries>()
                              : tests::GoldenSeries(file, currencyFormat)) {
        Settings.ChartType = "Daily Bar Chart";
        Settings.CurrencyFormat = currencyFormat;
    }

    void Print() { PrintChart(Queue, Queue, *Series, Settings); }

    PrintedPage const& Page() {
        Print();
        return Queue.Documents.at(0).Pages.at(0);
    }

    platform::fake::RecordingPrintQueue Queue;
    std::unique_ptr<quotes::QuoteSeries> Series;
    settings::Settings Settings;
};

// What was drawn, without the changes of colour.
std::vector<DrawingOperation> Drawn(PrintedPage const& page) {
    auto shapes = page.Shapes;
    std::erase_if(shapes, [](auto const& shape) { return shape.What == Kind::ForeColour; });
    return shapes;
}

// Frame and divisions: what stands in front of the ticks.
constexpr std::size_t FrameLines = 4;
constexpr std::size_t DivisionLines = 9;

std::span<DrawingOperation const> Divisions(std::span<DrawingOperation const> drawn) {
    return drawn.subspan(FrameLines, DivisionLines);
}

// For each entry of a reference list, the operation at its index.
void ExpectShapes(std::span<DrawingOperation const> actual, json const& expected) {
    ASSERT_EQ(actual.size(), expected.at("count"));
    for (auto const& entry : expected.at("ops")) {
        std::size_t const index = entry.at(0);
        EXPECT_TRUE(tests::IsOperation(tests::OperationJson(actual[index]), entry.at(1))) << index;
    }
}

void ExpectHeader(PrintedPage const& page, json const& expected) {
    PrintedText const& first = page.Texts.at(0);
    bool const hasTitle = !expected.at("file").is_null();
    if (hasTitle) {
        EXPECT_EQ(first.Text, expected.at("file"));
        EXPECT_NEAR(first.X, expected.at("title_x"), Twip);
        PrintedText const& dates = page.Texts.at(1);
        EXPECT_EQ(dates.Text, expected.at("date_line"));
        EXPECT_NEAR(dates.X, expected.at("date_line_x"), Twip);
    }
}

void ExpectLabels(PrintedPage const& page, json const& expected) {
    auto const labels = std::span(page.Texts).last(DivisionLines);
    for (std::size_t k = 0; k < DivisionLines; ++k) {
        EXPECT_EQ(labels[k].Text, expected.at("labels").at(k));
        EXPECT_NEAR(labels[k].X + labels[k].Width, expected.at("x0"), Twip);
        EXPECT_NEAR(labels[k].Y + 175, expected.at("division_y").at(k), Twip) << "half a line above";
    }
}

void ExpectDivisions(std::span<DrawingOperation const> divisions, json const& expected) {
    double const left = expected.at("x0");
    double const right = expected.at("page_width").get<double>() - Inch;
    for (std::size_t k = 0; k < DivisionLines; ++k) {
        double const y = expected.at("division_y").at(k);
        auto const shape = k == 4 ? json::array({"rect", left, y - 6, right, y + 6, 0, false})
                                  : json::array({"line", left, y, right, y, 0});
        EXPECT_TRUE(tests::IsOperation(tests::OperationJson(divisions[k]), shape));
    }
}

void ExpectPage(PrintedPage const& page, json const& expected) {
    ExpectHeader(page, expected);
    ExpectLabels(page, expected);
    auto const shapes = Drawn(page);
    std::span<DrawingOperation const> const drawn = shapes;
    ASSERT_GE(drawn.size(), FrameLines + DivisionLines);
    ExpectDivisions(Divisions(drawn), expected);
    std::size_t const tickCount = expected.at("ticks").at("count");
    auto const ticks = drawn.subspan(FrameLines + DivisionLines);
    ASSERT_GE(ticks.size(), tickCount);
    ExpectShapes(ticks.first(tickCount), expected.at("ticks"));
    auto quotes = ticks.subspan(tickCount);
    if (expected.at("chart_type") == "Line Chart" && !quotes.empty()) {
        EXPECT_EQ(quotes[0].What, Kind::Point);
        quotes = quotes.subspan(1);
    }
    ExpectShapes(quotes, expected.at("quotes"));
}

TEST(PrintChart, PrintsTheReferencePages) {
    auto const pages = tests::GoldenVector("printed_page");
    ASSERT_FALSE(pages.empty());
    for (auto const& expected : pages) {
        std::string const file = expected.at("file").is_null() ? "" : expected.at("file");
        SCOPED_TRACE(file + ", " + expected.at("chart_type").get<std::string>());
        ChartPrint print(file, expected.at("currency_format"));
        print.Settings.ChartType = expected.at("chart_type");
        print.Queue.Sheet.Width = expected.at("page_width");
        print.Queue.Sheet.CharacterWidth = expected.at("character_width");
        print.Queue.Sheet.LineHeight = expected.at("top_edge").get<double>() / 6; // six lines stand above
        ExpectPage(print.Page(), expected);
        EXPECT_EQ(print.Queue.Documents.at(0).Pages.size(), 1U);
        EXPECT_TRUE(print.Queue.Documents.at(0).IsEnded);
    }
}

TEST(PrintChart, SetsTitleDatesAndLabelsInBoldArial) {
    ChartPrint print("q026.txt");
    auto const& texts = print.Page().Texts;
    ASSERT_EQ(texts.size(), 2 + DivisionLines);
    for (std::size_t index = 0; index < texts.size(); ++index) {
        EXPECT_EQ(texts[index].Font, "Arial");
        EXPECT_TRUE(texts[index].IsBold);
        EXPECT_EQ(texts[index].Size, index == 0 ? 12 : index == 1 ? 10 : 8);
    }
    // Three lines of 12 points stand above the title, and one of 10 below the dates.
    EXPECT_NEAR(texts[0].Y, 3 * 276, Twip);
    EXPECT_NEAR(texts[1].Y, 4 * 276, Twip);
    EXPECT_NEAR(Drawn(print.Queue.Documents[0].Pages[0])[0].Coordinates[1], 4 * 276 + 2 * 230 - 25, Twip);
}

TEST(PrintChart, FramesTheChartAtAnOffset) {
    ChartPrint print("q026.txt");
    print.Queue.Sheet.CharacterWidth = 100;
    print.Queue.Sheet.LineHeight = 300;
    auto const drawn = Drawn(print.Page());
    double const left = Inch + 900 - 25;
    double const right = 12240 - Inch + 25;
    double const top = 1800 - 25;
    double const bottom = 1800 + 5760 + 25;
    json const lines = {{"line", left, top, right, top, 0},
                        {"line", right, top, right, bottom, 0},
                        {"line", right, bottom, left, bottom, 0},
                        {"line", left, bottom, left, top, 0}};
    for (std::size_t line = 0; line < FrameLines; ++line) {
        EXPECT_TRUE(tests::IsOperation(tests::OperationJson(drawn.at(line)), lines.at(line)));
    }
}

TEST(PrintChart, WithoutQuotesPrintsAnEmptyChart) {
    ChartPrint print;
    auto const& page = print.Page();
    ASSERT_EQ(page.Texts.size(), 1 + DivisionLines);
    EXPECT_EQ(page.Texts[0].Text, " to ");
    EXPECT_EQ(page.Texts[1].Text, "-8888888.00   ");
    EXPECT_EQ(page.Texts[9].Text, "8888888.00   ");
    EXPECT_EQ(Drawn(page).size(), FrameLines + DivisionLines);
    EXPECT_EQ(print.Queue.Documents[0].Name, "Quorvex chart");
    EXPECT_TRUE(print.Queue.Documents[0].IsEnded);
}

TEST(PrintChart, QuotesThatWereClosedAreNotPrinted) {
    ChartPrint print("q026.txt");
    print.Series->QuoteFileName.clear();
    print.Series->WorkingCount = 0;
    auto const& page = print.Page();
    EXPECT_EQ(page.Texts[0].Text, " to ");
    EXPECT_EQ(Drawn(page).size(), FrameLines + DivisionLines);
}

TEST(PrintChart, ALongNameMayRunPastTheLeftMargin) {
    ChartPrint print("q026.txt");
    print.Series->QuoteFileName = std::string(200, 'w') + ".txt";
    print.Queue.Sheet.CharacterWidth = 100;
    auto const& title = print.Page().Texts.at(0);
    EXPECT_EQ(title.Text, print.Series->QuoteFileName);
    EXPECT_NEAR(title.X, (12240 - 20400) / 2.0, Twip);
}

TEST(PrintChart, TheDocumentIsNamedAfterTheFile) {
    for (auto const& [file, document] :
         {std::pair{"Corn.Dec.txt", "Corn.Dec chart"}, {"corn", "corn chart"}}) {
        ChartPrint print("q026.txt");
        print.Series->QuoteFileName = file;
        print.Print();
        EXPECT_EQ(print.Queue.Documents.at(0).Name, document);
    }
}

TEST(PrintChart, FiveHundredDaysNeverOverlap) {
    for (std::string const type : {"Daily Bar Chart", "Candlestick Chart"}) {
        SCOPED_TRACE(type);
        ChartPrint print("q500.txt");
        print.Settings.ChartType = type;
        auto const drawn = Drawn(print.Page());
        constexpr std::size_t ShapesOfDay = 3;
        constexpr std::size_t Days = 500;
        ASSERT_EQ(drawn.size(), FrameLines + DivisionLines + Days + ShapesOfDay * Days);
        double previousRight = 0;
        for (std::size_t day = 0; day < Days; ++day) {
            double left = 1e9;
            double right = 0;
            for (std::size_t shape = 0; shape < ShapesOfDay; ++shape) {
                auto const& at = drawn[drawn.size() - ShapesOfDay * (Days - day) + shape].Coordinates;
                left = std::min({left, at[0], at[2]});
                right = std::max({right, at[0], at[2]});
            }
            EXPECT_GT(left, previousRight) << day;
            previousRight = right;
        }
        EXPECT_LT(previousRight, 12240 - Inch);
    }
}

TEST(PrintChart, AnyOtherChartTypeIsALine) {
    ChartPrint line("q026.txt");
    line.Settings.ChartType = "Line Chart";
    ChartPrint other("q026.txt");
    other.Settings.ChartType = "daily bar chart";
    auto const expected = Drawn(line.Page());
    auto const actual = Drawn(other.Page());
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t index = 0; index < expected.size(); ++index) {
        EXPECT_EQ(tests::OperationJson(actual[index]), tests::OperationJson(expected[index]));
    }
}

TEST(PrintChart, AFallingDayIsAFilledCandleAndAnUnchangedOneIsHollow) {
    ChartPrint print("q026.txt");
    print.Settings.ChartType = "Candlestick Chart";
    auto& days = print.Series->Working;
    days[1].Open = days[1].High;
    days[1].Close = days[1].Low;
    days[2].Close = days[2].Open;
    auto const drawn = Drawn(print.Page());
    std::size_t const first = FrameLines + DivisionLines + 26;
    EXPECT_TRUE(drawn.at(first + 2).Flag);
    EXPECT_FALSE(drawn.at(first + 5).Flag);
    EXPECT_EQ(drawn.at(first + 5).Coordinates[1], drawn.at(first + 5).Coordinates[3]);
}

TEST(PrintChart, TheHourglassShowsWhileItPrints) {
    ChartPrint print("q026.txt");
    print.Print();
    EXPECT_EQ(print.Queue.HourglassAtStart, std::vector<int>{1});
    EXPECT_EQ(print.Queue.HourglassCount, 0);
}

// What ends the printing with a printer error.
void ExpectPrinterError(ChartPrint& print) {
    auto const error = text::Trap([&print] { print.Print(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Printer error");
    EXPECT_EQ(print.Queue.HourglassCount, 0);
    EXPECT_FALSE(print.Queue.Documents.at(0).IsEnded);
}

TEST(PrintChart, AFailingPrinterEndsItAtAnyText) {
    for (int text = 1; text <= 6 + static_cast<int>(DivisionLines); ++text) {
        SCOPED_TRACE(text);
        ChartPrint print("q026.txt");
        print.Queue.Sheet.FailingText = text;
        ExpectPrinterError(print);
    }
}

TEST(PrintChart, AFailingPrinterEndsItAtAnyShape) {
    for (int shape : {1, 4, 5, 9, 13, 14, 39, 40, 117}) {
        SCOPED_TRACE(shape);
        ChartPrint print("q026.txt");
        print.Queue.Sheet.FailingShape = shape;
        ExpectPrinterError(print);
    }
}

TEST(PrintChart, ADocumentThatCannotBeSentIsAnError) {
    ChartPrint print("q026.txt");
    print.Queue.Sheet.IsEndFailing = true;
    ExpectPrinterError(print);
}

TEST(PrintChart, PricesWithoutARangeCannotBePrinted) {
    ChartPrint print("q026.txt");
    for (int day = 1; day <= 26; ++day) {
        print.Series->Working[day].High = 5;
        print.Series->Working[day].Low = 5;
    }
    auto const error = text::Trap([&print] { print.Print(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Division by zero");
    EXPECT_EQ(print.Queue.HourglassCount, 0);
    EXPECT_FALSE(print.Queue.Documents.at(0).IsEnded);
}

} // namespace
} // namespace quorvex::chart
