// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The listing of the editor's rows on paper. docs/behaviour.md tells why its last page has no number.
#pragma once

#include "editor/Editor.h"
#include "platform/MousePointer.h"
#include "platform/Printer.h"
#include "settings/Settings.h"

#include <string_view>

namespace quorvex::editor {

// The rows of a page.
inline constexpr int RowsPerPage = 50;

// Prints the grid as it stands, unchecked and unsorted, what was typed included; the mouse pointer is the
// hourglass meanwhile. Raises "Type mismatch" at a cell that is no number and "Printer error"; nothing is
// printed then.
void PrintQuotes(Editor& editor, std::string_view quoteFileName, settings::Settings const& settings,
                 platform::PrintQueue& queue, platform::MousePointer& pointer);

// Prints the head of a page: the file's name, its first and last date and the heads of the columns. What
// follows is in the font of the rows, in inches.
void PrintHeader(platform::Printer& printer, Editor const& editor, std::string_view quoteFileName);

} // namespace quorvex::editor
