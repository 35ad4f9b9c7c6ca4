// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/RowDefinition.h"

#include "richtext/Measures.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvex::richtext {

namespace {

// Two pixels: no cell is narrower, so that the edges of one row can be told apart.
constexpr int NarrowestCell = 30;
constexpr int UndefinedCell = 1440;
constexpr int HairLine = 15;
constexpr int ThickestBorder = 255;

void MoveBlocks(std::vector<Block>& from, std::vector<Block>& to) {
    to.insert(to.end(), std::move_iterator(from.begin()), std::move_iterator(from.end()));
}

bool IsEmpty(TableCell const& cell) {
    return std::all_of(cell.Blocks.begin(), cell.Blocks.end(), [](Block const& block) {
        auto const* const paragraph = std::get_if<Paragraph>(&block.Content);
        return paragraph != nullptr && paragraph->Content.empty();
    });
}

void TakeLook(TableCell& cell, TableCell const& look) {
    cell.Merge = look.Merge;
    cell.Borders = look.Borders;
    cell.Shading = look.Shading;
}

} // namespace

void RowDefinition::TakeWord(ControlWord const& word, std::optional<int> number, ColourTable const& colours) {
    switch (word.Kind) {
    case WordKind::RowDefaults:
        *this = {};
        break;
    case WordKind::RowLeft:
        left_ = Twips(number);
        break;
    case WordKind::RowIsHeader:
        isHeader_ = true;
        break;
    case WordKind::CellEdge:
        EndCell(Twips(number));
        break;
    case WordKind::CellShading:
        next_.Look.Shading = colours.ColourOf(number);
        break;
    case WordKind::MergedLeft:
        next_.IsMergedLeft = true;
        break;
    case WordKind::MergeDown:
        next_.Look.Merge = static_cast<VerticalMerge>(word.Value);
        break;
    default:
        TakeBorderWord(word, number, colours);
        break;
    }
}

// Paragraphs and whole rows have borders too, described by the same words: those are passed over.
void RowDefinition::TakeBorderWord(ControlWord const& word, std::optional<int> number,
                                   ColourTable const& colours) {
    if (word.Kind == WordKind::BorderSide) {
        side_ = static_cast<CellSide>(word.Value);
    } else if (word.Kind == WordKind::OtherBorder) {
        side_.reset();
    }
    if (!side_) {
        return;
    }
    Border& border = next_.Look.Borders[*side_];
    switch (word.Kind) {
    case WordKind::NoBorder:
        border = {};
        break;
    case WordKind::BorderLine:
        border.Width = word.Value * HairLine;
        break;
    case WordKind::BorderWidth:
        border.Width = std::clamp(number.value_or(0), 0, ThickestBorder);
        break;
    case WordKind::BorderColour:
        border.Drawn = colours.ColourOf(number);
        break;
    default:
        break;
    }
}

void RowDefinition::EndCell(int right) {
    next_.Right = right;
    if (cells_.size() < MostCells) {
        cells_.push_back(next_);
    }
    next_ = {};
    side_.reset();
}

void RowDefinition::Apply(TableRow& row) const {
    row.Left = left_;
    row.IsHeader = isHeader_;
    int left = left_;
    std::vector<TableCell> cells;
    for (std::size_t index = 0; index < row.Cells.size(); ++index) {
        TableCell& cell = row.Cells[index];
        bool const isDefined = index < cells_.size();
        int const right =
            std::max(isDefined ? cells_[index].Right : left + UndefinedCell, left + NarrowestCell);
        cell.Width = right - left;
        left = right;
        if (isDefined) {
            TakeLook(cell, cells_[index].Look);
        }
        if (isDefined && cells_[index].IsMergedLeft && !cells.empty()) {
            cells.back().Width += cell.Width;
            if (!IsEmpty(cell)) {
                MoveBlocks(cell.Blocks, cells.back().Blocks);
            }
        } else {
            cells.push_back(std::move(cell));
        }
    }
    row.Cells = std::move(cells);
}

} // namespace quorvex::richtext
