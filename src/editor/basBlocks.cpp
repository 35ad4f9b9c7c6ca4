// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basBlocks.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace quorvex::editor {

namespace {

using CellTexts = std::vector<std::string>;

template <class Visit>
void VisitCells(Block const& block, Visit const& visit) {
    for (int row = block.Row; row <= block.ToRow; ++row) {
        for (int column = block.Column; column <= block.ToColumn; ++column) {
            visit(static_cast<std::int16_t>(row), static_cast<std::int16_t>(column));
        }
    }
}

// A cell as spreadsheet programs quote it, and what stands behind it.
struct QuotedCell {
    std::string Text;
    std::string_view Rest;
    bool HasBreak = false; // a tab or a line end inside
};

// The quoted cell that the text starts with; nothing when it starts with another one. A cell of the grid has
// one line: a line end becomes a blank.
std::optional<QuotedCell> QuotedAtStart(std::string_view text) {
    if (!text.starts_with('"')) {
        return std::nullopt;
    }
    QuotedCell cell;
    for (std::size_t at = 1; at < text.size(); ++at) {
        char const c = text[at];
        bool const isMark = c == '"';
        if (isMark && !text.substr(at + 1).starts_with('"')) {
            cell.Rest = text.substr(at + 1);
            bool const isEnd = cell.Rest.empty() || cell.Rest.find_first_of("\t\r\n") == 0;
            return isEnd ? std::optional(cell) : std::nullopt;
        }
        at += isMark ? 1 : 0; // two of them stand for one
        bool const isLineEnd = c == '\n' || c == '\r';
        cell.HasBreak = cell.HasBreak || isLineEnd || c == '\t';
        if (c != '\r' || !text.substr(at + 1).starts_with('\n')) {
            cell.Text += isLineEnd ? ' ' : c;
        }
    }
    return std::nullopt;
}

// Takes the rows of a text one cell after the other. A line end behind the last row starts no other one.
class RowSplitter {
public:
    RowSplitter(std::string_view text, bool isQuoted) : rest_(text), isQuoted_(isQuoted) {}

    [[nodiscard]] std::vector<CellTexts> Split() {
        std::vector<CellTexts> rows;
        while (!rest_.empty()) {
            CellTexts cells;
            do {
                cells.push_back(TakeCell());
            } while (TakeTab());
            TakeLineEnd();
            rows.push_back(std::move(cells));
        }
        return rows;
    }

    // Whether a quoted cell has a tab or a line end inside.
    [[nodiscard]] bool HasBreaks() const { return hasBreaks_; }

private:
    std::string TakeCell() {
        if (auto cell = isQuoted_ ? QuotedAtStart(rest_) : std::nullopt) {
            hasBreaks_ = hasBreaks_ || cell->HasBreak;
            rest_ = cell->Rest;
            return std::move(cell->Text);
        }
        std::size_t end = std::min(rest_.find_first_of("\t\n"), rest_.size());
        bool const isRowEnd = end == rest_.size() || rest_[end] == '\n';
        if (isRowEnd && rest_.substr(0, end).ends_with('\r')) {
            --end;
        }
        std::string cell(rest_.substr(0, end));
        rest_.remove_prefix(end);
        return cell;
    }

    bool TakeTab() {
        bool const isTab = rest_.starts_with('\t');
        rest_.remove_prefix(isTab ? 1 : 0);
        return isTab;
    }

    void TakeLineEnd() {
        rest_.remove_prefix(rest_.starts_with('\r') ? 1 : 0);
        rest_.remove_prefix(rest_.starts_with('\n') ? 1 : 0);
    }

    std::string_view rest_;
    bool isQuoted_;
    bool hasBreaks_ = false;
};

// Quotation marks are a part of the cells, as in what the grid itself copies, unless a quoted cell holds what
// separates cells: then the text quotes them as spreadsheet programs do.
std::vector<CellTexts> SplitRows(std::string_view text) {
    RowSplitter quoted(text, true);
    auto rows = quoted.Split();
    return quoted.HasBreaks() ? rows : RowSplitter(text, false).Split();
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
        for (std::string const& cell : cells) {
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
