// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace quorvex::tests {

struct CompanionRun {
    int ExitStatus = -1;
    std::string Output; // standard output
    std::string Errors; // standard error
};

// Runs quorvex-cli with these arguments, none of which may hold a quotation mark.
[[nodiscard]] CompanionRun RunCompanion(std::vector<std::string> const& arguments);

} // namespace quorvex::tests
