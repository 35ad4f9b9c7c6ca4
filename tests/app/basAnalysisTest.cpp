// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basAnalysis.h"

#include "RunningProgram.h"
#include "cycles/basCorrel.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <optional>

namespace quorvex::app {
namespace {

using platform::Icon;
using tests::GoldenFile;
using tests::IsOnlyMessage;
using tests::QuoteLines;

class Analysis : public testing::Test {
protected:
    std::optional<AnalysisResult> Run(std::string const& quotes, AnalysisRequest const& request = {}) {
        running.Files.Contents["C:\\Quorvex\\q.txt"] = quotes;
        running.Data->Quotes.QuoteFileName = "q.txt";
        return Analyse(*running.Data,
                       {.Grid = running.Grid,
                        .Files = running.Files,
                        .Dialogs = running.Dialogs,
                        .ParameterDialogs = running.Dialogs},
                       request);
    }

    [[nodiscard]] cycles::ChartStates const& States() const { return running.Data->Curves.States; }

    RunningProgram running;
};

TEST_F(Analysis, WithoutCyclesHasAMovingAverageOnly) {
    auto const result = Run(QuoteLines(30));
    ASSERT_TRUE(result);
    EXPECT_TRUE(States().MovingAverage.IsReady());
    EXPECT_FALSE(States().Composite.IsReady());
    EXPECT_FALSE(States().Residual.IsReady());
    EXPECT_FALSE(result->CorrelationCoefficient);
    EXPECT_EQ(result->CorrelationMessage.Text, "Insufficient data to perform correlation");
    EXPECT_FALSE(result->ForecastShown);
    EXPECT_TRUE(running.Dialogs.Messages.empty());
}

TEST_F(Analysis, OfARefusedFileIsNone) {
    EXPECT_FALSE(Run(QuoteLines(24)));
    EXPECT_EQ(running.Dialogs.Messages.size(), 1U);
}

TEST_F(Analysis, WithAFitHasEverything) {
    auto const result = Run(GoldenFile("quotes/q250.txt"), {std::nullopt, 3, "", ""});
    ASSERT_TRUE(result);
    EXPECT_TRUE(States().Residual.IsReady());
    EXPECT_EQ(result->Fits.size(), 3U);
    ASSERT_TRUE(result->CorrelationCoefficient);
    ASSERT_TRUE(result->ForecastShown);
    EXPECT_NE(result->ForecastShown->Values[25], 0);
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 2), "34");
    EXPECT_TRUE(running.Dialogs.Messages.empty());
}

TEST_F(Analysis, OfTwoFittedCyclesShowsTheirWeightsInPercent) {
    ASSERT_TRUE(Run(GoldenFile("quotes/q250.txt"), {std::nullopt, 2, "", ""}));
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "60");
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 2), "40");
    EXPECT_EQ(running.Data->Cycles.Cycles[1].Weight, 60);
}

TEST_F(Analysis, ReadsParametersThroughTheGrid) {
    running.Files.Contents["C:\\Quorvex\\p.dat"] = "1, 40.4, 10, 0\r\n3, 20, 5, 0\r\n";
    auto const result = Run(GoldenFile("quotes/q250.txt"), {"C:\\Quorvex\\p.dat", 0, "", ""});
    ASSERT_TRUE(result);
    EXPECT_EQ(running.Data->Cycles.Cycles[1].Weight, 25);
    EXPECT_EQ(running.Data->Cycles.Cycles[1].Period, 40);
    EXPECT_TRUE(States().Composite.IsReady());
    EXPECT_TRUE(result->Fits.empty());
}

TEST_F(Analysis, GoesOnAfterAnUnreadableParameterFile) {
    auto const result = Run(QuoteLines(30), {"C:\\Quorvex\\gone.dat", 0, "", ""});
    ASSERT_TRUE(result);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "File not found", "Quorvex", Icon::None));
    EXPECT_TRUE(States().MovingAverage.IsReady());
    EXPECT_FALSE(States().Composite.IsReady());
}

TEST_F(Analysis, FollowsANarrowedRange) {
    auto const result = Run(GoldenFile("quotes/q250.txt"), {std::nullopt, 1, "08/05/99", ""});
    ASSERT_TRUE(result);
    EXPECT_EQ(running.Data->Quotes.FirstQuoteDate, "08/05/99");
    EXPECT_EQ(running.Data->Quotes.LastQuoteDate, "01/06/00");
    EXPECT_LT(running.Data->Quotes.WorkingCount, 250);
    ASSERT_TRUE(result->ForecastShown);
    EXPECT_EQ(result->ForecastShown->Dates[1], "01/07/00");
}

TEST_F(Analysis, OfAShortRangeForecastsBehindItsLastDay) {
    auto const result = Run(GoldenFile("quotes/q250.txt"), {std::nullopt, 1, "08/05/99", "08/12/99"});
    ASSERT_TRUE(result);
    EXPECT_EQ(running.Data->Quotes.WorkingCount, 6);
    ASSERT_TRUE(result->ForecastShown);
    EXPECT_EQ(result->ForecastShown->Dates[1], "08/13/99");
}

