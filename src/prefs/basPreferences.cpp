// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "prefs/basPreferences.h"

#include "platform/basMessages.h"
#include "settings/basProfiles.h"
#include "text/RunTimeError.h"
#include "text/basFolders.h"

namespace quorvex::prefs {

namespace {

quotes::DateRange WorkingRange(quotes::QuoteSeries const& series) {
    if (series.WorkingCount == 0) {
        return {};
    }
    return {series.Working[1].Date, series.Working[series.WorkingCount].Date};
}

} // namespace

PreferencesFields OpenPreferences(settings::Settings const& settings, quotes::QuoteSeries const& series) {
    PreferencesFields fields;
    fields.Boxes = settings;
    fields.ShownNumQuotes = std::to_string(series.WorkingCount);
    if (series.HasQuotes()) {
        for (std::int16_t day = 1; day <= series.QuoteCount; ++day) {
            fields.QuoteDates.push_back(series.Master[day].Date);
        }
        fields.Range = WorkingRange(series);
    }
    return fields;
}

void ChooseChartType(PreferencesFields const& fields, settings::Settings& settings) {
    settings.ChartType = fields.Boxes.ChartType;
}

void ChooseDataSource(PreferencesFields const& fields, settings::Settings& settings) {
    settings.DataSource = fields.Boxes.DataSource;
}

void ChooseDateRange(PreferencesFields& fields, quotes::QuoteSeries& series) {
    auto change = quotes::RangeChange::None;
    // The user may be half-way through typing a date: no message.
    if (text::Trap([&] { change = quotes::AdjustQuoteDateRange(series, fields.Range); })) {
        return;
    }
    switch (change) {
    case quotes::RangeChange::None:
        break;
    case quotes::RangeChange::Narrowed:
        fields.ShownNumQuotes = std::to_string(series.WorkingCount);
        break;
    case quotes::RangeChange::Reset:
        fields.WholeNumQuotes = std::to_string(series.WorkingCount);
        break;
    }
}

bool SaveSettings(PreferencesFields const& fields, settings::Settings& settings, platform::Profile& profile,
                  platform::Dialogs& dialogs) {
    ExitPreferences(fields, settings);
    return platform::RunReported(dialogs, [&] { settings::WriteProfile(settings, profile); });
}

void RestoreDefaults(PreferencesFields& fields, quotes::QuoteSeries& series) {
    for (settings::SettingRow const& row : settings::SettingTable()) {
        if (row.Member != &settings::Settings::DataPath) {
            fields.Boxes.*row.Member = row.Default;
        }
    }
    if (series.HasQuotes()) {
        fields.Range = {series.Master[1].Date, series.Master[series.QuoteCount].Date};
        ChooseDateRange(fields, series);
    }
}

void ExitPreferences(PreferencesFields const& fields, settings::Settings& settings) {
    settings = fields.Boxes;
    settings.DataPath = text::EndWithSeparator(settings.DataPath);
}

} // namespace quorvex::prefs
