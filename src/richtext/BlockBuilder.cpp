// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/BlockBuilder.h"

#include "richtext/basTableColumns.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvex::richtext {

namespace {

bool EndsWithTable(std::vector<Block> const& blocks) {
    return !blocks.empty() && std::holds_alternative<Table>(blocks.back().Content);
}

bool IsEmpty(Paragraph const& paragraph) {
    return paragraph.Content.empty() && paragraph.Marker.empty();
}

} // namespace

void BlockBuilder::AddParagraph(Paragraph paragraph, std::size_t depth) {
    EnterDepth(depth);
    Innermost().push_back({std::move(paragraph)});
}

// Behind a table in a cell there always is a paragraph; an empty one would only be a gap.
void BlockBuilder::EndCell(Paragraph paragraph, std::size_t depth) {
    EnterDepth(depth);
    if (!IsEmpty(paragraph) || !EndsWithTable(Innermost())) {
        Innermost().push_back({std::move(paragraph)});
    }
    CloseCell(tables_.back());
}

void BlockBuilder::EndRow(RowDefinition const& definition, std::size_t depth) {
    EnterDepth(depth);
    CloseRow(tables_.back(), definition);
}

std::vector<Block> BlockBuilder::Finish() {
    EnterDepth(0);
    return std::move(body_);
}

void BlockBuilder::EnterDepth(std::size_t depth) {
    std::size_t const wanted = std::min(depth, DeepestTable);
    while (tables_.size() > wanted) {
        CloseTable();
    }
    tables_.resize(wanted);
}

void BlockBuilder::CloseTable() {
    CloseRow(tables_.back(), {});
    auto table = std::move(tables_.back().Built);
    tables_.pop_back();
    if (!table.Rows.empty()) {
        LayOutColumns(table);
        Innermost().push_back({std::move(table)});
    }
}

void BlockBuilder::CloseCell(OpenTable& table) {
    auto& cells = table.Row.Cells;
    if (cells.size() < MostCells) {
        cells.emplace_back();
    }
    auto& blocks = cells.back().Blocks;
    blocks.insert(blocks.end(), std::move_iterator(table.Cell.begin()), std::move_iterator(table.Cell.end()));
    table.Cell.clear();
}

void BlockBuilder::CloseRow(OpenTable& table, RowDefinition const& definition) {
    if (!table.Cell.empty()) {
        CloseCell(table);
    }
    if (!table.Row.Cells.empty()) {
        definition.Apply(table.Row);
        table.Built.Rows.push_back(std::exchange(table.Row, {}));
    }
}

} // namespace quorvex::richtext