TEST_F(Analysis, RefusesADateThatIsNone) {
    EXPECT_FALSE(Run(QuoteLines(30), {std::nullopt, 0, "nonsense", ""}));
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Type mismatch", "Quorvex", Icon::None));
}

TEST_F(Analysis, RefusesDaysThatThereAreNot) {
    struct Case {
        std::string Start;
        std::string End;
        std::string Message;
    };

    for (Case const& refused :
         {Case{"01/01/25", "", "No quote is dated 01/01/25 or later"},
          Case{"", "01/01/90", "The start date must lie before the end date"},
          Case{"08/05/99", "08/05/99", "The start date must lie before the end date"},
          Case{"08/12/99", "08/05/99", "The start date must lie before the end date"}}) {
        SCOPED_TRACE(refused.Start + " to " + refused.End);
        running.Dialogs.Messages.clear();
        EXPECT_FALSE(Run(GoldenFile("quotes/q250.txt"), {std::nullopt, 0, refused.Start, refused.End}));
        EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, refused.Message, "Quorvex", Icon::Exclamation));
    }
}

TEST_F(Analysis, OfPricesWithoutARangeFitsTheirMovingAverage) {
    std::string text;
    for (int day = 1; day <= 28; ++day) {
        text += "01/" + std::to_string(day) + "/02, 5, 5, 5, " + std::to_string(5 + day % 7 * day % 5) +
                ", 1, 1\r\n";
    }
    auto const result = Run(text, {std::nullopt, 2, "", ""});
    ASSERT_TRUE(result);
    EXPECT_TRUE(States().MovingAverage.IsReady());
    EXPECT_FALSE(States().Residual.IsReady());
}

TEST_F(Analysis, ReportsAMovingAverageLongerThanTheSeries) {
    running.Data->Settings.MovingAverageIndex = "101";
    auto const result = Run(QuoteLines(30));
    ASSERT_TRUE(result);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Subscript out of range", "Quorvex", Icon::None));
    EXPECT_FALSE(States().MovingAverage.IsReady());
    EXPECT_FALSE(result->CorrelationCoefficient);
}

TEST_F(Analysis, RefusesALastDayThatNoQuoteBears) {
    EXPECT_FALSE(Run(GoldenFile("quotes/q250.txt"), {std::nullopt, 1, "08/05/99", "08/14/99"}));
    EXPECT_TRUE(
        IsOnlyMessage(running.Dialogs.Messages, "No quote is dated 08/14/99", "Quorvex", Icon::Exclamation));
}

TEST_F(Analysis, HasThePropertiesOfTheQuotes) {
    auto const result = Run(QuoteLines(30));
    ASSERT_TRUE(result);
    ASSERT_TRUE(result->Properties);
    EXPECT_EQ(result->Properties->size(), 10U);
}

TEST_F(Analysis, OfPricesTooWideApartLacksTheirPropertiesOnly) {
    running.Data->Settings.CurrencyFormat = "";
    auto const result = Run("03/05/02, 1e-308, 1e308, -1e308, -1, 0, 0\r\n" + QuoteLines(30));
    ASSERT_TRUE(result);
    EXPECT_FALSE(result->Properties);
    ASSERT_FALSE(running.Dialogs.Messages.empty());
    EXPECT_EQ(running.Dialogs.Messages.back().Text, "Overflow");
}

TEST_F(Analysis, ReportsAFitThatFails) {
    std::string flat;
    for (int day = 1; day <= 28; ++day) {
        flat += "01/" + std::to_string(day) + "/02, 5, 6, 4, 5, 1, 1\r\n";
    }
    auto const result = Run(flat, {std::nullopt, 2, "", ""});
    ASSERT_TRUE(result);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Division by zero", "Quorvex", Icon::None));
    EXPECT_TRUE(States().MovingAverage.IsReady());
    EXPECT_FALSE(States().Composite.IsReady());
    EXPECT_FALSE(result->ForecastShown);
}

TEST_F(Analysis, CorrelatesTheCurvesThatItComputed) {
    running.Files.Contents["C:\\Quorvex\\p.dat"] = "40, 64, -30, 5\r\n26, 69, -7, 0\r\n0, 30, 5, 0\r\n";
    auto const result = Run(GoldenFile("quotes/q060.txt"), {"C:\\Quorvex\\p.dat", 0, "", ""});
    ASSERT_TRUE(result);
    ASSERT_TRUE(result->CorrelationCoefficient);
    EXPECT_EQ(result->CorrelationCoefficient,
              cycles::CoefficientOfCorrelation(running.Data->Curves, running.Data->Quotes.WorkingCount));
    EXPECT_EQ(result->CorrelationMessage.Title, "Quorvex - Coefficient of Correlation");
}

} // namespace
} // namespace quorvex::app
