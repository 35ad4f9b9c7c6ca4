// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basForecast.h"

#include "cycles/basCurves.h"
#include "platform/basMessages.h"
#include "text/RunTimeError.h"
#include "text/basDates.h"
#include "text/basFormats.h"
#include "text/basTexts.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace quorvex::cycles {

namespace {

constexpr double FourPi = 12.56637061435916;

// How far one cycle moves the forecast, in prices.
constexpr double Swing = 4;

text::CalendarDay NextWeekday(text::CalendarDay day) {
    using namespace std::chrono;
    day += days{1};
    if (weekday{day} == Saturday) {
        day += days{2};
    }
    if (weekday{day} == Sunday) {
        day += days{1};
    }
    return day;
}

// Of both lists, read once for all lines.
struct ListFormats {
    text::NumberFormat Day{"##"};
    text::NumberFormat Value{"###.####"};
};

// "12  03/15/02 246.75": day, date and value; a day below ten has a blank on its left.
std::string ListLine(ListFormats const& formats, int day, std::string_view date, double value) {
    std::string const number = formats.Day.Format(day);
    std::string line(text::Trim(number));
    if (line.size() < 2) {
        line.insert(0, 1, ' ');
    }
    line += "  ";
    line += text::FormatDate(text::RequireDate(date));
    line += ' ';
    formats.Value.AppendTo(line, value);
    return line;
}

} // namespace

bool RequireForecastWeights(ParameterGrid const& grid, platform::Dialogs& dialogs) {
    if (SumOfWeights(grid) == 0) {
        platform::ShowWarning(dialogs, "Insufficient cycle parameters data to create forecast values");
        return false;
    }
    return true;
}

ForecastCurve ComputeForecast(CycleParameterSet const& set, quotes::QuoteSeries const& series) {
    double const n = series.WorkingCount;
    ForecastCurve curve;
    for (int index = 1; index <= CycleCount; ++index) {
        CycleRecord const& cycle = set.Cycles[index];
        if (!cycle.IsActive()) {
            continue;
        }
        double const frequency = text::Divide(TwoPi, cycle.Period);
        double const phase = text::Divide(cycle.Shift * FourPi, n);
        for (int day = 1; day <= ForecastDays; ++day) {
            curve[day] += Swing * std::sin(text::RequireFinite(phase + (n + day) * frequency));
        }
    }
    double const lastClose = series.Working[series.WorkingCount].Close;
    for (int day = 1; day <= ForecastDays; ++day) {
        curve[day] = text::RequireFinite(curve[day] + lastClose);
    }
    return curve;
}

ForecastDates ComputeForecastDates(std::string_view lastQuoteDate) {
    ForecastDates dates;
    text::CalendarDay day = text::RequireDate(lastQuoteDate);
    for (int index = 1; index <= ForecastDays; ++index) {
        day = NextWeekday(day);
        dates[index] = text::FormatDate(day);
    }
    return dates;
}

std::vector<std::string> EstimatedValueLines(ForecastCurve const& values, ForecastDates const& dates) {
    ListFormats const formats;
    std::vector<std::string> lines;
    for (int day = 1; day <= ForecastDays; ++day) {
        lines.push_back(ListLine(formats, day, dates[day], values[day]));
    }
    return lines;
}

std::vector<std::string> PreviousCloseLines(quotes::QuoteSeries const& series) {
    ListFormats const formats;
    std::vector<std::string> lines;
    int const last = series.WorkingCount;
    for (int day = std::max(1, last - ForecastDays + 1); day <= last; ++day) {
        quotes::QuoteRecord const& record = series.Working[day];
        lines.push_back(ListLine(formats, day, record.Date, record.Close));
    }
    return lines;
}

} // namespace quorvex::cycles
