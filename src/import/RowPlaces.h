// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/Plan.h"
#include "import/Reading.h"
#include "import/RecordReader.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quorvex::imports {

// Where a row of the plan's table has its cells, and what kind of row it is by them.
class RowPlaces {
public:
    // The plan must outlive it.
    explicit RowPlaces(Plan const& plan);

    // The columns that name the contract.
    [[nodiscard]] std::vector<std::size_t> const& Contract() const { return contract_; }

    [[nodiscard]] RowCells CellsOf(std::span<Field const> fields, std::uint64_t line) const;

    // Whether one cell alone is filled, which is no date: a note.
    [[nodiscard]] bool IsNote(std::span<Field const> fields) const;

    // Whether there is anything behind the last column of the table.
    [[nodiscard]] bool IsTooWide(std::span<Field const> fields) const;

    // Whether the row holds volume and open interest in place of prices, those of all months together.
    [[nodiscard]] bool IsVolumeLine(std::span<Field const> fields) const;
    [[nodiscard]] bool IsOfAllMonths(std::span<Field const> fields) const;

    // Whether the row is a head, that of the table or another one.
    [[nodiscard]] static bool IsHead(std::span<Field const> fields);
    [[nodiscard]] bool RepeatsTheHead(std::span<Field const> fields) const;

    // Whether a price is quoted, so that a comma can stand in it where commas separate.
    [[nodiscard]] bool IsPriceQuoted(std::span<Field const> fields) const;

    // A count that looks like the end of a number that its thousands comma has split, such as 086 of 25,086,
    // unless its column was chosen; nothing when there is none.
    [[nodiscard]] std::optional<std::string_view> HalfOfCount(std::span<Field const> fields) const;

private:
    Plan const& plan_;
    std::optional<std::size_t> date_;
    std::optional<std::size_t> time_;
    std::array<std::optional<std::size_t>, FigureCount> figures_;
    std::vector<std::size_t> contract_;
};

[[nodiscard]] inline bool IsFilled(Field const& field) {
    return !field.Text.empty();
}

} // namespace quorvex::imports
