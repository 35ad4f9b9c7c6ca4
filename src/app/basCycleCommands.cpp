// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basCycleCommands.h"

#include "app/basRedraw.h"
#include "cycles/basComputation.h"
#include "cycles/basParameters.h"
#include "platform/basMessages.h"
#include "quotes/basQuotes.h"
#include "search/basSearch.h"

namespace quorvex::app {

void FindBestCycles(Program& program, Services& services) {
    if (!quotes::RequireQuotes(program.Quotes, services.Dialogs)) {
        return;
    }
    platform::RunReported(services.Dialogs, [&] {
        cycles::RefreshMovingAverage(program.Quotes, program.Settings, program.Curves);
        if (auto const& fault = program.Curves.States.MovingAverage.Fault) {
            throw text::RunTimeError(*fault);
        }
        program.FoundModel.reset();
        services.Window.Open(SecondaryWindow::FindCycles);
        if (program.FoundModel) {
            // Cycles that are only switched off would stay in the composite.
            cycles::ClearCycles(program.Cycles, program.Curves.CompositeCurve);
            search::WriteModel(*program.FoundModel, services.Grid);
            Redraw(program, services);
        }
    });
}

void TestForecast(Program& program, Services& services) {
    if (quotes::RequireQuotes(program.Quotes, services.Dialogs)) {
        services.Window.Open(SecondaryWindow::TestForecast);
    }
}

void WriteParameterFile(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        cycles::WriteParameterFile(program.Cycles, services.Grid, program.ProgramFolder,
                                   services.System.Files, services.Dialogs);
    });
}

} // namespace quorvex::app
