// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/Change.h"

#include "editor/basSpread.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quorvex::editor {

namespace {

std::int16_t RowNumber(std::ptrdiff_t row) {
    return static_cast<std::int16_t>(row);
}

EditRow RowOf(Editor const& editor, std::int16_t row) {
    EditRow taken{{}, editor.EditQuotes[row]};
    for (std::int16_t column = 1; column <= Sheet::Columns; ++column) {
        taken.Texts.at(static_cast<std::size_t>(column - 1)) = editor.Cells.Text(row, column);
    }
    return taken;
}

EditRows RowsOf(Editor const& editor, std::ptrdiff_t from, std::ptrdiff_t behind) {
    EditRows rows;
    rows.reserve(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, behind - from)));
    for (; from < behind; ++from) {
        rows.push_back(RowOf(editor, RowNumber(from)));
    }
    return rows;
}

bool IsRow(EditRow const& known, Editor const& editor, std::ptrdiff_t row) {
    for (std::int16_t column = 1; column <= Sheet::Columns; ++column) {
        if (known.Texts.at(static_cast<std::size_t>(column - 1)) !=
            editor.Cells.Text(RowNumber(row), column)) {
            return false;
        }
    }
    return known.Copy == editor.EditQuotes[row];
}

void FillRow(Editor& editor, std::ptrdiff_t row, EditRow const& with) {
    std::int16_t column = 1;
    for (std::string const& text : with.Texts) {
        editor.Cells.SetText(RowNumber(row), column++, text);
    }
    editor.EditQuotes[row] = with.Copy;
}

void FillRows(Editor& editor, std::ptrdiff_t row, EditRows const& with) {
    for (EditRow const& fill : with) {
        FillRow(editor, row++, fill);
    }
}

// Of a row that changed, what changed.
void ChangeRow(Editor& editor, std::ptrdiff_t row, EditRow const& from, EditRow const& to) {
    for (std::int16_t column = 1; column <= Sheet::Columns; ++column) {
        auto const at = static_cast<std::size_t>(column - 1);
        if (from.Texts.at(at) != to.Texts.at(at)) {
            editor.Cells.SetText(RowNumber(row), column, to.Texts.at(at));
        }
    }
    if (!(from.Copy == to.Copy)) {
        editor.EditQuotes[row] = to.Copy;
    }
}

void ReplaceRows(Editor& editor, std::ptrdiff_t at, EditRows const& from, EditRows const& to) {
    if (from.size() == to.size()) {
        for (std::ptrdiff_t row = 0; row < std::ssize(to); ++row) {
            auto const index = static_cast<std::size_t>(row);
            ChangeRow(editor, at + row, from[index], to[index]);
        }
        return;
    }
    EditRows const tail = RowsOf(editor, at + std::ssize(from), editor.EditCount + 1);
    editor.EditCount = RowNumber(editor.EditCount + std::ssize(to) - std::ssize(from));
    editor.Cells.SetRowCount(editor.EditCount);
    FillRows(editor, at, to);
    FillRows(editor, at + std::ssize(to), tail);
    DressRows(editor.Cells);
}

// The runs of rows that differ, of which there are as many as before.
Change DifferenceOfRows(EditRows const& before, Editor const& after) {
    Change change;
    std::ptrdiff_t const behind = std::ssize(before) + 1;
    for (std::ptrdiff_t row = 1; row < behind; ++row) {
        EditRow const& known = before[static_cast<std::size_t>(row - 1)];
        if (IsRow(known, after, row)) {
            continue;
        }
        bool const goesOn = !change.Splices.empty() &&
                            change.Splices.back().At + std::ssize(change.Splices.back().New) == row;
        if (!goesOn) {
            change.Splices.push_back({RowNumber(row), {}, {}});
        }
        change.Splices.back().Old.push_back(known);
        change.Splices.back().New.push_back(RowOf(after, RowNumber(row)));
    }
    return change;
}

