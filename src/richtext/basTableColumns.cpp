// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/basTableColumns.h"

#include "richtext/RowDefinition.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace quorvex::richtext {

namespace {

// Less than the width of the narrowest cell, so that both edges of a cell never fall together.
constexpr int SameEdge = 20;

// The edges of all cells in rising order, one for each group of edges that fall together.
std::vector<int> CollectEdges(Table const& table) {
    std::vector<int> edges;
    for (TableRow const& row : table.Rows) {
        int edge = row.Left;
        edges.push_back(edge);
        for (TableCell const& cell : row.Cells) {
            edge += cell.Width;
            edges.push_back(edge);
        }
    }
    std::sort(edges.begin(), edges.end());
    std::vector<int> distinct;
    for (int const edge : edges) {
        if (distinct.empty() || edge - distinct.back() > SameEdge) {
            distinct.push_back(edge);
        }
    }
    return distinct;
}

// The edge that this one falls together with: the last that is not behind it.
int EdgeIndex(std::vector<int> const& edges, int edge) {
    auto const behind = std::upper_bound(edges.begin(), edges.end(), edge);
    return static_cast<int>(std::distance(edges.begin(), behind)) - 1;
}

void PlaceByEdges(Table& table, std::vector<int> const& edges) {
    for (std::size_t index = 1; index < edges.size(); ++index) {
        table.ColumnWidths.push_back(edges[index] - edges[index - 1]);
    }
    for (TableRow& row : table.Rows) {
        int edge = row.Left;
        for (TableCell& cell : row.Cells) {
            cell.Column = EdgeIndex(edges, edge);
            edge += cell.Width;
            cell.ColumnSpan = EdgeIndex(edges, edge) - cell.Column;
        }
    }
}

void PlaceByCount(Table& table, int width) {
    std::size_t longest = 1;
    for (TableRow& row : table.Rows) {
        longest = std::max(longest, row.Cells.size());
        for (std::size_t index = 0; index < row.Cells.size(); ++index) {
            row.Cells[index].Column = static_cast<int>(index);
            row.Cells[index].ColumnSpan = 1;
        }
    }
    table.ColumnWidths.assign(longest, width / static_cast<int>(longest));
}

} // namespace

void LayOutColumns(Table& table) {
    auto const edges = CollectEdges(table);
    if (edges.size() <= MostCells + 1) {
        PlaceByEdges(table, edges);
    } else {
        PlaceByCount(table, edges.back() - edges.front());
    }
}

} // namespace quorvex::richtext
