// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basCommands.h"

#include "app/basRedraw.h"
#include "chart/basPlot.h"
#include "cycles/basAutomate.h"
#include "cycles/basCorrel.h"
#include "cycles/basForecast.h"
#include "cycles/basParameters.h"
#include "platform/basMessages.h"
#include "quotes/basQuotes.h"

#include <vector>

namespace quorvex::app {

void FileOpen(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        quotes::OpenQuoteFile(program.Quotes, program.Settings, services.Files, services.Dialogs);
        Redraw(program, services);
    });
}

void FileClose(Program& program, Services& services) {
    chart::PrepareChart(services.Boxes.Pic1, program.Quotes.WorkingCount);
    chart::PrepareChart(services.Boxes.Pic4, program.Quotes.WorkingCount);
    quotes::CloseQuoteFile(program.Quotes);
}

void FileSaveAs(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        quotes::SaveQuoteFileAs(program.Quotes, program.Settings, services.Files, services.Dialogs);
        Redraw(program, services);
    });
}

void ParametersNew(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        if (cycles::NewParameters(program.Cycles, program.Curves.CompositeCurve, services.Grid,
                                  services.Dialogs)) {
            for (platform::Canvas* box : {&services.Boxes.Pic2, &services.Boxes.Pic3, &services.Boxes.Pic4}) {
                chart::PrepareChart(*box, program.Quotes.WorkingCount);
            }
        }
    });
}

void ParametersOpen(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        cycles::OpenParameters(program.Cycles, services.Grid, program.ProgramFolder, services.Files,
                               services.Dialogs);
    });
    Redraw(program, services);
}

void ParametersSave(Services& services) {
    platform::RunReported(services.Dialogs, [&] { cycles::SaveParameters(services.Grid, services.Dialogs); });
}

void ParametersSaveAs(Program& program, Services& services) {
    platform::RunReported(services.Dialogs,
                          [&] { cycles::SaveParametersAs(program.Cycles, services.Grid, services.Dialogs); });
}

void ParametersAutomate(int cycleCount, Program& program, Services& services) {
    if (!quotes::RequireQuotes(program.Quotes, services.Dialogs)) {
        return;
    }
    // A fault ends the command: the grid keeps what was written before it.
    platform::RunReported(services.Dialogs, [&] {
        // One cycle is fitted to the moving average as it stands.
        if (cycleCount > 1) {
            RefreshMovingAverage(program, services.Boxes.Pic1);
        }
        std::vector<cycles::SinusoidFit> fits;
        cycles::AutomateCycles(cycleCount, program.Quotes.WorkingCount, program.Curves, program.Cycles,
                               services.Grid, fits);
        Redraw(program, services);
    });
}

void Correlation(Program& program, Services& services) {
    if (!quotes::RequireQuotes(program.Quotes, services.Dialogs)) {
        return;
    }
    platform::RunReported(services.Dialogs, [&] {
        cycles::ShowCorrelation(program.Curves, program.Quotes.WorkingCount, services.Dialogs);
        Redraw(program, services);
    });
}

bool RequireForecast(Program const& program, Services& services) {
    if (!quotes::RequireQuotes(program.Quotes, services.Dialogs)) {
        return false;
    }
    bool enough = false;
    platform::RunReported(services.Dialogs,
                          [&] { enough = cycles::RequireForecastWeights(services.Grid, services.Dialogs); });
    return enough;
}

} // namespace quorvex::app
