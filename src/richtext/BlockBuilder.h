// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/RichText.h"
#include "richtext/RowDefinition.h"

#include <cstddef>
#include <vector>

namespace quorvex::richtext {

// Puts paragraphs into the cells of the tables that they belong to. A table goes on until a paragraph outside
// it comes.
class BlockBuilder {
public:
    // Tables nested deeper are taken as part of this one.
    static constexpr std::size_t DeepestTable = 4;

    // Adds the paragraph to the body of the document (depth 0), to the open cell of a table in it (1), or to
    // that of a table within a cell (2 and more).
    void AddParagraph(Paragraph paragraph, std::size_t depth);

    // Adds the paragraph and ends the cell behind it. REQUIRES: depth > 0.
    void EndCell(Paragraph paragraph, std::size_t depth);

    // Ends the row. A cell that is still open is its last one; a row without cells is none.
    // REQUIRES: depth > 0.
    void EndRow(RowDefinition const& definition, std::size_t depth);

    // Ends all tables and hands out what was built.
    [[nodiscard]] std::vector<Block> Finish();

private:
    struct OpenTable {
        Table Built;
        TableRow Row;
        std::vector<Block> Cell;
    };

    // Ends the tables nested deeper and starts those that are missing.
    void EnterDepth(std::size_t depth);
    void CloseTable();
    static void CloseCell(OpenTable& table);
    static void CloseRow(OpenTable& table, RowDefinition const& definition);

    [[nodiscard]] std::vector<Block>& Innermost() { return tables_.empty() ? body_ : tables_.back().Cell; }

    std::vector<Block> body_;
    std::vector<OpenTable> tables_; // the open ones, each in the open cell of the one before
};

} // namespace quorvex::richtext
