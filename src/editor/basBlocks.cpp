// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basBlocks.h"

#include <vector>

namespace quorvex::editor {

namespace {

using CellTexts = std::vector<std::string_view>;

template <class Visit>
void VisitCells(Block const& block, Visit const& visit) {
    for (int row = block.Row; row <= block.ToRow; ++row) {
        for (int column = block.Column; column <= block.ToColumn; ++column) {
            visit(static_cast<std::int16_t>(row), static_cast<std::int16_t>(column));
        }
    }
}

// The part in front of the separator; the rest of the text loses both.
std::string_view TakeUpTo(std::string_view& text, char separator) {
    auto const end = text.find(separator);
    auto const part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

CellTexts SplitLine(std::string_view line) {
    CellTexts cells;
    bool hasMore = true;
    while (hasMore) {
        hasMore = line.find('\t') != std::string_view::npos;
        cells.push_back(TakeUpTo(line, '\t'));
    }
    return cells;
}

// A line end behind the last row starts no other one.
std::vector<CellTexts> SplitRows(std::string_view text) {
    std::vector<CellTexts> rows;
    while (!text.empty()) {
        std::string_view line = TakeUpTo(text, '\n');
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        rows.push_back(SplitLine(line));
    }
    return rows;
}

} // namespace

std::string BlockText(Sheet const& sheet, Block const& block) {
    std::string text;
    VisitCells(block, [&](std::int16_t row, std::int16_t column) {
        text += sheet.Text(row, column);
        text += column == block.ToColumn ? '\n' : '\t';
    });
    return text;
}

void ClearBlock(Sheet& sheet, Block const& block) {
    VisitCells(block, [&](std::int16_t row, std::int16_t column) { sheet.SetText(row, column, {}); });
}

bool PasteText(Sheet& sheet, Block const& block, std::string_view text) {
    auto const rows = SplitRows(text);
    if (rows.size() == 1 && rows.front().size() == 1) {
        VisitCells(block, [&](std::int16_t row, std::int16_t column) {
            sheet.SetText(row, column, rows.front().front());
        });
        return true;
    }
    bool hasAll = true;
    int row = block.Row;
    for (CellTexts const& cells : rows) {
        int column = block.Column;
        for (std::string_view const cell : cells) {
            bool const isInside = row <= sheet.RowCount() && column <= Sheet::Columns;
            if (isInside) {
                sheet.SetText(static_cast<std::int16_t>(row), static_cast<std::int16_t>(column), cell);
            }
            hasAll = hasAll && isInside;
            ++column;
        }
        ++row;
    }
    return hasAll;
}

} // namespace quorvex::editor
