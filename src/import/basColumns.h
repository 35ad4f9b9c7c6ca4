// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Which column of a table is what.
#pragma once

#include "import/Choices.h"
#include "import/Plan.h"
#include "import/Sample.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

namespace quorvex::imports {

// Finds out in which orders the dates of this column can be. Returns why there is none.
using DateSettler = std::function<std::optional<Refusal>(std::size_t column)>;

// Gives the columns of the plan their roles: those that the user chose, then by their headings, and without a
// head by what stands in them. REQUIRES: the plan has its columns with headings, and its decimal marks. The
// rows are the quotes of the sample, the head those above them that name the columns. The dates are settled
// as soon as their column is known. Returns why the columns cannot be told.
[[nodiscard]] std::optional<Refusal> AssignRoles(Plan& plan, std::span<SampleRow const> head,
                                                 std::span<SampleRow const> rows, Choices const& choices,
                                                 DateSettler const& settleDates);

// Whether the heading is one of those that vendors use.
[[nodiscard]] bool IsKnownHeading(std::string_view heading);

} // namespace quorvex::imports
