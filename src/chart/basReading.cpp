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
#include <limits>
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

// The rows that a reading has by now, in place of those of the reading before.
class RowFiller {
public:
    explicit RowFiller(std::vector<Row>& rows) : rows_(rows) {}

    // The row is valid until the next one is added.
    template <class ValueOfDay>
    Row const& Add(std::string_view name, int days, ValueOfDay valueOfDay) {
        if (count_ == rows_.size()) {
            rows_.emplace_back();
        }
        Row& row = rows_[count_++];
        row.Name = name;
        row.Values.resize(static_cast<std::size_t>(days));
        int day = 0;
        for (double& value : row.Values) {
            value = text::RequireFinite(valueOfDay(++day));
        }
        return row;
    }

    // No more follow.
    void End() { rows_.resize(count_); }

private:
    std::vector<Row>& rows_;
    std::size_t count_ = 0;
};

struct Extent {
    double Low = std::numeric_limits<double>::infinity();
    double High = -std::numeric_limits<double>::infinity();
};

// From the lowest to the highest value.
Extent ExtentOf(Row const& row) {
    Extent extent;
    for (double const value : row.Values) {
        extent.Low = std::min(extent.Low, value);
        extent.High = std::max(extent.High, value);
    }
    return extent;
}

// Adds the moving average to what is read of the quotes, unless its length is 0.
void ReadMovingAverage(ChartReading& reading, RowFiller& rows, ChartContents const& contents) {
    cycles::CycleCurves const& curves = contents.Curves;
    if (auto const& fault = curves.States.MovingAverage.Fault) {
        reading.Description += Join({" The moving average could not be drawn: ", fault->Description(), "."});
    } else if (curves.MovingAverageLength != 0) {
        Row const& average = rows.Add("Moving average", contents.Series.WorkingCount,
                                      [&](int day) { return curves.MovingAverageCurve[day]; });
        // Every length below 2 gives the closes themselves.
        reading.Description += Join({" ", std::to_string(std::max<int>(curves.MovingAverageLength, 1)),
                                     "-day moving average, last value ",
                                     text::FormatNumber(average.Values.back(), reading.NumberFormat), "."});
    }
}

void ReadQuotes(ChartReading& reading, RowFiller& rows, ChartContents const& contents) {
    quotes::QuoteSeries const& series = contents.Series;
    settings::ChartTypeRow const& type = settings::ChartTypeOf(contents.Settings.ChartType);
    // What a line shows of the quotes is their closes.
    bool const closesAlone = type.Style == settings::QuoteStyle::Line;
    reading.NumberFormat = contents.Settings.CurrencyFormat;
    auto add = [&](char const* name, double quotes::QuoteRecord::*price) -> Row const& {
        return rows.Add(name, series.WorkingCount, [&](int day) { return series.Working[day].*price; });
    };
    if (!closesAlone) {
        add("Open", &quotes::QuoteRecord::Open);
        add("High", &quotes::QuoteRecord::High);
        add("Low", &quotes::QuoteRecord::Low);
    }
    Row const& close = add("Close", &quotes::QuoteRecord::Close);
    Extent const lows = ExtentOf(closesAlone ? close : reading.Rows[2]);
    Extent const highs = closesAlone ? lows : ExtentOf(reading.Rows[1]);
    text::NumberFormat const price(reading.NumberFormat);
    std::string_view const noun = closesAlone ? " close" : "";
    reading.Description = Join({type.InSpeech, " of ", DescribeSpan(series), ". Lowest", noun, " ",
                                price.Format(lows.Low), ", highest", noun, " ", price.Format(highs.High),
                                ", last close ", price.Format(close.Values.back()), "."});
    ReadMovingAverage(reading, rows, contents);
}

