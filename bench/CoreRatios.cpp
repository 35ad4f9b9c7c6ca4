// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "CoreRatios.h"

#include "ConvertWork.h"
#include "CycleWork.h"
#include "QuoteWork.h"
#include "Ratio.h"

namespace quorvex::bench {

void AddCoreRatios(RatioTable& table) {
    constexpr double ReadingTarget = 2;
    constexpr double FitTarget = 1.5;
    constexpr double ConvertTarget = 2;
    QuoteWork quotes;
    CycleWork cycles;
    ConvertWork converter;
    auto const pass = [&] { quotes.ParseNumbers(); };
    table.Add("reading a 500-day quote file / one std::from_chars pass",
              MeasureRatio([&] { quotes.Load(); }, pass), ReadingTarget);
    table.Add("    the same from memory", MeasureRatio([&] { quotes.ReadText(); }, pass));
    table.Add("three-cycle fit over 500 days / its sines and cosines",
              MeasureRatio([&] { cycles.FitThreeCycles(); }, [&] { cycles.ComputeSinesAndCosines(); }),
              FitTarget);
    table.Add("converting 32,000 lines / copying them with std::getline",
              MeasureRatio([&] { converter.Convert(); }, [&] { converter.CopyLines(); }), ConvertTarget);
}

} // namespace quorvex::bench
