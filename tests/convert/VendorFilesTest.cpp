// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Files in the forms that vendors really hand out: those that a layout describes are converted and then load
// as quotes; the others are refused at the right line.

#include "Conversion.h"
#include "convert/basConvertBarChart.h"
#include "convert/basConvertCSI.h"
#include "convert/basConvertCustom.h"
#include "quotes/basDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace quorvex::convert {
namespace {

using platform::fake::MemoryFiles;
using platform::fake::ScriptedDialogs;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int Days = 30;

// One line for each of so many days of April 2019, oldest first; `line` gets the day as two digits.
std::string LinesOf(std::function<std::string(std::string const& day)> const& line) {
    std::string text;
    for (int day = 1; day <= Days; ++day) {
        text += line((day < 10 ? "0" : "") + std::to_string(day)) + "\r\n";
    }
    return text;
}

CustomLayout CustomOf(std::vector<std::string> const& names, std::string const& dateFormat) {
    ScriptedDialogs dialogs;
    return CustomLayout(ReadDescription(ChoicesOf(names, dateFormat), dialogs).value());
}

// Converts the text, loads the result, and looks at its first and last day.
void ExpectLoads(std::string const& source, SourceLayout const& layout, double volume, double openInterest) {
    auto const result = Convert(source, layout);
    ASSERT_THAT(result.Boxes, ElementsAre(InformationBox("Data file C:\\out.txt created successfully")));
    MemoryFiles files;
    ScriptedDialogs dialogs;
    settings::Settings const settings = settings::DefaultSettings("C:\\");
    auto const series = std::make_unique<quotes::QuoteSeries>();
    files.Contents["C:\\out.txt"] = result.Output.value();
    series->QuoteFileName = "out.txt";
    ASSERT_EQ(quotes::LoadQuoteFile(*series, settings, files, dialogs), Days);
    EXPECT_THAT(dialogs.Messages, IsEmpty());
    EXPECT_EQ(series->FirstQuoteDate, "04/01/19");
    EXPECT_EQ(series->LastQuoteDate, "04/30/19");
    auto const& last = series->Working[Days];
    EXPECT_EQ(last.Open, 502.25);
    EXPECT_EQ(last.High, 503.75);
    EXPECT_EQ(last.Low, 471.5);
    EXPECT_EQ(last.Close, 476.25);
    EXPECT_EQ(last.Volume, volume);
    EXPECT_EQ(last.OpenInterest, openInterest);
}

std::vector<std::string> BoxesOfRefusal(std::string const& source, SourceLayout const& layout) {
    auto const result = Convert(source, layout);
    EXPECT_EQ(result.Output, std::nullopt);
    return result.Boxes;
}

auto BadValueAt(int line) {
    return ElementsAre(
        ExclamationBox("Invalid field value at line " + std::to_string(line) + " in file\nC:\\in.txt"));
}

auto BadRecordAt(int line) {
    return ElementsAre(
        ExclamationBox("Invalid record at line " + std::to_string(line) + " in\nfile C:\\in.txt"));
}

TEST(VendorFiles, OfSymbolMonthAndPricesAreBarchartD) {
    BarchartLayout const layout(BarchartFormat::D);
    ExpectLoads(
        LinesOf([](auto const& day) { return "W,H2020,04/" + day + "/2019,502.25,503.75,471.50,476.25"; }),
        layout, 0, 0);
    // Lines of volumes between those of prices.
    EXPECT_THAT(
        BoxesOfRefusal("W,H2020,04/01/2019,1,2,3,4\r\nW,h2020,04/01/2019,72159,143258,60140\r\n", layout),
        ElementsAre(ExclamationBox("Wrong number of fields!"),
                    ExclamationBox("Invalid record at line 2 in\nfile C:\\in.txt")));
}

TEST(VendorFiles, OfSymbolMonthPricesAndVolumesAreBarchartFOrG) {
    auto const source = LinesOf(
        [](auto const& day) { return "W,2020H,1904" + day + ",502.25,503.75,471.50,476.25,72159,143258"; });
    ExpectLoads(source, BarchartLayout(BarchartFormat::F), 72159, 143258);
    ExpectLoads(source, BarchartLayout(BarchartFormat::G), 72159, 143258);
}

TEST(VendorFiles, OfContractPricesAndVolumesAreBarchartN) {
    ExpectLoads(LinesOf([](auto const& day) {
                    return "WH0,1904" + day + ",502.25,503.75,471.50,476.25,72159,143258";
                }),
                BarchartLayout(BarchartFormat::N), 72159, 143258);
}

TEST(VendorFiles, OfCsiAreConverted) {
    ExpectLoads(
        LinesOf([](auto const& day) { return "201904" + day + ",502.25,503.75,471.50,476.25,72159,143258"; }),
        CsiLayout(), 72159, 143258);
}

TEST(VendorFiles, OfCsiWithTotalsAreCustomFiles) {
    auto const source = LinesOf([](auto const& day) {
        return "201904" + day + ",502.25,503.75,471.50,476.25,72159,143258,144318,286516";
    });
    EXPECT_THAT(BoxesOfRefusal(source, CsiLayout()), BadRecordAt(1));
    ExpectLoads(
        source,
        CustomOf({"date", "open", "high", "low", "close", "volume", "open interest", "not used", "not used"},
                 "yyyymmdd"),
        72159, 143258);
}

TEST(VendorFiles, WithALineOfHeadingsAreRefusedAtIt) {
    auto const layout = CustomOf(
        {"date", "not used", "open", "high", "low", "close", "volume", "open interest"}, "mm/dd/yyyy");
    auto const days = LinesOf(
        [](auto const& day) { return "04/" + day + "/2019,13:20,502.25,503.75,471.50,476.25,72159,143258"; });
    EXPECT_THAT(
        BoxesOfRefusal("\"Date\",\"Time\",\"Open\",\"High\",\"Low\",\"Close\",\"Vol\",\"OI\"\r\n" + days,
                       layout),
        BadValueAt(1));
    ExpectLoads(days, layout, 72159, 143258);
}

TEST(VendorFiles, OfTenFieldsAreCustomFiles) {
    ExpectLoads(LinesOf([](auto const& day) {
                    return "ZW.F,D,201904" + day + ",000000,502.25,503.75,471.50,476.25,72159,143258";
                }),
                CustomOf({"not used", "not used", "date", "not used", "open", "high", "low", "close",
                          "volume", "open interest"},
                         "yyyymmdd"),
                72159, 143258);
}

TEST(VendorFiles, WithDashesInDatesOfFourDigitYearsAreCustomFiles) {
    ExpectLoads(
        LinesOf([](auto const& day) {
            return "2019-04-" + day + ",502.25,503.75,471.5,476.5,,476.25,,143258.0";
        }),
        CustomOf({"date", "open", "high", "low", "not used", "not used", "close", "volume", "open interest"},
                 "yyyy/mm/dd"),
        0, 143258);
}

TEST(VendorFiles, OfRaggedLinesAreRefusedAtTheFirstThatDiffers) {
    auto const layout = CustomOf({"date", "open", "high", "low", "close"}, "yyyy/mm/dd");
    EXPECT_THAT(
        BoxesOfRefusal("1985-01-02,26,26,25.73,25.81\r\n1985-01-03,25.96,26.01,25.65,25.79,7\r\n", layout),
        BadRecordAt(2));
}

TEST(VendorFiles, WithAFooterAreRefusedAtIt) {
    auto const layout =
        CustomOf({"date", "open", "high", "low", "close", "not used", "volume", "open interest"}, "mm/dd/yy");
    auto const days =
        LinesOf([](auto const& day) { return "04/" + day + "/19,502.25,503.75,471.50,476.25,5.1,7,8"; });
    EXPECT_THAT(BoxesOfRefusal(days + "\"Downloaded from a vendor as of 08-02-2022\"\r\n", layout),
                BadRecordAt(Days + 1));
}

TEST(VendorFiles, WhoseFieldsAreQuotedAreRefused) {
    auto const layout =
        CustomOf({"date", "close", "open", "high", "low", "not used", "not used"}, "mm/dd/yyyy");
    EXPECT_THAT(
        BoxesOfRefusal("\xEF\xBB\xBF\"04/01/2019\",\"1\",\"2\",\"3\",\"4\",\"5K\",\"0%\"\r\n", layout),
        BadValueAt(1));
    EXPECT_THAT(BoxesOfRefusal("\"04/01/2019\",\"1,612.34\",\"2\",\"3\",\"4\",\"5K\",\"0%\"\r\n", layout),
                BadRecordAt(1));
}

TEST(VendorFiles, WithAByteOrderMarkAreConverted) {
    ExpectLoads("\xEF\xBB\xBF" + LinesOf([](auto const& day) {
                    return "201904" + day + ",502.25,503.75,471.50,476.25,72159,143258";
                }),
                CsiLayout(), 72159, 143258);
}

} // namespace
} // namespace quorvex::convert
