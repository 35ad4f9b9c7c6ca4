// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The options that stand for settings of the program, each with its default in its help.
#pragma once

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace quorvex::cli {

// They add the option to the sub-command. What was typed is stored in the value, which must outlive it.
void AddFormatOption(CLI::App& command, std::optional<std::string>& value,
                     std::string const& name = "--format");
void AddMovingAverageOption(CLI::App& command, std::optional<std::string>& value);
void AddChartTypeOption(CLI::App& command, std::optional<std::string>& value);

} // namespace quorvex::cli
