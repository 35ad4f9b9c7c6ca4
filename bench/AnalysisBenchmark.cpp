// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// One whole analysis of a quote file, as the companion runs it.

#include "GeneratedQuotes.h"
#include "SilentDialogs.h"
#include "TemporaryQuoteFile.h"
#include "app/Program.h"
#include "app/basAnalysis.h"
#include "platform/disk/DiskFiles.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace quorvex::bench {

namespace {

void WholeAnalysis(benchmark::State& state) {
    TemporaryQuoteFile const file(GeneratedQuoteText());
    auto const program = std::make_unique<app::Program>();
    cycles::TextGrid grid;
    SilentDialogs dialogs;
    platform::disk::DiskFiles files;
    app::AnalysisServices const services{
        .Grid = grid, .Files = files, .Dialogs = dialogs, .ParameterDialogs = dialogs};
    app::AnalysisRequest request;
    request.AutomatedCycles = 3;
    app::StartUp(*program, grid, platform::NoProfile(), file.Folder());
    program->Quotes.QuoteFileName = TemporaryQuoteFile::Name;
    for ([[maybe_unused]] auto const _ : state) {
        auto const result = app::Analyse(*program, services, request);
        if (!result || !result->ForecastShown) {
            state.SkipWithError("The generated quotes could not be analysed.");
            break;
        }
    }
}

BENCHMARK(WholeAnalysis)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quorvex::bench
