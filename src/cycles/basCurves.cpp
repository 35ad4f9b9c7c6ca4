// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basCurves.h"

#include "cycles/EvenAngles.h"
#include "text/RunTimeError.h"
#include "text/basNumbers.h"

#include <algorithm>

namespace quorvex::cycles {

namespace {

int LastDay(std::int16_t workingCount) {
    return CurveDays(workingCount) + ForecastDays;
}

using CurveAngles = EvenAngles<LastCurveDay>;

void ComputeValues(CycleRecord& cycle, int lastDay, CurveAngles& angles) {
    double const frequency = text::Divide(TwoPi, cycle.Period);
    double const phase = cycle.Shift == 0 ? 0 : text::Divide(TwoPi, cycle.Shift);
    static_cast<void>(text::RequireFinite(lastDay * frequency + phase));
    angles.Take(phase, frequency, lastDay);
    for (int day = 1; day <= lastDay; ++day) {
        cycle.Values[day] = cycle.Weight * angles.Sine(day);
    }
}

double SumOfCloses(quotes::QuoteRecords const& records, int first, int last) {
    double sum = 0;
    for (int day = first; day <= last; ++day) {
        sum += records[day].Close;
    }
    return text::RequireFinite(sum);
}

double MeanOfCloses(quotes::QuoteRecords const& records, int first, int last) {
    return SumOfCloses(records, first, last) / (last - first + 1);
}

} // namespace

std::int16_t CurveDays(std::int16_t workingCount) {
    constexpr std::int16_t DaysWithoutQuotes = 100;
    return workingCount < 1 ? DaysWithoutQuotes : workingCount;
}

void ComputeCycleValues(CycleParameterSet& set, std::int16_t workingCount) {
    CurveAngles angles;
    for (int index = 1; index <= CycleCount; ++index) {
        CycleRecord& cycle = set.Cycles[index];
        if (cycle.IsActive()) {
            ComputeValues(cycle, LastDay(workingCount), angles);
        }
    }
}

void ComputeComposite(CycleParameterSet const& set, std::int16_t workingCount, CycleCurve& compositeCurve) {
    int const lastDay = LastDay(workingCount);
    for (int day = 1; day <= lastDay; ++day) {
        double sum = 0;
        for (int cycle = 1; cycle <= CycleCount; ++cycle) {
            sum += set.Cycles[cycle].Values[day];
        }
        compositeCurve[day] = text::RequireFinite(sum);
    }
}

std::int16_t MovingAverageLength(std::string_view movingAverageIndex) {
    return text::WholeNumber(text::LeadingNumber(movingAverageIndex));
}

int MovingAverageReach(std::int16_t length) {
    return text::WholeNumber((length - 0.5) / 2);
}

void ComputeMovingAverage(quotes::QuoteSeries const& series, std::int16_t length,
                          QuoteCurve& movingAverageCurve) {
    int const last = series.WorkingCount;
    quotes::QuoteRecords const& records = series.Working;
    if (length < 2) {
        for (int day = 1; day <= last; ++day) {
            movingAverageCurve[day] = records[day].Close;
        }
        return;
    }
    int const half = MovingAverageReach(length);
    for (int day = 1; day <= half; ++day) {
        movingAverageCurve[day] = MeanOfCloses(records, 1, 2 * day - 1);
    }
    for (int day = half + 1; day <= last - half; ++day) {
        movingAverageCurve[day] = SumOfCloses(records, day - half, day + half) / length;
    }
    for (int day = last - half + 1; day <= last; ++day) {
        movingAverageCurve[day] = MeanOfCloses(records, last - 2 * (last - day), last);
    }
}

void ComputeResidual(CycleCurves& curves, quotes::PriceScale const& scale, std::int16_t workingCount) {
    double const factor = text::Divide(ScaleHeight, scale.PriceScaleHigh - scale.PriceScaleLow);
    double const offset = -(scale.PriceScaleLow + scale.PriceScaleHigh) * factor / 2;
    for (int day = 1; day <= workingCount; ++day) {
        curves.ResidualCurve[day] = text::RequireFinite(curves.MovingAverageCurve[day] * factor + offset -
                                                        curves.CompositeCurve[day]);
    }
}

ResidualScale ScaleResidual(QuoteCurve const& residualCurve, std::int16_t workingCount) {
    constexpr double Margin = 0.1;
    ResidualScale scale{residualCurve[1], residualCurve[1]};
    for (int day = 2; day <= workingCount; ++day) {
        scale.High = std::max(scale.High, residualCurve[day]);
        scale.Low = std::min(scale.Low, residualCurve[day]);
    }
    scale.High += (scale.High - scale.Low) * Margin;
    scale.Low -= (scale.High - scale.Low) * Margin;
    return scale;
}

} // namespace quorvex::cycles
