// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Every reference conversion, from the texts of a window to its messages and the bytes written.

#include "Conversion.h"
#include "convert/basConvertBarChart.h"
#include "convert/basConvertCSI.h"
#include "convert/basConvertCustom.h"
#include "support/Golden.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvex::convert {
namespace {

using nlohmann::json;
using platform::fake::MemoryFiles;
using platform::fake::ScriptedDialogs;

BarchartLayout LayoutOfSelection(json const& letters) {
    std::array<bool, BarchartFormatCount> selected{};
    for (std::size_t index = 0; index < selected.size(); ++index) {
        std::string const letter(1, BarchartOptions().at(index).Letter);
        selected.at(index) = std::find(letters.begin(), letters.end(), letter) != letters.end();
    }
    return BarchartLayout(ChosenFormat(selected));
}

CustomChoices ChoicesOfEntry(json const& entry) {
    CustomChoices choices;
    choices.NumFields = entry.at("num_fields");
    choices.FieldDelimiter = entry.at("delimiter");
    choices.DateFormat = entry.at("date_format");
    for (std::int16_t row = 1; row <= MostFields; ++row) {
        choices.Names[row] = entry.at("rows").at(static_cast<std::size_t>(row) - 1);
    }
    return choices;
}

// What cmdConvert of the window does.
void RunWindow(json const& entry, MemoryFiles& files, ScriptedDialogs& dialogs) {
    FileNames const names = {entry.at("source_name"), entry.at("destination_name")};
    if (!ValidateFileNames(names, dialogs)) {
        return;
    }
    if (entry.at("window") == "barchart") {
        ConvertDataFile(names, LayoutOfSelection(entry.at("selected")), files, dialogs);
    } else if (entry.at("window") == "csi") {
        ConvertDataFile(names, CsiLayout(), files, dialogs);
    } else if (auto const description = ReadDescription(ChoicesOfEntry(entry), dialogs)) {
        ConvertDataFile(names, CustomLayout(*description), files, dialogs);
    }
}

std::string WithBareLineFeeds(std::string text) {
    std::erase(text, '\r');
    return text;
}

void ExpectMessages(json const& expected, std::vector<platform::Message> const& shown) {
    ASSERT_EQ(shown.size(), expected.size());
    for (std::size_t index = 0; index < shown.size(); ++index) {
        EXPECT_EQ(shown[index].Text, WithBareLineFeeds(expected[index].at("text")));
        EXPECT_EQ(shown[index].Title, expected[index].at("title"));
        EXPECT_EQ(shown[index].Shown, tests::IconNamed(expected[index].at("icon")));
        EXPECT_EQ(shown[index].Offered, platform::Buttons::Ok);
    }
}

TEST(ReferenceConversions, AgreeByteForByte) {
    auto const entries = tests::GoldenVector("converters");
    ASSERT_EQ(entries.size(), 101U);
    for (auto const& entry : entries) {
        SCOPED_TRACE(entry.at("case").get<std::string>());
        MemoryFiles files;
        ScriptedDialogs dialogs;
        files.Contents[entry.at("source_name")] =
            tests::GoldenFile("convert/" + entry.at("source_file").get<std::string>());
        RunWindow(entry, files, dialogs);
        EXPECT_EQ(files.OpenCount(), 0U);
        ExpectMessages(entry.at("messages"), dialogs.Messages);
        auto const output = files.Contents.find(entry.at("destination_name"));
        bool const isSource = entry.at("destination_name") == entry.at("source_name");
        if (entry.at("output").is_null()) {
            EXPECT_TRUE(isSource || output == files.Contents.end());
        } else {
            ASSERT_NE(output, files.Contents.end());
            EXPECT_EQ(output->second, entry.at("output").get<std::string>());
        }
    }
}

} // namespace
} // namespace quorvex::convert
