// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Changes of the editor's rows as values: made by comparing, taken back and done again exactly.
#pragma once

#include "editor/Editor.h"
#include "editor/Sheet.h"
#include "quotes/QuoteSeries.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quorvex::editor {

// A row as it stands in the grid and in the editor's copy.
struct EditRow {
    std::array<std::string, Sheet::Columns> Texts; // the first column is at 0
    quotes::QuoteRecord Copy;

    friend bool operator==(EditRow const&, EditRow const&) = default;
};

// The rows of the editor, the first at 0.
using EditRows = std::vector<EditRow>;

[[nodiscard]] EditRows RowsOf(Editor const& editor);

// Gives the editor these rows and no others. At most MaxQuotes.
void SetRows(Editor& editor, EditRows const& rows);

// Rows that took the place of others.
struct Splice {
    std::int16_t At = 1; // the first of them, counted from 1
    EditRows Old;
    EditRows New;
};

struct CellPlace {
    std::int16_t Row = 1;
    std::int16_t Column = 1;
};

struct Change {
    std::vector<Splice> Splices; // one after the other

    [[nodiscard]] bool IsEmpty() const { return Splices.empty(); }

    // Whether the grid looks different afterwards. A save and the listing can change the copy alone.
    [[nodiscard]] bool IsShown() const;

    // The first cell that looks different; of rows that came or went, the first cell of the first.
    [[nodiscard]] CellPlace FirstCell() const;
};

// What makes the rows those of the editor.
[[nodiscard]] Change Difference(EditRows const& before, Editor const& after);

// Makes the rows those behind the change. REQUIRES: they are those that it was made from.
void Apply(Change const& change, EditRows& rows);

// Make the editor's rows those behind the change, or those before it. Cells that the change leaves alone keep
// what they hold meanwhile. The cursor stays where it is.
void Redo(Change const& change, Editor& editor);
void Undo(Change const& change, Editor& editor);

// Puts the cursor there, or into the last row when the row is gone.
void GotoPlace(Editor& editor, CellPlace const& place);

} // namespace quorvex::editor
