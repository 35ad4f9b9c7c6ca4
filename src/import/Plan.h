// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a table's columns, dates and numbers are taken for, and why: shown before anything is written, and
// made anew when the user chooses otherwise.
#pragma once

#include "import/Choices.h"
#include "import/Sample.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::imports {

// The reason for what the user chose.
inline constexpr std::string_view ReasonChosen = "chosen";

struct ColumnPlan {
    std::string Heading; // of all levels; empty without a head
    Role Is = Role::Unused;
    std::string Reason;
};

struct Plan {
    Encoding EncodedIn = Encoding::Utf8;
    Separator SeparatedBy = Separator::Comma;
    std::vector<ColumnPlan> Columns;
    std::vector<std::uint64_t> HeadLines;
    std::vector<Finding> Notes;  // lines above the table, which are skipped
    std::uint64_t FirstLine = 0; // of the quotes

    // What the rows looked at allow. Rows that follow may leave fewer.
    std::vector<DateOrder> DateOrders;
    std::vector<DecimalMark> Decimals;
    std::string DateReason;
    std::string DecimalReason;

    std::optional<int> Fraction; // the denominator that was chosen, or NoFraction
    bool HasVolumeLines = false; // a small month letter: the line holds volume and open interest of its day
    bool IsDateChosen = false;
    bool IsDecimalChosen = false;
    bool TakesAnyBars = false;
    std::optional<std::string> Symbol; // that is taken, in capitals; not set: all are the same

    // Why no quotes can be read. What could be found out is in the plan all the same.
    std::optional<Refusal> Refused;

    // The index of the first column with the role; nothing when there is none.
    [[nodiscard]] std::optional<std::size_t> Find(Role role) const;
};

[[nodiscard]] Plan MakePlan(Sample const& sample, Encoding encoding, Choices const& choices);

} // namespace quorvex::imports
