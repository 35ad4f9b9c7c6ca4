// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Numbers as vendors write them.
#pragma once

#include "import/Choices.h"

#include <cstdint>
#include <string_view>

namespace quorvex::imports {

enum class FigureState : std::uint8_t {
    Number,
    Missing, // empty, "-", "null", "N/A" and the like
    NoNumber,
};

struct Figure {
    double Value = 0;
    FigureState State = FigureState::NoNumber;
    bool HasGroups = false;     // thousands are marked by a point or a comma
    bool HasTicks = false;      // thousands are marked by an apostrophe, and it could be 32nds just as well
    bool HasSureTicks = false;  // the same, and it could not
    bool NeedsFraction = false; // no number, unless --fraction tells what 118'16 is
    bool HasSettlementMark = false; // an s behind a price
    bool IsInBillions = false;      // a B stands behind it
};

// How the numbers of a table are to be read.
struct FigureForm {
    DecimalMark Decimal = DecimalMark::Point;
    bool IsPrice = false; // fractions behind ' or - are looked for, and the mark of a settlement
    int Fraction = -1;    // their denominator; NoFraction; below 0: single digits are eighths
};

// The number in the cell. Thousands are marked by ",", ".", an apostrophe or a blank of any kind, whichever
// is not the decimal mark, in groups of three, or two in front of the last three. A sign, brackets for
// negative numbers, currency signs, "%" and K, M or B behind it are understood; a price may have the s of a
// settlement behind it.
[[nodiscard]] Figure ReadFigure(std::string_view cell, FigureForm const& form);

} // namespace quorvex::imports
