// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "prefs/basPreferences.h"

#include "platform/fake/MemoryProfile.h"
#include "platform/fake/ScriptedDialogs.h"
#include "quotes/basQuotes.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace quorvex::prefs {
namespace {

using platform::Icon;
using quotes::QuoteSeries;
using testing::ElementsAre;

settings::Settings SomeSettings() {
    return {"C:\\Quotes\\", "Line Chart", "OHLC Average", "7", "####0.0"};
}

std::vector<std::string> TextsOf(settings::Settings const& settings) {
    std::vector<std::string> texts;
    for (settings::SettingRow const& row : settings::SettingTable()) {
        texts.push_back(settings.*row.Member);
    }
    return texts;
}

TEST(OpenPreferences, ShowsTheSettingsAndTheQuotes) {
    auto const series = tests::SeriesOf(tests::QuoteLines(40));
    auto const fields = OpenPreferences(SomeSettings(), *series);
    EXPECT_EQ(TextsOf(fields.Boxes), TextsOf(SomeSettings()));
    ASSERT_EQ(fields.QuoteDates.size(), 40U);
    EXPECT_EQ(fields.QuoteDates.front(), "01/01/01");
    EXPECT_EQ(fields.QuoteDates[5], "01/08/01");
    EXPECT_EQ(fields.Range.Start, "01/01/01");
    EXPECT_EQ(fields.Range.End, "02/23/01");
    EXPECT_EQ(fields.ShownNumQuotes, "40");
    EXPECT_EQ(fields.WholeNumQuotes, "");
}

TEST(OpenPreferences, ShowsTheDaysThatAreAnalysedAndOffersAll) {
    auto const series = tests::SeriesOf(tests::QuoteLines(40));
    quotes::DateRange range{"01/08/01", "01/19/01"};
    quotes::AdjustQuoteDateRange(*series, range);
    auto const fields = OpenPreferences(SomeSettings(), *series);
    EXPECT_EQ(fields.Range.Start, "01/08/01");
    EXPECT_EQ(fields.Range.End, "01/19/01");
    EXPECT_EQ(fields.ShownNumQuotes, "10");
    EXPECT_EQ(fields.QuoteDates.size(), 40U);
}

TEST(OpenPreferences, ShowsNoDatesWithoutQuotes) {
    auto const closed = tests::SeriesOf(tests::QuoteLines(40));
    quotes::CloseQuoteFile(*closed);
    auto const fresh = std::make_unique<QuoteSeries>();
    for (QuoteSeries const* none : {closed.get(), fresh.get()}) {
        auto const fields = OpenPreferences(SomeSettings(), *none);
        EXPECT_TRUE(fields.QuoteDates.empty());
        EXPECT_EQ(fields.Range.Start, "");
        EXPECT_EQ(fields.Range.End, "");
        EXPECT_EQ(fields.ShownNumQuotes, "0");
    }
}

TEST(Preferences, ChartTypeAndDataSourceTakeEffectAtOnceAndAlone) {
    settings::Settings settings = SomeSettings();
    PreferencesFields fields;
    fields.Boxes = {"D:\\", "Pie", "Open Only", "1", "0"};
    ChooseChartType(fields, settings);
    EXPECT_THAT(TextsOf(settings), ElementsAre("C:\\Quotes\\", "Pie", "OHLC Average", "7", "####0.0"));
    ChooseDataSource(fields, settings);
    EXPECT_THAT(TextsOf(settings), ElementsAre("C:\\Quotes\\", "Pie", "Open Only", "7", "####0.0"));
}

TEST(ChooseDateRange, FollowsTheReferenceSteps) {
    std::unique_ptr<QuoteSeries> series;
    std::string file;
    auto const steps = tests::GoldenVector("date_range");
    ASSERT_FALSE(steps.empty());
    for (auto const& step : steps) {
        SCOPED_TRACE(step.dump());
        if (step.at("file") != file) {
            file = step.at("file");
            series = tests::GoldenSeries(file, step.at("currency_format").get<std::string>());
        }
        PreferencesFields fields;
        fields.Range = {step.at("start"), step.at("end")};
        ChooseDateRange(fields, *series);
        EXPECT_EQ(series->WorkingCount, step.at("count"));
        EXPECT_EQ(fields.Range.Start, step.at("start_text"));
        EXPECT_EQ(fields.Range.End, step.at("end_text"));
        auto const shown = step.at("txtNumQuotes");
        auto const whole = step.at("lblNumQuotes");
        EXPECT_EQ(fields.ShownNumQuotes, shown.is_null() ? "" : shown.get<std::string>());
        EXPECT_EQ(fields.WholeNumQuotes, whole.is_null() ? "" : whole.get<std::string>());
    }
}

TEST(ChooseDateRange, RunsFromTheStartToTheEnd) {
    std::string lines;
    for (char const* const date : {"01/09/02", "01/11/02", "01/15/02", "01/18/02", "01/20/02", "01/22/02"}) {
        lines += std::string(date) + ", 1, 2, 1, 2, 0, 0\r\n";
    }
    auto const series = tests::SeriesOf(lines);
    auto fields = OpenPreferences(SomeSettings(), *series);
    fields.Range = {"01/10/02", "01/20/02"};
    ChooseDateRange(fields, *series);
    EXPECT_EQ(fields.ShownNumQuotes, "4");
    EXPECT_EQ(series->FirstQuoteDate, "01/11/02");
    EXPECT_EQ(series->LastQuoteDate, "01/20/02");
    EXPECT_EQ(fields.Range.Start, "01/10/02");
}

TEST(ChooseDateRange, AnEndOnTheStartShowsTheWholeSeries) {
    auto const series = tests::SeriesOf(tests::QuoteLines(40));
    auto fields = OpenPreferences(SomeSettings(), *series);
    fields.Range = {"01/08/01", "01/19/01"};
    ChooseDateRange(fields, *series);
    fields.Range.End = "01/08/01";
    ChooseDateRange(fields, *series);
    EXPECT_EQ(series->WorkingCount, 40);
    EXPECT_EQ(fields.Range.Start, "01/01/01");
    EXPECT_EQ(fields.Range.End, "02/23/01");
    EXPECT_EQ(fields.ShownNumQuotes, "10");
    EXPECT_EQ(fields.WholeNumQuotes, "40");
}

TEST(ChooseDateRange, ATextThatIsNoDateLeavesEverything) {
    auto const series = tests::SeriesOf(tests::QuoteLines(40));
    auto fields = OpenPreferences(SomeSettings(), *series);
    fields.Range = {"01/08/01", "01/19/01"};
    ChooseDateRange(fields, *series);
    for (quotes::DateRange const& range :
         {quotes::DateRange{"soon", "01/19/01"}, quotes::DateRange{"01/08/01", ""},
          quotes::DateRange{"02/30/01", "01/01/01"}}) {
        fields.Range = range;
        ChooseDateRange(fields, *series);
        EXPECT_EQ(series->WorkingCount, 10);
        EXPECT_EQ(series->FirstQuoteDate, "01/08/01");
        EXPECT_EQ(fields.ShownNumQuotes, "10");
        EXPECT_EQ(fields.WholeNumQuotes, "");
        EXPECT_EQ(fields.Range.Start, range.Start);
        EXPECT_EQ(fields.Range.End, range.End);
    }
}

TEST(SaveSettings, TakesTheTextsOverAndWritesThem) {
    platform::fake::MemoryProfile profile;
    platform::fake::ScriptedDialogs dialogs;
    settings::Settings settings = SomeSettings();
    PreferencesFields fields;
    fields.Boxes = {"D:\\Data", "typed", "typed too", "forty", "0.0;-"};
    EXPECT_TRUE(SaveSettings(fields, settings, profile, dialogs));
    EXPECT_THAT(TextsOf(settings), ElementsAre("D:\\Data\\", "typed", "typed too", "forty", "0.0;-"));
    ASSERT_EQ(profile.Entries.size(), 5U);
    EXPECT_EQ(profile.Entries[0].Value, "D:\\Data\\");
    EXPECT_EQ(profile.Entries[4].Value, "0.0;-");
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST(SaveSettings, ShowsTheFaultOfWriting) {
    platform::fake::MemoryProfile profile;
    profile.BreakWriting = text::Fault::PermissionDenied;
    platform::fake::ScriptedDialogs dialogs;
    settings::Settings settings = SomeSettings();
    PreferencesFields fields;
    fields.Boxes = {"D:\\", "a", "b", "c", "d"};
    EXPECT_FALSE(SaveSettings(fields, settings, profile, dialogs));
    EXPECT_TRUE(tests::IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
    EXPECT_EQ(settings.ChartType, "a");
}

TEST(RestoreDefaults, PutsTheDefaultsIntoAllBoxesButTheDataPath) {
    auto const series = tests::SeriesOf(tests::QuoteLines(40));
    auto fields = OpenPreferences(SomeSettings(), *series);
    fields.Boxes.DataPath = "as typed";
    fields.Range = {"01/08/01", "01/19/01"};
    ChooseDateRange(fields, *series);
    RestoreDefaults(fields, *series);
    EXPECT_THAT(TextsOf(fields.Boxes),
                ElementsAre("as typed", "Daily Bar Chart", "Close Only", "3", "####0.00"));
    EXPECT_EQ(fields.Range.Start, "01/01/01");
    EXPECT_EQ(fields.Range.End, "02/23/01");
    EXPECT_EQ(fields.ShownNumQuotes, "40");
    EXPECT_EQ(series->WorkingCount, 40);
    EXPECT_EQ(series->LastQuoteDate, "02/23/01");
}

TEST(RestoreDefaults, OfASeriesThatRunsBackwardsShowsTheWholeSeries) {
    auto const series = tests::SeriesOf("01/05/01, 1, 2, 1, 2, 0, 0\r\n01/04/01, 1, 2, 1, 2, 0, 0\r\n");
    auto fields = OpenPreferences(SomeSettings(), *series);
    RestoreDefaults(fields, *series);
    EXPECT_EQ(fields.Range.Start, "01/05/01");
    EXPECT_EQ(fields.Range.End, "01/04/01");
    EXPECT_EQ(fields.WholeNumQuotes, "2");
}

TEST(RestoreDefaults, WithoutQuotesLeavesTheDates) {
    auto const none = std::make_unique<QuoteSeries>();
    auto fields = OpenPreferences(SomeSettings(), *none);
    fields.Range = {"typed", "typed"};
    RestoreDefaults(fields, *none);
    EXPECT_EQ(fields.Boxes.CurrencyFormat, "####0.00");
    EXPECT_EQ(fields.Range.Start, "typed");
    EXPECT_EQ(fields.ShownNumQuotes, "0");
}

TEST(ExitPreferences, TakesTheTextsOverWithASeparatorForTheDataPath) {
    settings::Settings settings = SomeSettings();
    PreferencesFields fields;
    fields.Boxes = {"/home/ann/quotes", "", "x", "1.5", " "};
    ExitPreferences(fields, settings);
    EXPECT_THAT(TextsOf(settings), ElementsAre("/home/ann/quotes/", "", "x", "1.5", " "));
    EXPECT_EQ(fields.Boxes.DataPath, "/home/ann/quotes");
}

} // namespace
} // namespace quorvex::prefs
