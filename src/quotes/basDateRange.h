// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Narrowing the days that are analysed.
#pragma once

#include "quotes/QuoteSeries.h"

#include <string>

namespace quorvex::quotes {

// The texts of the two boxes between which the days are chosen.
struct DateRange {
    std::string Start;
    std::string End;
};

enum class RangeChange {
    None,     // no quotes are loaded
    Narrowed, // the working copy is what the range holds
    Reset,    // the working copy is the whole series
};

// Rebuilds the working copy from the master copy: the days from the start date to the end date or, when the
// end date is not after the start date, all days; then the two texts become those of the whole series. An end
// date that no quote bears leaves the count as it was. Raises "Type mismatch", with nothing changed, when a
// text is no date.
RangeChange AdjustQuoteDateRange(QuoteSeries& series, DateRange& range);

} // namespace quorvex::quotes
