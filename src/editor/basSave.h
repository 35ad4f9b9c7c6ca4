// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// How what was typed into the grid gets back into the editor's copy, and from there into a file. The quotes
// in memory stay as they were loaded: they follow when the user opens the written file.
#pragma once

#include "editor/Editor.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <string>

namespace quorvex::editor {

// Copies the grid into the editor's copy. Raises "Type mismatch" at a number cell whose whole text is no
// number; then the copy is as it was.
void CopySpreadToArray(Editor& editor);

// Copies the grid into the editor's copy and writes that to the file, whose name is taken as it is: a bare
// one lies in the current folder of the process. Volume and open interest of row r are those of record r of
// the master copy, whatever the grid says: both are meant, see docs/behaviour.md. Raises a fault when a cell
// is no number, when the currency format spells prices in a way that would not read back, or when the file
// cannot be written: then a file of that name is as it was.
void SaveEditData(std::string const& fileName, Editor& editor, quotes::QuoteRecords const& master,
                  settings::Settings const& settings, platform::Files& files);

// Where the open file lies: in the data folder, unless Save As gave it a folder of its own.
[[nodiscard]] std::string OpenFilePath(quotes::QuoteSeries const& series, settings::Settings const& settings);

// Whether what is written under the name of the series, as a save takes it, is the open file.
[[nodiscard]] bool IsOpenFileSaved(quotes::QuoteSeries const& series, settings::Settings const& settings,
                                   platform::Files const& files);

// How a command that saves ended.
struct SaveResult {
    bool IsSaved = false;
    std::string Status; // for the status line; empty when the user gave the command up
};

// Checks the rows and writes them under the name of the open file. The status tells when that is not the open
// file. A price that the currency format would spell as another
// number, or as 0, is told: the file would lose the day. What SaveEditData raises is told in the status
// alone.
[[nodiscard]] SaveResult SaveEdits(Editor& editor, quotes::QuoteSeries const& series,
                                   settings::Settings const& settings, platform::Files& files,
                                   platform::Dialogs& dialogs);

// Asks for a name, checks the rows and writes them under it, which becomes the open file's name when that
// succeeds. Nothing else of the series changes.
[[nodiscard]] SaveResult SaveEditsAs(Editor& editor, quotes::QuoteSeries& series,
                                     settings::Settings const& settings, platform::Files& files,
                                     platform::Dialogs& dialogs);

} // namespace quorvex::editor
