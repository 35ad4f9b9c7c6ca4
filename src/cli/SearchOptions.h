// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/basSearch.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace quorvex::cli {

// Adds the option of this name, which takes how many cycles to look for, and those that tell where. Where
// there is no request yet, they need that option, which makes one. The request must outlive the sub-command.
// Returns the option of that name.
CLI::Option* AddSearchOptions(CLI::App& command, std::string const& name,
                              std::optional<search::SearchRequest>& request);

// Throws CLI::ValidationError when the longest period that was asked for is below the shortest.
void RequirePeriods(std::optional<search::SearchRequest> const& request);

} // namespace quorvex::cli
