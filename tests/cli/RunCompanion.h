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

// Runs quorvex-cli with these arguments, none of which may hold a quotation mark, and with this text on its
// standard input.
[[nodiscard]] CompanionRun RunCompanion(std::vector<std::string> const& arguments,
                                        std::string const& input = {});

// Expects status 2, no output and some error of each run.
void ExpectWrongUsage(std::vector<std::vector<std::string>> const& runs);

} // namespace quorvex::tests
