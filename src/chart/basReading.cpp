// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basReading.h"

#include "cycles/basCurves.h"
#include "settings/ChartTypes.h"
#include "text/RunTimeError.h"
#include "text/basFormats.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace quorvex::chart {

namespace {

using Row = ChartReading::Row;

constexpr std::string_view CycleUnits = "##0.0";
constexpr std::string_view WholeNumbers = "##0";

std::string Join(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (std::string_view const part : parts) {
        text += part;
    }
    return text;
}

std::string Count(int count, std::string_view noun) {
    return Join({std::to_string(count), " ", noun, count == 1 ? "" : "s"});
}

// Whether the days shown are those of quotes.
bool HasDates(quotes::QuoteSeries const& series) {
    return series.WorkingCount > 0; // none without a file
}

std::vector<std::string> NameDays(quotes::QuoteSeries const& series) {
    int const count = cycles::CurveDays(series.WorkingCount);
    std::vector<std::string> days;
    days.reserve(static_cast<std::size_t>(count));
    bool const hasDates = HasDates(series);
    for (int day = 1; day <= count; ++day) {
        if (hasDates) {
            days.push_back(series.Working[day].Date);
        } else {
            days.push_back("Day " + std::to_string(day));
        }
    }
    return days;
}

// "250 days, 11/06/18 to 11/05/19", or "100 days" without quotes.
std::string DescribeSpan(quotes::QuoteSeries const& series) {
    int const count = cycles::CurveDays(series.WorkingCount);
    std::string days = Count(count, "day");
    if (!HasDates(series)) {
        return days;
    }
    std::string const& first = series.Working[1].Date;
    return count == 1 ? Join({days, ", ", first})
                      : Join({days, ", ", first, " to ", series.Working[count].Date});
}

template <class ValueOfDay>
Row MakeRow(std::string name, int days, ValueOfDay valueOfDay) {
    Row row{std::move(name), {}};
    row.Values.reserve(static_cast<std::size_t>(days));
    for (int day = 1; day <= days; ++day) {
        row.Values.push_back(text::RequireFinite(valueOfDay(day)));
    }
    return row;
}

struct Extent {
    double Low = 0;
    double High = 0;
};

// From the lowest to the highest value. REQUIRES: one value.
Extent ExtentOf(Row const& row) {
    Extent extent{row.Values.front(), row.Values.front()};
    for (double const value : row.Values) {
        extent.Low = std::min(extent.Low, value);
        extent.High = std::max(extent.High, value);
    }
    return extent;
}

// Adds the moving average to what is read of the quotes, unless its length is 0.
void ReadMovingAverage(ChartReading& reading, ChartContents const& contents) {
    cycles::CycleCurves const& curves = contents.Curves;
    if (auto const& fault = curves.States.MovingAverage.Fault) {
        reading.Description += Join({" The moving average could not be drawn: ", fault->Description(), "."});
    } else if (curves.MovingAverageLength != 0) {
        Row average = MakeRow("Moving average", contents.Series.WorkingCount,
                              [&](int day) { return curves.MovingAverageCurve[day]; });
        // Every length below 2 gives the closes themselves.
        reading.Description += Join({" ", std::to_string(std::max<int>(curves.MovingAverageLength, 1)),
                                     "-day moving average, last value ",
                                     text::FormatNumber(average.Values.back(), reading.NumberFormat), "."});
        reading.Rows.push_back(std::move(average));
    }
}

void ReadQuotes(ChartReading& reading, ChartContents const& contents) {
    quotes::QuoteSeries const& series = contents.Series;
    settings::ChartTypeRow const& type = settings::ChartTypeOf(contents.Settings.ChartType);
    // What a line shows of the quotes is their closes.
    bool const closesAlone = type.Style == settings::QuoteStyle::Line;
    reading.NumberFormat = contents.Settings.CurrencyFormat;
    auto row = [&series](char const* name, double quotes::QuoteRecord::*price) {
        return MakeRow(name, series.WorkingCount, [&](int day) { return series.Working[day].*price; });
    };
    if (!closesAlone) {
        reading.Rows.push_back(row("Open", &quotes::QuoteRecord::Open));
        reading.Rows.push_back(row("High", &quotes::QuoteRecord::High));
        reading.Rows.push_back(row("Low", &quotes::QuoteRecord::Low));
    }
    reading.Rows.push_back(row("Close", &quotes::QuoteRecord::Close));
    Row const& close = reading.Rows.back();
    Row const& high = closesAlone ? close : reading.Rows[1];
    Row const& low = closesAlone ? close : reading.Rows[2];
    text::NumberFormat const price(reading.NumberFormat);
    std::string_view const noun = closesAlone ? " close" : "";
    reading.Description =
        Join({type.InSpeech, " of ", DescribeSpan(series), ". Lowest", noun, " ",
              price.Format(ExtentOf(low).Low), ", highest", noun, " ", price.Format(ExtentOf(high).High),
              ", last close ", price.Format(close.Values.back()), "."});
    ReadMovingAverage(reading, contents);
}

void ReadCycles(ChartReading& reading, ChartContents const& contents) {
    text::NumberFormat const whole(WholeNumbers);
    std::string parameters;
    for (int index = 1; index <= cycles::CycleCount; ++index) {
        cycles::CycleRecord const& cycle = contents.Cycles.Cycles[index];
        if (cycle.IsActive()) {
            std::string const name = "Cycle " + std::to_string(index);
            parameters += Join({name, ": weight ", whole.Format(cycle.Weight), ", period ",
                                whole.Format(cycle.Period), ". "});
            reading.Rows.push_back(MakeRow(name, cycles::CurveDays(contents.Series.WorkingCount),
                                           [&](int day) { return cycle.Values[day]; }));
        }
    }
    Extent all = ExtentOf(reading.Rows.front());
    for (Row const& row : reading.Rows) {
        Extent const extent = ExtentOf(row);
        all = {std::min(all.Low, extent.Low), std::max(all.High, extent.High)};
    }
    text::NumberFormat const units(CycleUnits);
    reading.Description = Join({Count(static_cast<int>(reading.Rows.size()), "component cycle"), " over ",
                                DescribeSpan(contents.Series), ". ", parameters, "Lowest ",
                                units.Format(all.Low), ", highest ", units.Format(all.High), "."});
}

// Reads composite or residual.
template <class Curve>
void ReadSingleCurve(ChartReading& reading, std::string_view title, std::string name,
                     quotes::QuoteSeries const& series, Curve const& curve) {
    Row row =
        MakeRow(std::move(name), cycles::CurveDays(series.WorkingCount), [&](int day) { return curve[day]; });
    Extent const extent = ExtentOf(row);
    text::NumberFormat const units(CycleUnits);
    reading.Description =
        Join({title, " over ", DescribeSpan(series), ". Lowest ", units.Format(extent.Low), ", highest ",
              units.Format(extent.High), ", last value ", units.Format(row.Values.back()), "."});
    reading.Rows.push_back(std::move(row));
}

// Reads a chart that is ready.
ChartReading ReadDrawing(ChartKind kind, ChartContents const& contents) {
    ChartReading reading;
    reading.Days = NameDays(contents.Series);
    reading.NumberFormat = CycleUnits;
    switch (kind) {
    case ChartKind::Quotes:
        ReadQuotes(reading, contents);
        break;
    case ChartKind::Cycles:
        ReadCycles(reading, contents);
        break;
    case ChartKind::Composite:
        ReadSingleCurve(reading, "Composite estimate cycle", "Composite", contents.Series,
                        contents.Curves.CompositeCurve);
        break;
    case ChartKind::Residual:
        ReadSingleCurve(reading, "Residual, moving average minus composite cycle,", "Residual",
                        contents.Series, contents.Curves.ResidualCurve);
        break;
    }
    return reading;
}

std::string_view ReasonOf(cycles::Need missing) {
    switch (missing) {
    case cycles::Need::QuoteFile:
        return "No quote file is open.";
    case cycles::Need::Quotes:
        return "There are no quotes to show.";
    default:
        return "No cycle is active.";
    }
}

cycles::ChartState const& StateOf(ChartKind kind, cycles::ChartStates const& states) {
    switch (kind) {
    case ChartKind::Quotes:
        return states.Quotes;
    case ChartKind::Cycles:
        return states.Cycles;
    case ChartKind::Composite:
        return states.Composite;
    default:
        return states.Residual;
    }
}

std::string_view SubjectOf(ChartKind kind) {
    switch (kind) {
    case ChartKind::Quotes:
        return "The quotes";
    case ChartKind::Cycles:
        return "The cycles";
    case ChartKind::Composite:
        return "The composite estimate cycle";
    default:
        return "The residual";
    }
}

ChartReading MakeEmptyReading(std::string description) {
    ChartReading reading;
    reading.Description = std::move(description);
    return reading;
}

} // namespace

ChartReading ReadChart(ChartKind kind, ChartContents const& contents) {
    cycles::ChartState const& state = StateOf(kind, contents.Curves.States);
    if (state.Missing) {
        return MakeEmptyReading(std::string(ReasonOf(*state.Missing)));
    }
    ChartReading reading;
    auto fault = state.Fault;
    if (!fault) {
        fault = text::Trap([&] { reading = ReadDrawing(kind, contents); });
    }
    if (fault) {
        return MakeEmptyReading(Join({SubjectOf(kind), " could not be drawn: ", fault->Description(), "."}));
    }
    return reading;
}

std::string DescribeDay(ChartReading const& reading, int day) {
    if (day < 1 || static_cast<std::size_t>(day) > reading.Days.size()) {
        return {};
    }
    auto const index = static_cast<std::size_t>(day - 1);
    text::NumberFormat const format(reading.NumberFormat);
    std::string text = reading.Days[index];
    for (Row const& row : reading.Rows) {
        text += Join({"\n", row.Name, ": ", format.Format(row.Values[index])});
    }
    return text;
}

} // namespace quorvex::chart
