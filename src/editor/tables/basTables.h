// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Tables of other programs on their way into the grid.
#pragma once

#include "editor/Editor.h"
#include "platform/Dialogs.h"
#include "settings/Settings.h"

#include <cstdint>
#include <string_view>

namespace quorvex::editor::tables {

// Whether the text has days of quotes and is not cells as a grid like this one copies them: it has headings,
// is not separated by tabs, or its dates and numbers are written in a way that the cells do not take.
[[nodiscard]] bool IsTable(std::string_view text);

// Reads such a text, in UTF-8, as a table of quotes and puts its days, oldest first, over the rows from this
// one on, with rows added at the end where there are too few. They are in the editor's copy as well, so that
// no refill drops them. What is refused is told and changes nothing; rows that are left out are told, too.
// Returns whether days were pasted. REQUIRES: a row of the grid, or the one behind its last.
bool PasteTable(Editor& editor, std::int16_t row, std::string_view text, settings::Settings const& settings,
                platform::Dialogs& dialogs);

} // namespace quorvex::editor::tables
