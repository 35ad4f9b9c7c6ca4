// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/SettingOptions.h"

#include "settings/Settings.h"

namespace quorvex::cli {

namespace {

using settings::Settings;

std::string WithDefault(std::string help, std::string Settings::*member) {
    return help.append(" [").append(settings::SettingRowOf(member).Default).append("]");
}

} // namespace

void AddFormatOption(CLI::App& command, std::optional<std::string>& value, std::string const& name) {
    command.add_option(name, value, WithDefault("Number format of prices", &Settings::CurrencyFormat))
        ->type_name("F");
}

void AddMovingAverageOption(CLI::App& command, std::optional<std::string>& value) {
    command
        .add_option("--moving-average", value,
                    WithDefault("Length of the moving average", &Settings::MovingAverageIndex))
        ->type_name("K");
}

void AddChartTypeOption(CLI::App& command, std::optional<std::string>& value) {
    command.add_option("--chart-type", value, WithDefault("Kind of quote chart", &Settings::ChartType))
        ->type_name("T");
}

} // namespace quorvex::cli
