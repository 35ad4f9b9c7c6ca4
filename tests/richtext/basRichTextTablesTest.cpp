// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Notation.h"
#include "richtext/RowDefinition.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::richtext {
namespace {

Table FirstTable(std::string_view body) {
    return TableAt(ReadBody(body), 0);
}

// The first and last column of each cell.
std::vector<std::pair<int, int>> ColumnsOf(TableRow const& row) {
    std::vector<std::pair<int, int>> columns;
    for (TableCell const& cell : row.Cells) {
        columns.emplace_back(cell.Column, cell.Column + cell.ColumnSpan - 1);
    }
    return columns;
}

using Columns = std::vector<std::pair<int, int>>;

TEST(RichTextTables, HaveRowsAndCells) {
    EXPECT_EQ(TextOf(R"(before\par\trowd\cellx1000\cellx3000\pard\intbl a\cell b\cell\row)"
                     R"(\trowd\cellx1000\cellx3000\pard\intbl c\par d\cell\cell\row\pard behind\par)"),
              "before\n[a|b][c/d|]\nbehind");
}

TEST(RichTextTables, MayBeDefinedBehindTheirCells) {
    auto const table = FirstTable(R"(\pard\intbl a\cell b\cell{\trowd\cellx1000\cellx3000\row})");
    EXPECT_EQ(table.ColumnWidths, (std::vector<int>{1000, 2000}));
}

TEST(RichTextTables, HaveColumnsOfTheirEdges) {
    auto const table = FirstTable(R"(\trowd\trleft-100\cellx1000\cellx3000\intbl a\cell b\cell\row)"
                                  R"(\trowd\trleft-100\cellx3000\intbl c\cell\row)"
                                  R"(\trowd\trleft-90\cellx2000\cellx3010\intbl d\cell e\cell\row)");
    EXPECT_EQ(table.ColumnWidths, (std::vector<int>{1100, 1000, 1000}));
    EXPECT_EQ(table.Rows.at(0).Left, -100);
    EXPECT_EQ(ColumnsOf(table.Rows.at(0)), (Columns{{0, 0}, {1, 2}}));
    EXPECT_EQ(ColumnsOf(table.Rows.at(1)), (Columns{{0, 2}}));
    EXPECT_EQ(ColumnsOf(table.Rows.at(2)), (Columns{{0, 1}, {2, 2}}));
    EXPECT_EQ(table.Rows.at(0).Cells.at(1).Width, 2000);
}

TEST(RichTextTables, OfTooManyEdgesHaveOneColumnForEachCell) {
    std::string body;
    for (int row = 1; row <= 80; ++row) {
        body += R"(\trowd\cellx)" + std::to_string(row * 100) + R"(\cellx9000\intbl a\cell b\cell\row)";
    }
    auto const table = FirstTable(body);
    EXPECT_EQ(table.ColumnWidths, (std::vector<int>{4500, 4500}));
    EXPECT_EQ(ColumnsOf(table.Rows.at(79)), (Columns{{0, 0}, {1, 1}}));
}

TEST(RichTextTables, GiveCellsThatAreNotDefinedAWidth) {
    auto const table = FirstTable(R"(\trowd\cellx500\cellx400\intbl a\cell b\cell c\cell\row)");
    EXPECT_EQ(table.ColumnWidths, (std::vector<int>{500, 30, 1440}));
    EXPECT_EQ(FirstTable(R"(a\cell b\cell\row)").ColumnWidths, (std::vector<int>{1440, 1440}));
}

TEST(RichTextTables, HaveBorders) {
    auto const cell =
        FirstTable(R"(\trowd\trbrdrt\brdrs\brdrw99\clbrdrt\brdrs\brdrw20\brdrcf1\clbrdrl\brdrth)"
                   R"(\clbrdrb\brdrs\brdrnone\cellx500\intbl\brdrb\brdrs\brdrw50 a\cell\row)")
            .Rows.at(0)
            .Cells.at(0);
    EXPECT_EQ(cell.Borders.at(TopSide).Width, 20);
    EXPECT_EQ(cell.Borders.at(TopSide).Drawn, Colour(0xFF0000));
    EXPECT_EQ(cell.Borders.at(LeftSide).Width, 30);
    EXPECT_EQ(cell.Borders.at(LeftSide).Drawn, Colour());
    EXPECT_EQ(cell.Borders.at(BottomSide).Width, 0);
    EXPECT_EQ(cell.Borders.at(RightSide).Width, 0);
}

TEST(RichTextTables, HaveShadingAndHeaders) {
    auto const table = FirstTable(R"(\trowd\trhdr\clcbpat2\cellx500\cellx900\intbl a\cell b\cell\row)"
                                  R"(\trowd\cellx500\intbl c\cell\row)");
    EXPECT_EQ(table.Rows.at(0).Cells.at(0).Shading, Colour(0x102030));
    EXPECT_EQ(table.Rows.at(0).Cells.at(1).Shading, Colour());
    EXPECT_TRUE(table.Rows.at(0).IsHeader);
    EXPECT_FALSE(table.Rows.at(1).IsHeader);
}

TEST(RichTextTables, JoinMergedCells) {
    auto const body = R"(\trowd\clmgf\cellx1000\clmrg\cellx2000\cellx3000\intbl a\cell\cell c\cell\row)"
                      R"(\trowd\clmgf\cellx1000\clmrg\cellx2000\cellx3000\intbl a\cell b\cell c\cell\row)"
                      R"(\trowd\clmrg\cellx1000\cellx2000\cellx3000\intbl a\cell b\cell c\cell\row)";
    EXPECT_EQ(TextOf(body), "[a|c][a/b|c][a|b|c]");
    EXPECT_EQ(ColumnsOf(FirstTable(body).Rows.at(0)), (Columns{{0, 1}, {2, 2}}));
}

TEST(RichTextTables, KeepWhatIsMergedDownwards) {
    auto const table = FirstTable(R"(\trowd\clvmgf\cellx1000\cellx2000\intbl a\cell b\cell\row)"
                                  R"(\trowd\clvmrg\cellx1000\cellx2000\intbl\cell c\cell\row)");
    EXPECT_EQ(table.Rows.at(0).Cells.at(0).Merge, VerticalMerge::First);
    EXPECT_EQ(table.Rows.at(1).Cells.at(0).Merge, VerticalMerge::Continued);
    EXPECT_EQ(table.Rows.at(1).Cells.at(1).Merge, VerticalMerge::None);
}

TEST(RichTextTables, MayStandInCells) {
    auto const body = R"(\trowd\cellx4000\intbl a\par\pard\intbl\itap2 b\nestcell c\nestcell)"
                      R"({\*\nesttableprops\trowd\cellx1000\cellx3000\nestrow}{\nonesttables\par})"
                      R"(\pard\intbl\cell\row\pard d)";
    EXPECT_EQ(TextOf(body), "[a/[b|c]]\nd");
    auto const outer = FirstTable(body);
    EXPECT_EQ(outer.ColumnWidths, std::vector<int>{4000});
    auto const& inner = std::get<Table>(outer.Rows.at(0).Cells.at(0).Blocks.at(1).Content);
    EXPECT_EQ(inner.ColumnWidths, (std::vector<int>{1000, 2000}));
}

TEST(RichTextTables, NestedTooDeepBelongToTheDeepest) {
    std::string nested;
    for (int depth = 1; depth <= 9; ++depth) {
        nested += R"(\pard\intbl\itap)" + std::to_string(depth) + " " + std::to_string(depth) + R"(\par)";
    }
    EXPECT_EQ(TextOf(nested), "[1/[2/[3/[4/5/6/7/8/9]]]]");
    EXPECT_EQ(TextOf(R"(\pard\intbl\itap2000000000 a\nestcell)"), "[[[[a]]]]");
}

TEST(RichTextTables, WithTooManyCellsPutTheRestIntoTheLast) {
    std::string body = R"(\intbl )";
    for (int cell = 1; cell <= 70; ++cell) {
        body += std::to_string(cell) + R"(\cell )";
    }
    auto const row = FirstTable(body + R"(\row)").Rows.at(0);
    ASSERT_EQ(row.Cells.size(), MostCells);
    EXPECT_EQ(row.Cells.back().Blocks.size(), 7U);
}

TEST(RichTextTables, KeepWhatIsNotEndedProperly) {
    EXPECT_EQ(TextOf(R"(\intbl a\cell b\row\pard c)"), "[a|b]\nc");
    EXPECT_EQ(TextOf(R"(\intbl a\par\row\pard c)"), "[a]\nc");
    EXPECT_EQ(TextOf(R"(\intbl a\cell b)"), "[a|b]");
    EXPECT_EQ(TextOf(R"(\trowd\cellx100\row\row x)"), "x");
    EXPECT_EQ(TextOf(R"(a\nestcell\nestrow\cell\row)"), "[[a]]");
}

TEST(RichTextTables, EndWithAParagraphOutside) {
    EXPECT_EQ(TextOf(R"(\intbl a\cell\row\pard\par\intbl b\cell\row)"), "[a]\n\n[b]");
}

} // namespace
} // namespace quorvex::richtext
