// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Times the display-free routines, each beside the least work that it could be done with, and ends with a
// table of the ratios that have a target, those of the window included. Its exit status is 1 when one of them
// is over its target. With --once as its last argument it measures each ratio a single time, which shows no
// more than that everything runs.

#include "CoreRatios.h"
#include "Ratio.h"
#include "RatioTable.h"
#include "WindowRatios.h"

#include <benchmark/benchmark.h>

#include <exception>
#include <iostream>
#include <string_view>

int main(int argc, char** argv) {
    try {
        bool const isOnce = argc > 1 && std::string_view(argv[argc - 1]) == "--once";
        if (isOnce) {
            --argc;
            quorvex::bench::MeasureOnce();
        }
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
            return 2;
        }
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
        quorvex::bench::RatioTable table;
        quorvex::bench::AddCoreRatios(table);
        quorvex::bench::AddWindowRatios(table, argc, argv);
        std::cout << '\n' << table.Text();
        return isOnce || table.OverCount() == 0 ? 0 : 1;
    } catch (std::exception const& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
