// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Sheet.h"
#include "editor/Spread.h"
#include "quotes/QuoteSeries.h"

namespace quorvex::editor {

// The grid of the quote editor and the copy of the quotes that it is filled from. Record r is row r of the
// grid, but for what was typed since the grid was filled: that stands in the grid alone until it is copied
// back.
struct Editor {
    Sheet& Cells; // of the grid; both must outlive the editor
    Spread& Grid;
    quotes::QuoteRecords EditQuotes;
    std::int16_t EditCount = 0; // rows of the grid
};

} // namespace quorvex::editor
