// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Tables of other programs on their way into the grid.
#pragma once

#include "editor/Editor.h"
#include "platform/Dialogs.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvex::editor::tables {

// Whether the text, which no grid like this one has copied, has days of quotes. As they stand they would be
// read as the grid reads what is typed: with the month first and a comma as a mark of thousands.
[[nodiscard]] bool IsTable(std::string_view text);

// Reads such a text, in UTF-8, as a table of quotes and puts its days, oldest first, over the rows from this
// one on, with rows added at the end where there are too few. They are in the editor's copy as well, so that
// no refill drops them. What is refused, as everything is that can be read in two ways, is told and changes
// nothing; rows that are left out are told, too. Returns what to tell in the status line: where the days went
// and what they replaced, and that a save writes the volumes of the master copy when these are others. Empty
// when it was refused. REQUIRES: a row of the grid, or the one behind its last.
[[nodiscard]] std::string PasteTable(Editor& editor, std::int16_t row, std::string_view text,
                                     quotes::QuoteRecords const& master, settings::Settings const& settings,
                                     platform::Dialogs& dialogs);

// Of cells that are pasted as they stand: how the grid reads the first one that another program may mean
// otherwise, for the status line. Empty when there is none.
[[nodiscard]] std::string FindReading(std::string_view text);

} // namespace quorvex::editor::tables
