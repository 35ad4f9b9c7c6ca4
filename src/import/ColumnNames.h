// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The headings of vendors' tables, as data.
#pragma once

#include "import/Choices.h"

#include <span>
#include <string_view>

namespace quorvex::imports {

// What a column of this heading holds. Of two columns that could have one role the smaller rank takes it:
// settlement before close, close before last trade. A heading can have several roles, such as "time", under
// which some vendors have the date.
struct ColumnName {
    std::string_view Heading; // folded by FoldWords
    Role Is = Role::Unused;
    int Rank = 1;
};

[[nodiscard]] std::span<ColumnName const> ColumnNames();

} // namespace quorvex::imports
