// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/Sheet.h"

#include "text/basDates.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <utility>

namespace quorvex::editor {

namespace {

// The texts of a row's part and the day that puts it into its place.
struct SortedRow {
    std::optional<text::CalendarDay> Day;
    std::vector<std::string> Texts;
};

} // namespace

std::int16_t Sheet::RowCount() const {
    return text::WholeNumber(static_cast<double>(rows_.size() - 1));
}

void Sheet::SetRowCount(std::int16_t count) {
    if (count < 0) {
        throw text::RunTimeError(text::Fault::InvalidProcedureCall);
    }
    rows_.resize(static_cast<std::size_t>(count) + 1);
}

Sheet::Row const& Sheet::RowAt(std::ptrdiff_t row) const {
    if (row < 0 || row >= std::ssize(rows_)) {
        throw text::RunTimeError(text::Fault::SubscriptOutOfRange);
    }
    return rows_[static_cast<std::size_t>(row)];
}

Cell const& Sheet::CellAt(std::int16_t row, std::int16_t column) const {
    return RowAt(row)[column];
}

template <class Change>
void Sheet::ChangeCells(Block const& block, Change const& change) {
    for (std::ptrdiff_t row = block.Row; row <= block.ToRow; ++row) {
        static_cast<void>(RowAt(row));
        for (std::ptrdiff_t column = block.Column; column <= block.ToColumn; ++column) {
            change(rows_[static_cast<std::size_t>(row)][column]);
        }
    }
}

void Sheet::SetText(std::int16_t row, std::int16_t column, std::string_view text) {
    ChangeCells({row, column, row, column}, [text](Cell& cell) { cell.Text = text; });
}

void Sheet::SetCellKind(Block const& block, CellKind kind) {
    ChangeCells(block, [kind](Cell& cell) { cell.Kind = kind; });
}

void Sheet::SetBackColour(Block const& block, platform::Colour colour) {
    ChangeCells(block, [colour](Cell& cell) { cell.BackColour = colour; });
}

void Sheet::SortByDate(Block const& block, std::int16_t keyColumn) {
    std::vector<SortedRow> order;
    for (std::ptrdiff_t row = block.Row; row <= block.ToRow; ++row) {
        SortedRow sorted{text::ParseDate(RowAt(row)[keyColumn].Text), {}};
        for (std::ptrdiff_t column = block.Column; column <= block.ToColumn; ++column) {
            sorted.Texts.push_back(RowAt(row)[column].Text);
        }
        order.push_back(std::move(sorted));
    }
    std::ranges::stable_sort(order, {}, &SortedRow::Day);
    std::ptrdiff_t row = block.Row;
    for (SortedRow const& sorted : order) {
        std::ptrdiff_t column = block.Column;
        for (std::string const& text : sorted.Texts) {
            rows_[static_cast<std::size_t>(row)][column++].Text = text;
        }
        ++row;
    }
}

} // namespace quorvex::editor
