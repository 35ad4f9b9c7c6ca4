// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "CoreRatios.h"

#include "ConvertWork.h"
#include "CycleWork.h"
#include "ImportWork.h"
#include "QuoteWork.h"
#include "Ratio.h"
#include "SearchWork.h"

namespace quorvex::bench {

void AddCoreRatios(RatioTable& table) {
    constexpr double ReadingTarget = 1.6;
    constexpr double FitTarget = 1.5;
    constexpr double ConvertTarget = 2;
    constexpr double ImportTarget = 4;
    constexpr double UpdateTarget = 10;
    QuoteWork quotes;
    CycleWork cycles;
    ConvertWork converter;
    ImportWork importer;
    SearchWork search;
    auto const pass = [&] { quotes.ParseNumbers(); };
    table.Add("reading a 500-day quote file / one std::from_chars pass",
              MeasureRatio([&] { quotes.Load(); }, pass), ReadingTarget);
    table.Add("    the same from memory", MeasureRatio([&] { quotes.ReadText(); }, pass));
    table.Add("three-cycle fit over 500 days / its sines and cosines",
              MeasureRatio([&] { cycles.FitThreeCycles(); }, [&] { cycles.ComputeSinesAndCosines(); }),
              FitTarget);
    auto const scan = [&] { search.ComputeSinesAndCosines(); };
    table.Add("search for one cycle over 500 days / sines of all periods",
              MeasureRatio([&] { search.Find(1); }, scan));
    table.Add("search for three cycles / the same", MeasureRatio([&] { search.Find(3); }, scan));
    table.Add("search for ten cycles / the same", MeasureRatio([&] { search.Find(10); }, scan));
    table.Add("converting 32,000 lines / copying them with std::getline",
              MeasureRatio([&] { converter.Convert(); }, [&] { converter.CopyLines(); }), ConvertTarget);
    table.Add("importing 100 MB of rows / counting them with std::getline",
              MeasureRatio([&] { importer.Import(); }, [&] { importer.CountLines(); }), ImportTarget);
    table.Add("daily update of a 500-day quote file, milliseconds",
              MeasureMilliseconds([&] { importer.Update(); }), UpdateTarget);
}

} // namespace quorvex::bench
