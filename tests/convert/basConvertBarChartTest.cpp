// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basConvertBarChart.h"

#include "Conversion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string_view>
#include <vector>

namespace quorvex::convert {
namespace {

using testing::ElementsAre;

ConversionResult ConvertFormat(BarchartFormat format, std::string const& source) {
    return Convert(source, BarchartLayout(format));
}

std::string LineOf(BarchartFormat format, std::string const& record) {
    return ConvertFormat(format, record + "\r\n").Output.value_or("refused");
}

auto RefusedRecord(int line) {
    return ElementsAre(
        ExclamationBox("Wrong number of fields!"),
        ExclamationBox("Invalid record at line " + std::to_string(line) + " in\nfile C:\\in.txt"));
}

TEST(Barchart, ConvertsARecordOfEachFormat) {
    std::map<BarchartFormat, std::pair<std::string, std::string>> const records = {
        {BarchartFormat::C,
         {"SP,32002,01/15/2002,114500,115000,114000,114800",
          "01/15/02, 114500, 115000, 114000, 114800, 0, 0"}},
        {BarchartFormat::D,
         {"SP,32002,01/15/2002,1145.00,1150.00,1140.00,1148.00",
          "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 0, 0"}},
        {BarchartFormat::E,
         {"SP20023,020115,114500,115000,114000,114800,25000,400000",
          "01/15/02, 114500, 115000, 114000, 114800, 25000, 400000"}},
        {BarchartFormat::F,
         {"SP,20023,020115,114500,115000,114000,114800,25000,400000",
          "01/15/02, 114500, 115000, 114000, 114800, 25000, 400000"}},
        {BarchartFormat::G,
         {"SP,32002,020115,1145.00,1150.00,1140.00,1148.00,25000,400000",
          "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000"}},
        {BarchartFormat::N,
         {"SPH2,020115,1145.00,1150.00,1140.00,1148.00,25000,400000",
          "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000"}},
        {BarchartFormat::S,
         {"SP_H2,020115,1145.00,1150.00,1140.00,1148.00,25000,400000",
          "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000"}},
        {BarchartFormat::Y,
         {"SPH2,020115,1145.00,1150.00,1140.00,1148.00",
          "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 0, 0"}},
    };
    ASSERT_EQ(records.size(), BarchartFormatCount);
    for (auto const& [format, record] : records) {
        EXPECT_EQ(LineOf(format, record.first), record.second + "\r\n");
    }
}

TEST(Barchart, TellsOfTheWrongCountBeforeTheInvalidRecord) {
    auto const result =
        ConvertFormat(BarchartFormat::N, "SPH2,020115,1,2,3,4,5,6\r\nSPH2,020116,1,2,3,4,5\r\n");
    EXPECT_EQ(result.Output, std::nullopt);
    EXPECT_THAT(result.Boxes, RefusedRecord(2));
}

TEST(Barchart, RefusesAnEFileWhoseFieldsAreSeparatedByBlanks) {
    EXPECT_THAT(ConvertFormat(BarchartFormat::E, "SP20023    020115    1    2    3    4    5    6\r\n").Boxes,
                RefusedRecord(1));
}

TEST(Barchart, RefusesADRecordWithAVolume) {
    EXPECT_EQ(LineOf(BarchartFormat::D, "SP,32002,01/15/2002,1,2,3,4"), "01/15/02, 1, 2, 3, 4, 0, 0\r\n");
    EXPECT_THAT(ConvertFormat(BarchartFormat::D, "SP,32002,01/15/2002,1,2,3,4,5\r\n").Boxes,
                RefusedRecord(1));
}

TEST(Barchart, RefusesDatesWithoutLeadingZeros) {
    for (auto const format : {BarchartFormat::C, BarchartFormat::D}) {
        EXPECT_THAT(ConvertFormat(format, "SP,32002,1/5/2002,1,2,3,4\r\n").Boxes,
                    ElementsAre(ExclamationBox("Invalid field value at line 1 in file\nC:\\in.txt")));
    }
}

TEST(Barchart, WritesTheLastTwoDigitsOfTheYear) {
    EXPECT_EQ(LineOf(BarchartFormat::Y, "S,000115,1,2,3,4"), "01/15/00, 1, 2, 3, 4, 0, 0\r\n");
    EXPECT_EQ(LineOf(BarchartFormat::C, "S,M,01/15/2002,1,2,3,4"), "01/15/02, 1, 2, 3, 4, 0, 0\r\n");
    EXPECT_EQ(LineOf(BarchartFormat::C, "S,M,01/15/1998,1,2,3,4"), "01/15/98, 1, 2, 3, 4, 0, 0\r\n");
}

TEST(Barchart, RefusesMonthsAndDaysThatAreNone) {
    for (auto const* date : {"021315", "020015", "020100", "020132", "", "texts"}) {
        auto const result = ConvertFormat(BarchartFormat::Y, "S," + std::string(date) + ",1,2,3,4\r\n");
        EXPECT_THAT(result.Boxes,
                    ElementsAre(ExclamationBox("Invalid field value at line 1 in file\nC:\\in.txt")));
        EXPECT_EQ(result.Output, std::nullopt);
    }
    EXPECT_EQ(LineOf(BarchartFormat::Y, "S,020231,1,2,3,4"), "02/31/02, 1, 2, 3, 4, 0, 0\r\n");
}

TEST(Barchart, CopiesPricesWhateverTheyAre) {
    EXPECT_EQ(LineOf(BarchartFormat::N, "S,020115,abc,, -1 ,1e3,x,"), "refused");
    EXPECT_EQ(LineOf(BarchartFormat::N, "S,020115,abc,, -1 ,1e3,x, y"), "01/15/02, abc, , -1, 1e3, x, y\r\n");
}

TEST(Barchart, TakesTheFirstFormatThatIsSelected) {
    auto const options = BarchartOptions();
    std::string letters;
    for (std::size_t index = 0; index < options.size(); ++index) {
        std::array<bool, BarchartFormatCount> selected{};
        selected.at(index) = true;
        EXPECT_EQ(ChosenFormat(selected), static_cast<BarchartFormat>(index + 1));
        letters += options.at(index).Letter;
    }
    EXPECT_EQ(letters, "CDEFGNSY");
    EXPECT_EQ(ChosenFormat({false, true, false, true, false, false, false, true}), BarchartFormat::D);
}

TEST(Barchart, TakesFormatYWhenNoneIsSelected) {
    EXPECT_EQ(ChosenFormat({}), BarchartFormat::Y);
}

TEST(Barchart, FindsFormatsByTheirLetters) {
    EXPECT_EQ(FormatOfLetter("C"), BarchartFormat::C);
    EXPECT_EQ(FormatOfLetter("Y"), BarchartFormat::Y);
    for (auto const* letter : {"", "c", "A", "CD", " C"}) {
        EXPECT_EQ(FormatOfLetter(letter), std::nullopt) << letter;
    }
}

TEST(Barchart, CaptionsKeepTheirRunsOfBlanks) {
    std::vector<std::string_view> captions;
    for (auto const& option : BarchartOptions()) {
        captions.push_back(option.Caption);
    }
    EXPECT_THAT(captions,
                ElementsAre("  C Format:        Symbol,   MYYYY,   mm/dd/yyyy,   "
                            "open,   high,   low,   close   (no decimal)",
                            "  D Format:        Symbol,   MYYYY,   mm/dd/yyyy,   "
                            "open,   high,   low,   close   (decimal)",
                            "  E Format:        SYYYYM    yymmdd    "
                            "open    high     low    close    volume    open interest   (no decimal)",
                            "  F Format:        Symbol,   YYYYM,   yymmdd,   "
                            "open,   high,   low,   close,   volume,   open interest   (no decimal)",
                            "  G Format:        Symbol,   MYYYY,   yymmdd,   "
                            "open,   high,   low,   close,   volume,   open interest   (decimal)",
                            "  N Format:        Symbol,   yymmdd,   "
                            "open,   high,   low,   close,   volume,   open interest   (decimal)",
                            "  S Format:        S_MY,     yymmdd,   "
                            "open,   high,   low,   close,   volume,   open interest   (decimal)",
                            "  Y Format:        SMY,      yymmdd,   "
                            "open,   high,   low,   close   (decimal)"));
}

TEST(Barchart, WindowSaysWhatFilesAreWanted) {
    auto const& texts = BarchartTexts();
    EXPECT_EQ(texts.Caption, "Data Conversion Utility - Barchart Files");
    EXPECT_EQ(texts.SourceCaption, "Barchart Source File Name");
    EXPECT_EQ(texts.DefaultName, "*.txt");
    EXPECT_EQ(texts.Filter,
              "Text Files (*.txt)|*.txt|Comma Separated Values (*.csv)|*.csv|All Files (*.*)|*.*");
    EXPECT_EQ(texts.Top,
              "\nBarchart provides quote data in over 10 different formats. Follow the instructions in their "
              "User Manual or On-Line Help and download quote files in any of the formats listed below. The "
              "download files must be single-contract expiration month and year. Aggregate files with more "
              "than one contract expiration month must be broken into single-contract files before running "
              "the Veltrano Analytical Suite data conversion utility.");
}

} // namespace
} // namespace quorvex::convert
