// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace quorvex::editor {

// What the editor needs of the grid that shows its sheet: the cursor, the size, and when the sheet is to be
// shown anew. Rows and columns count from 1. Widths and heights are in twips.
class Spread {
public:
    Spread() = default;
    Spread(Spread const&) = delete;
    Spread& operator=(Spread const&) = delete;
    virtual ~Spread() = default;

    // The row that holds the cursor, 0 when none does.
    [[nodiscard]] virtual std::int16_t ActiveRow() const = 0;

    // Moves the cursor to the cell. Raises "Subscript out of range" where the sheet has none.
    virtual void GotoCell(std::int16_t row, std::int16_t column) = 0;

    virtual void SetColumnWidth(std::int16_t column, double width) = 0;

    // The user sees what the sheet holds once the grid becomes visible; until then the sheet may be filled.
    virtual void SetVisible(bool isVisible) = 0;

    [[nodiscard]] virtual double Width() const = 0;
    virtual void SetSize(double width, double height) = 0;
};

// Hides the grid as long as it lives, whatever ends the filling of the sheet.
class HiddenSpread {
public:
    explicit HiddenSpread(Spread& spread) : spread_(spread) { spread_.SetVisible(false); }

    HiddenSpread(HiddenSpread const&) = delete;
    HiddenSpread& operator=(HiddenSpread const&) = delete;

    ~HiddenSpread() { spread_.SetVisible(true); }

private:
    Spread& spread_;
};

} // namespace quorvex::editor
