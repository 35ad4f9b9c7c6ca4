// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Opening the quote editor, filling its grid, and its row commands. Every command that fills the grid anew
// drops what was typed and not saved (docs/behaviour.md).
#pragma once

#include "editor/Editor.h"
#include "platform/Dialogs.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <string>

namespace quorvex::editor {

// What stands above the window when it opens.
[[nodiscard]] std::string EditorCaption(quotes::QuoteSeries const& series);

// Takes over all quotes that were read from the file, also those that a date range hides, and gives the grid
// its rows, heads and column widths, which follow from the width that it has.
void OpenEditor(Editor& editor, quotes::QuoteSeries const& series);

// Fits the grid into a window of this outer size, in twips.
void SizeGrid(Spread& spread, double windowWidth, double windowHeight);

// Fills the grid from the editor's copy.
void RebuildGrid(Editor& editor, settings::Settings const& settings);

// Adds an empty day behind the last row and moves the cursor there.
void AppendRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs);

// Puts an empty day where the cursor is; the days from there on move down.
void InsertRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs);

// Takes the row with the cursor out, if the user agrees.
void DeleteRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs);

// Tells what quote files look like.
void ShowEditHelp(platform::Dialogs& dialogs);

} // namespace quorvex::editor
