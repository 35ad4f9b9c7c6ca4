// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Number formats: how prices, weights and percentages are spelled.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::text {

// A number format, read once and used for many numbers. Any text is a format:
//
//   0      a digit, 0 where the number has none
//   #      a digit, nothing where the number has none
//   .      the decimal point, printed even when no decimal follows
//   ,      between digit placeholders: thousands are grouped by commas
//   %      multiplies by 100 and prints itself
//   "..."  and \x and any other character: printed as they stand
//   ;      parts up to three sections: positive;negative;zero
//
// Numbers are rounded half away from zero on their decimal text of 15 significant digits: 245.255 in
// "####0.00" is "245.26". Digits beyond the placeholders in front of the point are printed at the first of
// them. A negative number has "-" in front unless it rounds to zero or has a section of its own, which prints
// its magnitude. A section left empty is printed by the first one. The empty format gives the plain shortest
// text of the number.
class NumberFormat {
public:
    explicit NumberFormat(std::string_view format);

    // The text of the finite number.
    [[nodiscard]] std::string Format(double value) const;

    // Puts the text of the finite number behind what is there.
    void AppendTo(std::string& text, double value) const;

    // The finite number after a turn through its own text: what Format prints, taken back by the strict rule.
    // A text of which placeholders for digits left nothing but perhaps the point is 0. Raises "Type mismatch"
    // when the format's text is no number, such as "$5.00".
    [[nodiscard]] double Round(double value) const;

    // Whether Round makes nothing of a number but that number, rounded to the decimals, or raises. Not with
    // digits and signs of the format's own: in "1" every number becomes 1. In doubt not, as with signs
    // behind.
    [[nodiscard]] bool RoundsOnly() const;

    // Whether Round leaves a number alone whose text has so many decimals, and 15 digits at the most. Not
    // where the decimals are negative, as those of a text that is no plain decimal.
    [[nodiscard]] bool Keeps(int decimals) const {
        return decimals >= 0 && plainDecimals_ && decimals <= *plainDecimals_;
    }

private:
    enum class Piece { Literal, WholeDigit, Point, Decimal };

    struct Token {
        Piece Kind;
        std::string Text; // of a literal
    };

    struct Section {
        std::vector<Token> Tokens;
        int WholePlaces = 0;   // placeholders in front of the point
        int LeastWhole = 0;    // digits printed there at the least
        int DecimalPlaces = 0; // placeholders behind the point: what numbers are rounded to
        int LeastDecimals = 0; // digits printed there at the least
        int Hundreds = 0;      // factors of 100, one a percent sign
        bool Grouped = false;
        bool HasPoint = false;
        bool HasLiteral = false;
    };

    static Section ReadSection(std::string_view& rest);
    void FindPlainDecimals();
    [[nodiscard]] Section const& Choose(double value) const;
    static bool PrintsNumberAlone(Section const& section, std::string_view sign);
    static bool PrintsNoNumber(Section const& section);
    static void AppendDigits(std::string& text, Section const& section, std::string const& whole,
                             std::string const& decimals);

    std::vector<Section> sections_;
    // Set when the text is nothing but the digits and the point of a number with so many decimals.
    std::optional<int> plainDecimals_;
};

// How many of what is named by an English noun: "1 cycle", "3 cycles".
[[nodiscard]] std::string Counted(int count, std::string_view noun);

// The text of the number in the format, for single numbers.
[[nodiscard]] std::string FormatNumber(double value, std::string_view format);

} // namespace quorvex::text