// All between the rows that are the same at the start and at the end.
Change DifferenceOfCounts(EditRows const& before, Editor const& after) {
    std::ptrdiff_t oldBehind = std::ssize(before) + 1;
    std::ptrdiff_t newBehind = after.EditCount + 1;
    auto const isSame = [&](std::ptrdiff_t oldRow, std::ptrdiff_t newRow) {
        return IsRow(before[static_cast<std::size_t>(oldRow - 1)], after, newRow);
    };
    std::ptrdiff_t from = 1;
    while (from < std::min(oldBehind, newBehind) && isSame(from, from)) {
        ++from;
    }
    while (oldBehind > from && newBehind > from && isSame(oldBehind - 1, newBehind - 1)) {
        --oldBehind;
        --newBehind;
    }
    Splice splice{RowNumber(from), {}, RowsOf(after, from, newBehind)};
    splice.Old.assign(before.begin() + (from - 1), before.begin() + (oldBehind - 1));
    Change change;
    change.Splices.push_back(std::move(splice));
    return change;
}

// The column of the first text that differs, 0 when none does.
std::int16_t FirstColumn(EditRow const& one, EditRow const& other) {
    auto const [at, unused] = std::ranges::mismatch(one.Texts, other.Texts);
    return at == one.Texts.end() ? RowNumber(0) : RowNumber(at - one.Texts.begin() + 1);
}

CellPlace FirstCellOf(Splice const& splice) {
    if (splice.Old.size() != splice.New.size()) {
        return {splice.At, 1};
    }
    for (std::size_t row = 0; row < splice.New.size(); ++row) {
        if (std::int16_t const column = FirstColumn(splice.Old[row], splice.New[row]); column != 0) {
            return {RowNumber(splice.At + static_cast<std::ptrdiff_t>(row)), column};
        }
    }
    return {0, 0};
}

} // namespace

EditRows RowsOf(Editor const& editor) {
    return RowsOf(editor, 1, editor.EditCount + 1);
}

void SetRows(Editor& editor, EditRows const& rows) {
    HiddenSpread const hidden(editor.Grid);
    editor.EditCount = RowNumber(std::ssize(rows));
    editor.Cells.SetRowCount(editor.EditCount);
    FillRows(editor, 1, rows);
    DressRows(editor.Cells);
}

bool Change::IsShown() const {
    return std::ranges::any_of(Splices, [](Splice const& splice) { return FirstCellOf(splice).Row != 0; });
}

CellPlace Change::FirstCell() const {
    for (Splice const& splice : Splices) {
        if (CellPlace const place = FirstCellOf(splice); place.Row != 0) {
            return place;
        }
    }
    return {};
}

Change Difference(EditRows const& before, Editor const& after) {
    return std::ssize(before) == after.EditCount ? DifferenceOfRows(before, after)
                                                 : DifferenceOfCounts(before, after);
}

void Apply(Change const& change, EditRows& rows) {
    for (Splice const& splice : change.Splices) {
        auto const at = rows.begin() + (splice.At - 1);
        auto const behind = rows.erase(at, at + std::ssize(splice.Old));
        rows.insert(behind, splice.New.begin(), splice.New.end());
    }
}

void Redo(Change const& change, Editor& editor) {
    HiddenSpread const hidden(editor.Grid);
    for (Splice const& splice : change.Splices) {
        ReplaceRows(editor, splice.At, splice.Old, splice.New);
    }
}

void Undo(Change const& change, Editor& editor) {
    HiddenSpread const hidden(editor.Grid);
    std::for_each(change.Splices.rbegin(), change.Splices.rend(), [&editor](Splice const& splice) {
        ReplaceRows(editor, splice.At, splice.New, splice.Old);
    });
}

void GotoPlace(Editor& editor, CellPlace const& place) {
    editor.Grid.GotoCell(std::min(place.Row, editor.Cells.RowCount()), place.Column);
}

} // namespace quorvex::editor
