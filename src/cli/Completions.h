// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What shells need to complete the companion's command lines, made from the options that it takes.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace quorvex::cli {

// Scripts that each of the shells loads by itself once they are in its folder. They offer sub-commands,
// options and the words that an option chooses from; for everything else there are the names of files.
[[nodiscard]] std::string BashCompletions(CLI::App const& app);
[[nodiscard]] std::string ZshCompletions(CLI::App const& app);
[[nodiscard]] std::string FishCompletions(CLI::App const& app);

} // namespace quorvex::cli
