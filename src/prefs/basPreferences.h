// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The preferences window without its controls: what stands in them, and what each command does to the
// settings and to the days that are analysed. Whatever text stands in a box becomes the setting.
#pragma once

#include "platform/Dialogs.h"
#include "platform/Profile.h"
#include "quotes/QuoteSeries.h"
#include "quotes/basDateRange.h"
#include "settings/Settings.h"

#include <string>
#include <vector>

namespace quorvex::prefs {

struct PreferencesFields {
    settings::Settings Boxes; // txtDataPath and the four lists; SettingTable tells what these offer
    std::vector<std::string> QuoteDates; // what cboStartDate and cboEndDate offer
    quotes::DateRange Range;             // the texts of cboStartDate and cboEndDate
    std::string ShownNumQuotes;          // txtNumQuotes: days analysed
    std::string WholeNumQuotes; // lblNumQuotes: days of the whole series, once the range was reset to it
};

// What the window shows when it opens. Without an open quote file no dates are offered or shown.
[[nodiscard]] PreferencesFields OpenPreferences(settings::Settings const& settings,
                                                quotes::QuoteSeries const& series);

// A choice in one of these two lists takes effect at once.
void ChooseChartType(PreferencesFields const& fields, settings::Settings& settings);
void ChooseDataSource(PreferencesFields const& fields, settings::Settings& settings);

// Analyses the days between the dates in the boxes, or all days when the end is not after the start; then the
// boxes show the dates of the whole series. A text that is no date, or no open quote file, leaves everything
// as it was.
void ChooseDateRange(PreferencesFields& fields, quotes::QuoteSeries& series);

// Takes over the settings from the boxes and writes the INI file. Returns false after a fault of writing was
// shown: the settings are taken over and the file is as it was.
bool SaveSettings(PreferencesFields const& fields, settings::Settings& settings, platform::Profile& profile,
                  platform::Dialogs& dialogs);

// Puts the defaults into the boxes, but for the data path, and analyses the whole series. No setting changes.
void RestoreDefaults(PreferencesFields& fields, quotes::QuoteSeries& series);

// Takes over the settings from the boxes for this run of the program.
void ExitPreferences(PreferencesFields const& fields, settings::Settings& settings);

} // namespace quorvex::prefs
