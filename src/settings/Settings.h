// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The five settings that shape how quotes are loaded, analysed and drawn.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quorvex::settings {

// Texts throughout: the user can type any of them.
struct Settings {
    std::string DataPath;           // folder of the quote files, ending with a separator
    std::string ChartType;          // any text but the two known ones draws the line chart
    std::string DataSource;         // kept and shown; no computation reads it
    std::string MovingAverageIndex; // length of the centred moving average, in days
    std::string CurrencyFormat;     // number format of prices
};

// One setting: its member, its key in the INI file, its default and the values that the preferences offer.
// The default of DataPath is the program folder, which is known only at run time; its row has none.
struct SettingRow {
    std::string Settings::*Member;
    std::string_view Key;
    std::string_view Default;
    std::span<std::string_view const> Offered;
};

// The rows in the order in which they are read and written.
[[nodiscard]] std::span<SettingRow const> SettingTable();

// The row of a setting.
[[nodiscard]] SettingRow const& SettingRowOf(std::string Settings::*member);

// The settings of a program without an INI file. The folder gets its separator.
[[nodiscard]] Settings DefaultSettings(std::string_view programFolder);

} // namespace quorvex::settings
