// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Conversion.h"

#include "support/Messages.h"

#include <gtest/gtest.h>

namespace quorvex::convert {

std::vector<std::string> BoxesOf(platform::fake::ScriptedDialogs const& dialogs) {
    return tests::DescribeAll(dialogs.Messages);
}

std::string InformationBox(std::string const& text) {
    return "Data Conversion Utility|information|" + text;
}

std::string ExclamationBox(std::string const& text) {
    return "Data Conversion Utility|exclamation|" + text;
}

void ConvertUsualNames(SourceLayout const& layout, platform::fake::MemoryFiles& files,
                       platform::fake::ScriptedDialogs& dialogs) {
    ConvertDataFile(UsualNames, layout, files, dialogs);
    EXPECT_EQ(files.OpenCount(), 0U);
}

ConversionResult Convert(std::string const& source, SourceLayout const& layout) {
    platform::fake::MemoryFiles files;
    platform::fake::ScriptedDialogs dialogs;
    files.Contents[UsualNames.Source] = source;
    ConvertUsualNames(layout, files, dialogs);
    ConversionResult result;
    if (files.Contents.contains(UsualNames.Destination)) {
        result.Output = files.Contents[UsualNames.Destination];
    }
    EXPECT_EQ(files.Contents[UsualNames.Source], source);
    result.Boxes = BoxesOf(dialogs);
    return result;
}

CustomChoices ChoicesOf(std::vector<std::string> const& names, std::string const& dateFormat) {
    CustomChoices choices = InitialChoices();
    choices.Names.Fill(std::string(NotUsed));
    choices.NumFields = std::to_string(names.size());
    choices.DateFormat = dateFormat;
    std::int16_t row = 0;
    for (std::string const& name : names) {
        choices.Names[++row] = name;
    }
    return choices;
}

} // namespace quorvex::convert
