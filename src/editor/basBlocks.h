// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Blocks of cells on their way to and from other programs.
#pragma once

#include "editor/Sheet.h"

#include <string>
#include <string_view>

namespace quorvex::editor {

// The texts of the block as spreadsheet programs exchange them: tabs between the cells, a line end behind
// each row.
[[nodiscard]] std::string BlockText(Sheet const& sheet, Block const& block);

// Empties the cells of the block.
void ClearBlock(Sheet& sheet, Block const& block);

// Puts such a text into the grid, with its first cell in the block's first; a single cell goes into every
// cell of the block. When a cell is quoted because it holds a tab or a line end, all that are quoted lose
// their marks, and line ends inside become blanks. Rows are not added: cells that would lie beyond the grid
// are left out. Returns whether all found their place.
[[nodiscard]] bool PasteText(Sheet& sheet, Block const& block, std::string_view text);

} // namespace quorvex::editor