void ReadCycles(ChartReading& reading, RowFiller& rows, ChartContents const& contents) {
    text::NumberFormat const whole(WholeNumbers);
    std::string parameters;
    int const days = cycles::CurveDays(contents.Series.WorkingCount);
    int count = 0;
    Extent all;
    for (int index = 1; index <= cycles::CycleCount; ++index) {
        cycles::CycleRecord const& cycle = contents.Cycles.Cycles[index];
        if (cycle.IsActive()) {
            ++count;
            std::string const name = "Cycle " + std::to_string(index);
            parameters += Join({name, ": weight ", whole.Format(cycle.Weight), ", period ",
                                whole.Format(cycle.Period), ". "});
            Extent const extent = ExtentOf(rows.Add(name, days, [&](int day) { return cycle.Values[day]; }));
            all = {std::min(all.Low, extent.Low), std::max(all.High, extent.High)};
        }
    }
    text::NumberFormat const units(CycleUnits);
    reading.Description =
        Join({Count(count, "component cycle"), " over ", DescribeSpan(contents.Series), ". ", parameters,
              "Lowest ", units.Format(all.Low), ", highest ", units.Format(all.High), "."});
}

// Reads composite or residual.
template <class Curve>
void ReadSingleCurve(ChartReading& reading, RowFiller& rows, std::string_view title, std::string_view name,
                     quotes::QuoteSeries const& series, Curve const& curve) {
    Row const& row =
        rows.Add(name, cycles::CurveDays(series.WorkingCount), [&](int day) { return curve[day]; });
    Extent const extent = ExtentOf(row);
    text::NumberFormat const units(CycleUnits);
    reading.Description =
        Join({title, " over ", DescribeSpan(series), ". Lowest ", units.Format(extent.Low), ", highest ",
              units.Format(extent.High), ", last value ", units.Format(row.Values.back()), "."});
}

// Reads a chart that is ready.
void ReadDrawing(ChartKind kind, ChartContents const& contents, ChartReading& reading) {
    reading.NumberFormat = CycleUnits;
    RowFiller rows(reading.Rows);
    switch (kind) {
    case ChartKind::Quotes:
        ReadQuotes(reading, rows, contents);
        break;
    case ChartKind::Cycles:
        ReadCycles(reading, rows, contents);
        break;
    case ChartKind::Composite:
        ReadSingleCurve(reading, rows, "Composite estimate cycle", "Composite", contents.Series,
                        contents.Curves.CompositeCurve);
        break;
    case ChartKind::Residual:
        ReadSingleCurve(reading, rows, "Residual, moving average minus composite cycle,", "Residual",
                        contents.Series, contents.Curves.ResidualCurve);
        break;
    }
    rows.End();
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

DayNames NameDays(quotes::QuoteSeries const& series) {
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
    return std::make_shared<std::vector<std::string> const>(std::move(days));
}

void ReadChart(ChartKind kind, ChartContents const& contents, DayNames const& days, ChartReading& reading) {
    cycles::ChartState const& state = StateOf(kind, contents.Curves.States);
    if (state.Missing) {
        reading = MakeEmptyReading(std::string(ReasonOf(*state.Missing)));
        return;
    }
    reading.Days = nullptr; // until the rows have as many
    auto fault = state.Fault;
    if (!fault) {
        fault = text::Trap([&] { ReadDrawing(kind, contents, reading); });
    }
    if (fault) {
        reading =
            MakeEmptyReading(Join({SubjectOf(kind), " could not be drawn: ", fault->Description(), "."}));
        return;
    }
    reading.Days = days;
}

int CountDays(ChartReading const& reading) {
    return reading.Days == nullptr ? 0 : static_cast<int>(reading.Days->size());
}

std::string DescribeDay(ChartReading const& reading, int day) {
    if (day < 1 || day > CountDays(reading)) {
        return {};
    }
    auto const index = static_cast<std::size_t>(day - 1);
    text::NumberFormat const format(reading.NumberFormat);
    std::string text = (*reading.Days)[index];
    for (Row const& row : reading.Rows) {
        text += Join({"\n", row.Name, ": ", format.Format(row.Values[index])});
    }
    return text;
}

} // namespace quorvex::chart
