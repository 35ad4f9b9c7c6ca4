// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "CycleWork.h"

#include "GeneratedQuotes.h"
#include "cycles/basCurves.h"
#include "quotes/PriceScale.h"
#include "quotes/basDisk.h"
#include "text/basFields.h"
#include "text/basFormats.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <stdexcept>
#include <string>

namespace quorvex::bench {

namespace {

constexpr std::int16_t UsualLength = 3;
constexpr int FittedCycles = 3;

std::unique_ptr<quotes::QuoteSeries> GeneratedSeries() {
    auto series = std::make_unique<quotes::QuoteSeries>();
    std::string const text = GeneratedQuoteText();
    text::TextSource source(text);
    series->QuoteCount = quotes::ReadQuotes(source, text::NumberFormat("####0.00"), *series);
    quotes::AnalyseWholeSeries(*series);
    return series;
}

void SetTenCycles(cycles::CycleParameterSet& set) {
    for (int index = 1; index <= cycles::CycleCount; ++index) {
        cycles::CycleRecord& cycle = set.Cycles[index];
        cycle.Weight = 10;
        cycle.Period = 8 + 7 * index;
        cycle.Shift = index;
    }
}

} // namespace

CycleWork::CycleWork() : series_(GeneratedSeries()), scale_(quotes::ComputePriceScale(*series_)) {
    SetTenCycles(set_);
    Average(UsualLength);
    ComputeTenCycles();
    SubtractComposite();
    fitting_.Curves.MovingAverageCurve = curves_.MovingAverageCurve;
    FitThreeCycles();
    if (fitting_.Fits.size() != FittedCycles) {
        throw std::runtime_error("No three cycles could be fitted to the generated quotes.");
    }
}

void CycleWork::Average(std::int16_t length) {
    cycles::ComputeMovingAverage(*series_, length, curves_.MovingAverageCurve);
    benchmark::ClobberMemory();
}

void CycleWork::ComputeTenCycles() {
    cycles::ComputeCycleValues(set_, series_->WorkingCount);
    cycles::ComputeComposite(set_, series_->WorkingCount, curves_.CompositeCurve);
    benchmark::ClobberMemory();
}

void CycleWork::SubtractComposite() {
    cycles::ComputeResidual(curves_, scale_, series_->WorkingCount);
    benchmark::ClobberMemory();
}

void CycleWork::FitThreeCycles() {
    fitting_.Fits.clear();
    cycles::AutomateCycles(FittedCycles, series_->WorkingCount, fitting_.Curves, fitting_.Set, fitting_.Grid,
                           fitting_.Fits);
    benchmark::ClobberMemory();
}

void CycleWork::ComputeSinesAndCosines() {
    for (cycles::SinusoidFit const& fit : fitting_.Fits) {
        for (int day = 1; day <= series_->WorkingCount; ++day) {
            double const angle = fit.Frequency * day;
            basis_.Cosine[day] = std::cos(angle);
            basis_.Sine[day] = std::sin(angle);
        }
        benchmark::ClobberMemory();
    }
}

} // namespace quorvex::bench
