// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basConvertCustom.h"

#include "Conversion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace quorvex::convert {
namespace {

using platform::fake::ScriptedDialogs;
using testing::ElementsAre;
using testing::IsEmpty;

// The boxes of a check that fails.
std::vector<std::string> RefusalOf(CustomChoices const& choices) {
    ScriptedDialogs dialogs;
    EXPECT_FALSE(ReadDescription(choices, dialogs));
    return BoxesOf(dialogs);
}

CustomDescription DescriptionOf(CustomChoices const& choices) {
    ScriptedDialogs dialogs;
    auto const description = ReadDescription(choices, dialogs);
    EXPECT_THAT(dialogs.Messages, IsEmpty());
    return description.value();
}

ConversionResult ConvertCustom(CustomChoices const& choices, std::string const& source) {
    return Convert(source, CustomLayout(DescriptionOf(choices)));
}

std::string LineOf(CustomChoices const& choices, std::string const& record) {
    return ConvertCustom(choices, record + "\r\n").Output.value_or("refused");
}

TEST(CustomDescription, TakesTheInitialLayout) {
    auto const description = DescriptionOf(InitialChoices());
    EXPECT_EQ(description.FieldCount, 7);
    EXPECT_EQ(description.Delimiter, ",");
    EXPECT_EQ(description.DateFormat, "mm/dd/yy");
    EXPECT_THAT(description.Positions, ElementsAre(1, 2, 3, 4, 5, 6, 7));
    EXPECT_EQ(InitialChoices().Names[8], "not used");
    EXPECT_EQ(InitialChoices().Names[10], "not used");
}

TEST(CustomDescription, RecordsTheDelimiter) {
    std::map<std::string, std::string> const delimiters = {{"comma", ","}, {"tab", "\t"},      {"space", " "},
                                                           {"bar", "|"},   {"semicolon", ","}, {"", ","}};
    for (auto const& [name, delimiter] : delimiters) {
        CustomChoices choices = InitialChoices();
        choices.FieldDelimiter = name;
        EXPECT_EQ(DescriptionOf(choices).Delimiter, delimiter);
    }
}

TEST(CustomDescription, WantsEachPriceAndTheDateOnce) {
    std::vector<std::string> const names = {"date", "open", "high", "low", "close"};
    for (std::size_t index = 0; index < names.size(); ++index) {
        auto const expected = ElementsAre(ExclamationBox("Missing or duplicate " + names[index] + " field"));
        auto missing = names;
        missing[index] = "not used";
        EXPECT_THAT(RefusalOf(ChoicesOf(missing)), expected);
        auto twice = names;
        twice.push_back(names[index]);
        EXPECT_THAT(RefusalOf(ChoicesOf(twice)), expected);
    }
}

TEST(CustomDescription, WantsVolumeAndOpenInterestOnceAtMost) {
    EXPECT_THAT(RefusalOf(ChoicesOf({"date", "open", "high", "low", "close", "volume", "volume"})),
                ElementsAre(ExclamationBox("Duplicate volume field")));
    EXPECT_THAT(
        RefusalOf(ChoicesOf({"date", "open", "high", "low", "close", "open interest", "open interest"})),
        ElementsAre(ExclamationBox("Duplicate open interest field")));
    EXPECT_THAT(DescriptionOf(ChoicesOf({"date", "open", "high", "low", "close"})).Positions,
                ElementsAre(1, 2, 3, 4, 5, 0, 0));
}

TEST(CustomDescription, StopsAtTheFirstMistake) {
    EXPECT_THAT(RefusalOf(ChoicesOf({"open", "open", "volume", "volume"})),
                ElementsAre(ExclamationBox("Missing or duplicate date field")));
    EXPECT_THAT(RefusalOf(ChoicesOf({"date", "open", "high", "low", "close", "volume", "volume",
                                     "open interest", "open interest"})),
                ElementsAre(ExclamationBox("Duplicate volume field")));
}

TEST(CustomDescription, IgnoresRowsBeyondTheCountAndTextsThatAreNoName) {
    CustomChoices choices = ChoicesOf({"open", "high", "low", "close", "date"});
    choices.NumFields = "4";
    EXPECT_THAT(RefusalOf(choices), ElementsAre(ExclamationBox("Missing or duplicate date field")));
    choices = ChoicesOf({"date", "open", "high", "low", "close", "whatever", "Volume", "date"});
    choices.NumFields = "7";
    EXPECT_THAT(DescriptionOf(choices).Positions, ElementsAre(1, 2, 3, 4, 5, 0, 0));
}

TEST(CustomDescription, TellsOfACountThatCannotBe) {
    CustomChoices choices = InitialChoices();
    choices.NumFields = "11";
    EXPECT_THAT(RefusalOf(choices), ElementsAre(ExclamationBox("Subscript out of range")));
    choices.NumFields = "40000";
    EXPECT_THAT(RefusalOf(choices), ElementsAre(ExclamationBox("Overflow")));
    choices.NumFields = "";
    EXPECT_THAT(RefusalOf(choices), ElementsAre(ExclamationBox("Missing or duplicate date field")));
}

TEST(Custom, LeavesAQuoteFileAsItIsButForItsSeparators) {
    std::string const quotes = "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000\r\n";
    EXPECT_EQ(ConvertCustom(InitialChoices(), quotes).Output, quotes);
    EXPECT_EQ(LineOf(InitialChoices(), "01/15/02,1145.00,1150.00  ,1140.00,   1148.00,25000,400000"), quotes);
}

TEST(Custom, ReadsEveryDateFormat) {
    std::map<std::string, std::string> const dates = {{"mm/dd/yy", "01/15/02"}, {"mm/dd/yyyy", "01/15/2002"},
                                                      {"yy/mm/dd", "02/01/15"}, {"yyyy/mm/dd", "2002/01/15"},
                                                      {"yymmdd", "020115"},     {"yyyymmdd", "20020115"}};
    ASSERT_EQ(dates.size(), DateFormats.size());
    for (auto const& [format, date] : dates) {
        auto const choices = ChoicesOf({"date", "open", "high", "low", "close"}, format);
        EXPECT_EQ(LineOf(choices, date + ",1,2,3,4"), "01/15/02, 1, 2, 3, 4, 0, 0\r\n") << format;
    }
}

TEST(Custom, TakesTheCenturyForTheYearOfALongerDate) {
    auto const layout = ChoicesOf({"date", "open", "high", "low", "close"}, "mm/dd/yy");
    EXPECT_EQ(LineOf(layout, "11/05/1999,1,2,3,4"), "11/05/19, 1, 2, 3, 4, 0, 0\r\n");
}

TEST(Custom, RefusesEveryDateInAFormatThatIsNone) {
    EXPECT_EQ(LineOf(ChoicesOf({"date", "open", "high", "low", "close"}, "dd.mm.yy"), "15.01.02,1,2,3,4"),
              "refused");
}

TEST(Custom, TakesFieldsFromAnywhereInTheRecord) {
    auto const choices = ChoicesOf({"not used", "open interest", "low", "open", "close", "volume", "date",
                                    "high", "not used", "not used"},
                                   "yyyymmdd");
    EXPECT_EQ(LineOf(choices, "x,400,3,1,4,250,20020115,2,y,z"), "01/15/02, 1, 2, 3, 4, 250, 400\r\n");
}

TEST(Custom, WritesZeroForVolumesThatAreZeroEmptyOrNotThere) {
    EXPECT_EQ(LineOf(InitialChoices(), "01/15/02,1,2,3,4,0.00,-0"), "01/15/02, 1, 2, 3, 4, 0, 0\r\n");
    EXPECT_EQ(LineOf(InitialChoices(), "01/15/02,1,2,3,4,, "), "01/15/02, 1, 2, 3, 4, 0, 0\r\n");
    EXPECT_EQ(LineOf(InitialChoices(), "01/15/02,1,2,3,4,7.50,+8"), "01/15/02, 1, 2, 3, 4, 7.50, +8\r\n");
}

TEST(Custom, RefusesAVolumeThatIsNoNumber) {
    for (auto const* record : {"01/15/02,1,2,3,4,abc,1", "01/15/02,1,2,3,4,141.93K,1", "01/15/02,1,2,3,4,1,-",
                               "01/15/02,1,2,3,4,1e999,1"}) {
        auto const result = ConvertCustom(InitialChoices(), std::string(record) + "\r\n");
        EXPECT_EQ(result.Output, std::nullopt);
        EXPECT_THAT(result.Boxes,
                    ElementsAre(ExclamationBox("Invalid field value at line 1 in file\nC:\\in.txt")));
    }
}

TEST(Custom, CopiesPricesWhateverTheyAre) {
    EXPECT_EQ(LineOf(InitialChoices(), "01/15/02,abc,,-3, 1 2 ,5,6"), "01/15/02, abc, , -3, 1 2, 5, 6\r\n");
}

TEST(Custom, RefusesARecordOfAnotherCountWithOneMessage) {
    auto const result = ConvertCustom(InitialChoices(), "01/15/02,1,2,3,4,5,6\r\n01/16/02,1,2,3,4,5\r\n");
    EXPECT_EQ(result.Output, std::nullopt);
    EXPECT_THAT(result.Boxes, ElementsAre(ExclamationBox("Invalid record at line 2 in\nfile C:\\in.txt")));
}

TEST(Custom, SeparatesAtCommasWhateverTheDelimiter) {
    for (auto const& [delimiter, line] :
         {std::pair("tab", "01/15/02\t1\t2\t3\t4\t5\t6\r\n"), std::pair("space", "01/15/02 1 2 3 4 5 6\r\n"),
          std::pair("bar", "01/15/02|1|2|3|4|5|6\r\n")}) {
        CustomChoices choices = InitialChoices();
        choices.FieldDelimiter = delimiter;
        EXPECT_THAT(ConvertCustom(choices, line).Boxes,
                    ElementsAre(ExclamationBox("Invalid record at line 1 in\nfile C:\\in.txt")));
        EXPECT_EQ(LineOf(choices, "01/15/02,1,2,3,4,5,6"), "01/15/02, 1, 2, 3, 4, 5, 6\r\n");
    }
}

TEST(Custom, ShowsAsManyRowsAsTheCountSays) {
    EXPECT_EQ(ShownRows("1"), 1);
    EXPECT_EQ(ShownRows("10"), 10);
}

TEST(Custom, WindowSaysWhatAQuoteFileNeeds) {
    auto const& texts = CustomTexts();
    EXPECT_EQ(texts.Caption, "Data Conversion Utility - Custom Files");
    EXPECT_EQ(texts.SourceCaption, "Custom Source File Name");
    EXPECT_EQ(texts.DefaultName, "*.csv");
    EXPECT_EQ(texts.Filter,
              "Comma Separated Values (*.csv)|*.csv|Text Files (*.txt)|*.txt|All Files (*.*)|*.*");
    EXPECT_EQ(texts.Top, "Required Format:  Date (mm/dd/yy), Open, High, Low, Close, Volume (opt.), Open "
                         "Interest (opt.)  <CR>");
}

} // namespace
} // namespace quorvex::convert
