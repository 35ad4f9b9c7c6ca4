// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "settings/Settings.h"

#include "settings/ChartTypes.h"
#include "text/basFolders.h"

#include <algorithm>
#include <array>

namespace quorvex::settings {

namespace {

constexpr auto ChartTypes = [] {
    std::array<std::string_view, ChartTypeTable.size()> names;
    std::ranges::transform(ChartTypeTable, names.begin(), &ChartTypeRow::Name);
    return names;
}();
constexpr std::array<std::string_view, 3> DataSources = {"Close Only", "High-Low Average", "OHLC Average"};
constexpr std::array<std::string_view, 6> MovingAverageIndices = {"0", "1", "3", "5", "7", "9"};
constexpr std::array<std::string_view, 5> CurrencyFormats = {"####0", "####0.0", "####0.00", "####0.000",
                                                             "####0.0000"};

constexpr std::array<SettingRow, 5> Rows = {{
    {&Settings::DataPath, "DataPath", "", {}},
    {&Settings::ChartType, "ChartType", ChartTypes.front(), ChartTypes},
    {&Settings::DataSource, "DataSource", "Close Only", DataSources},
    {&Settings::MovingAverageIndex, "MovingAverageIndex", "3", MovingAverageIndices},
    {&Settings::CurrencyFormat, "CurrencyFormat", "####0.00", CurrencyFormats},
}};

} // namespace

std::span<SettingRow const> SettingTable() {
    return Rows;
}

SettingRow const& SettingRowOf(std::string Settings::*member) {
    return *std::ranges::find(Rows, member, &SettingRow::Member);
}

Settings DefaultSettings(std::string_view programFolder) {
    Settings settings;
    for (SettingRow const& row : Rows) {
        settings.*row.Member = row.Default;
    }
    settings.DataPath = text::EndWithSeparator(programFolder);
    return settings;
}

} // namespace quorvex::settings
