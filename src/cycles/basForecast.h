// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The forecast: 25 trading days past the last quote.
#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "cycles/ParameterGrid.h"
#include "platform/Dialogs.h"
#include "quotes/QuoteSeries.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::cycles {

// Values, dates and lines of the forecast days 1..25; slot 0 is never filled.
using ForecastCurve = text::SlotArray<double, ForecastDays>;
using ForecastDates = text::SlotArray<std::string, ForecastDays>;

// Whether the grid holds weights to forecast with; when not, tells the user.
[[nodiscard]] bool RequireForecastWeights(ParameterGrid const& grid, platform::Dialogs& dialogs);

// The last close plus four times the sum of the active cycles' unit sines, each with the phase 4 pi Shift /
// n. The weights take no part (docs/behaviour.md). Raises "Division by zero" without working days.
[[nodiscard]] ForecastCurve ComputeForecast(CycleParameterSet const& set, quotes::QuoteSeries const& series);

// The 25 weekdays behind the last quote's date as "mm/dd/yy"; holidays count as trading days. Raises "Type
// mismatch" when the text is no date.
[[nodiscard]] ForecastDates ComputeForecastDates(std::string_view lastQuoteDate);

// The lines of the list "Estimated Values": forecast day, date and value.
[[nodiscard]] std::vector<std::string> EstimatedValueLines(ForecastCurve const& values,
                                                           ForecastDates const& dates);

// The lines of the list "Previous Closes": day, date and close of the last 25 working days, or of all when
// there are fewer.
[[nodiscard]] std::vector<std::string> PreviousCloseLines(quotes::QuoteSeries const& series);

} // namespace quorvex::cycles
