// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basCommands.h"

#include "app/basRedraw.h"
#include "chart/basPlot.h"
#include "chart/basPrint.h"
#include "cycles/basAutomate.h"
#include "cycles/basComputation.h"
#include "cycles/basCorrel.h"
#include "cycles/basForecast.h"
#include "cycles/basParameters.h"
#include "platform/basMessages.h"
#include "quotes/basQuotes.h"

#include <vector>

namespace quorvex::app {

namespace {

// Shows the window until it is closed. The main window is active again then, which draws everything anew.
void OpenWindow(SecondaryWindow window, Program& program, Services& services) {
    services.Window.Open(window);
    Redraw(program, services);
}

} // namespace

void FileOpen(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        quotes::OpenQuoteFile(program.Quotes, program.Settings, services.System.Files, services.Dialogs);
        Redraw(program, services);
    });
}

void FileClose(Program& program, Services& services) {
    // A fault of a drawing ends it quietly; the file is closed all the same.
    static_cast<void>(text::Trap([&] {
        chart::PrepareChart(services.Boxes.Pic1, program.Quotes.WorkingCount);
        chart::PrepareChart(services.Boxes.Pic4, program.Quotes.WorkingCount);
    }));
    quotes::CloseQuoteFile(program.Quotes);
    cycles::MarkEmptyCharts(program.Quotes, program.Cycles, program.Curves.States);
    services.Window.SetCaption(Caption(program));
}

void FileEdit(Program& program, Services& services) {
    OpenWindow(SecondaryWindow::Edit, program, services);
}

void FileSaveAs(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        quotes::SaveQuoteFileAs(program.Quotes, program.Settings, services.System.Files, services.Dialogs);
        Redraw(program, services);
    });
}

void FileConvertCSI(Program& program, Services& services) {
    OpenWindow(SecondaryWindow::ConvertCSI, program, services);
}

void FileConvertBarChart(Program& program, Services& services) {
    OpenWindow(SecondaryWindow::ConvertBarChart, program, services);
}

void FileConvertCustom(Program& program, Services& services) {
    OpenWindow(SecondaryWindow::ConvertCustom, program, services);
}

void FilePrint(Program& program, Services& services) {
    auto const print = [&] {
        chart::PrintChart(services.System.Printing, services.System.Pointer, program.Quotes,
                          program.Settings);
    };
    platform::RunReported(services.Dialogs, [&] {
        if (program.Quotes.HasQuotes()) {
            print();
        } else {
            services.Dialogs.Show(
                {"Please load a quote data file", "Quorvex - Print Chart", platform::Icon::Information});
        }
        print();
    });
}

void FilePrintSetup(Program&, Services& services) {
    platform::RunReported(services.Dialogs, [&] { services.System.Launcher.Start(platform::ControlPanel); });
}

void FileProperties(Program& program, Services& services) {
    if (!program.Quotes.HasQuotes()) {
        services.Dialogs.Show(
            {"Please load a quote data file", "Quorvex - Properties", platform::Icon::Information});
        return;
    }
    OpenWindow(SecondaryWindow::Properties, program, services);
}

void FileExit(Program&, Services& services) {
    services.Window.End();
}

void ParametersNew(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        if (cycles::NewParameters(program.Cycles, program.Curves.CompositeCurve, services.Grid,
                                  services.Dialogs)) {
            cycles::MarkEmptyCharts(program.Quotes, program.Cycles, program.Curves.States);
            for (platform::Canvas* box : {&services.Boxes.Pic2, &services.Boxes.Pic3, &services.Boxes.Pic4}) {
                chart::PrepareChart(*box, program.Quotes.WorkingCount);
            }
        }
    });
}

void ParametersOpen(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        cycles::OpenParameters(program.Cycles, services.Grid, program.ProgramFolder, services.System.Files,
                               services.Dialogs);
    });
    Redraw(program, services);
}

void ParametersSave(Program&, Services& services) {
    platform::RunReported(services.Dialogs, [&] { cycles::SaveParameters(services.Grid, services.Dialogs); });
}

void ParametersSaveAs(Program& program, Services& services) {
    platform::RunReported(services.Dialogs,
                          [&] { cycles::SaveParametersAs(program.Cycles, services.Grid, services.Dialogs); });
}

void ParametersPrint(Program&, Services&) {}

void ParametersAutomate(int cycleCount, Program& program, Services& services) {
    if (!quotes::RequireQuotes(program.Quotes, services.Dialogs)) {
        return;
    }
    // A fault ends the command: the grid keeps what was written before it.
    platform::RunReported(services.Dialogs, [&] {
        // One cycle is fitted to the moving average as it stands.
        if (cycleCount > 1) {
            chart::DrawQuoteChart(services.Boxes.Pic1, program.Quotes, program.Settings, program.Curves);
            chart::DrawMovingAverage(services.Boxes.Pic1, program.Quotes, program.Settings, program.Curves);
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

void Refresh(Program& program, Services& services) {
    Redraw(program, services);
}

void Forecast(Program& program, Services& services) {
    if (!quotes::RequireQuotes(program.Quotes, services.Dialogs)) {
        return;
    }
    platform::RunReported(services.Dialogs, [&] {
        if (cycles::RequireForecastWeights(services.Grid, services.Dialogs)) {
            OpenWindow(SecondaryWindow::Forecast, program, services);
        }
    });
}

void Preferences(Program& program, Services& services) {
    OpenWindow(SecondaryWindow::Preferences, program, services);
}

void Legend(Program& program, Services& services) {
    OpenWindow(SecondaryWindow::Legend, program, services);
}

void ShowHelp(std::string_view helpFileName, Program& program, Services& services) {
    program.HelpFileName = helpFileName;
    OpenWindow(SecondaryWindow::Help, program, services);
}

void HelpAbout(Program& program, Services& services) {
    OpenWindow(SecondaryWindow::About, program, services);
}

void HelpUserManual(Program&, Services& services) {
    services.Dialogs.Show({"The trader is encouraged to print the User Manual using \n"
                           "Microsoft Word 2000. The document can be found at\n"
                           "the following location:\n"
                           "\n"
                           "   C:\\Veltrano\\Quorvex\\Quorvex-UserManual.doc\n",
                           "Quorvex - Help"});
}

} // namespace quorvex::app
