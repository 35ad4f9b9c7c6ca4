// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// One run of a converter on files in memory.
#pragma once

#include "convert/basConvertCustom.h"
#include "convert/basConvertSubs.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvex::convert {

// What the message boxes said, as "title|icon|text".
[[nodiscard]] std::vector<std::string> BoxesOf(platform::fake::ScriptedDialogs const& dialogs);

// The boxes of one title.
[[nodiscard]] std::string InformationBox(std::string const& text);
[[nodiscard]] std::string ExclamationBox(std::string const& text);

inline FileNames const UsualNames = {"C:\\in.txt", "C:\\out.txt"};

// Converts one of the usual names into the other, and expects every file to be closed behind it.
void ConvertUsualNames(SourceLayout const& layout, platform::fake::MemoryFiles& files,
                       platform::fake::ScriptedDialogs& dialogs);

struct ConversionResult {
    std::optional<std::string> Output; // nothing when no destination is left
    std::vector<std::string> Boxes;
};

// Converts a file of this content.
[[nodiscard]] ConversionResult Convert(std::string const& source, SourceLayout const& layout);

// The description of a file with these fields in their order.
[[nodiscard]] CustomChoices ChoicesOf(std::vector<std::string> const& names,
                                      std::string const& dateFormat = "mm/dd/yy");

} // namespace quorvex::convert
