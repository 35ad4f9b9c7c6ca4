// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "WindowRatios.h"

#include "CycleWork.h"
#include "EditWork.h"
#include "HelpWork.h"
#include "OffscreenScreens.h"
#include "PaintWork.h"
#include "PlotWork.h"
#include "PreferencesWork.h"
#include "Ratio.h"
#include "RedrawWork.h"
#include "StartWork.h"
#include "app/ui/basResources.h"
#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QScreen>
#include <QtGlobal>
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::bench {

namespace {

struct RedrawCase {
    char const* What;
    QSize Size; // of the window, in logical pixels
    int Screen;
};

constexpr QSize FullHd(1920, 1080);
constexpr QSize FourK(3840, 2160);

constexpr RedrawCase RedrawCases[] = {
    {"1920 x 1080", FullHd, 0}, {"1920 x 1080 at scale 2", FullHd, 1}, {"3840 x 2160", FourK, 0}};

// As large as the cases need.
QList<OffscreenScreen> RedrawScreens() {
    return {{FourK, 1}, {FourK, 2}};
}

void AddRedrawRatios(RatioTable& table, RedrawCase const& shown) {
    constexpr double PrimitivesTarget = 1;
    constexpr double ReplotTarget = 0.6;
    RedrawWork window(shown.Size, *QGuiApplication::screens().at(shown.Screen));
    for (std::string_view const chartType : {"Daily Bar Chart", "Candlestick Chart", "Line Chart"}) {
        window.ShowChartType(chartType);
        PaintWork primitives(window);
        PlotWork plots(window);
        auto const redraw = [&] { window.Redraw(); };
        std::string const what = "redraw, " + std::string(shown.What) + ", " + std::string(chartType);
        table.Add(what + " / QCustomPlot", MeasureRatio(redraw, [&] { plots.Replot(); }), ReplotTarget);
        table.Add("    / the calls of QPainter in it", MeasureRatio(redraw, [&] { primitives.Paint(); }),
                  PrimitivesTarget);
    }
}

// As a command does it, after charts were painted by Qt; against the fit after plain writing to as much
// memory.
void AddFitRatio(RatioTable& table) {
    constexpr double FitTarget = 1.1;
    RedrawWork window(FullHd, *QGuiApplication::primaryScreen());
    PaintWork primitives(window);
    CycleWork cycles;
    std::vector<unsigned char> memory(primitives.Bytes());
    auto const fit = [&] { cycles.FitThreeCycles(); };
    PreparedWork const inWindow{[&] { primitives.Paint(); },
                                [&] { platform::qt::RunGuarded(window.Window(), fit); }};
    PreparedWork const alone{[&] { std::fill(memory.begin(), memory.end(), static_cast<unsigned char>(1)); },
                             fit};
    table.Add("three-cycle fit in the window / the same fit alone", MeasureRatio(inWindow, alone), FitTarget);
}

void AddHelpRatio(RatioTable& table) {
    constexpr double HelpTarget = 1.5;
    HelpWork help;
    table.Add("help, longest document / Qt with the same as HTML",
              MeasureRatio([&] { help.ShowHelp(); }, [&] { help.ShowHtml(); }), HelpTarget);
}

void AddEditorRatios(RatioTable& table) {
    constexpr double OpenTarget = 1.5;
    constexpr double PasteTarget = 2;
    constexpr double AppendTarget = 16; // so that a frame of the screen is enough
    EditWork edit;
    table.Add("editor with 500 days opened / Qt's own table of them",
              MeasureRatio([&] { edit.OpenEditor(); }, [&] { edit.OpenTable(); }), OpenTarget);
    edit.UseBoth([&] {
        PreparedWork const paste{[&] { edit.UndoInEditor(); }, [&] { edit.PasteIntoEditor(); }};
        PreparedWork const plainly{[&] { edit.ShortenTable(); }, [&] { edit.PasteIntoTable(); }};
        table.Add("    400 rows pasted / the same", MeasureRatio(paste, plainly), PasteTarget);
        edit.UndoInEditor();
        auto const append = [&] {
            edit.AppendToEditor();
            edit.UndoInEditor();
        };
        table.Add("    a row appended and undone, milliseconds", MeasureMilliseconds(append), AppendTarget);
    });
}

void AddPreferencesRatio(RatioTable& table) {
    constexpr double OpenTarget = 1.5;
    PreferencesWork preferences;
    table.Add("preferences opened / as many lists with the same items",
              MeasureRatio([&] { preferences.OpenPreferences(); }, [&] { preferences.OpenLists(); }),
              OpenTarget);
}

void AddStartRatios(RatioTable& table) {
    constexpr double StartTarget = 1.3;
    constexpr double MemoryTarget = 1.25;
    StartRatios const ratios = MeasureStarts();
    table.Add("start to first painted window / same menus and edits", ratios.Time, StartTarget);
    if (ratios.PeakMemory) {
        table.Add("peak memory with 500 days open / the same", *ratios.PeakMemory, MemoryTarget);
    }
}

} // namespace

void AddWindowRatios(RatioTable& table, int argc, char** argv) {
    OffscreenScreens const screens(RedrawScreens());
    qputenv("QT_QPA_PLATFORM", screens.Platform());
    QApplication const application(argc, argv);
    app::ui::LoadResources();
    platform::qt::SetProgramFont();
    for (RedrawCase const& shown : RedrawCases) {
        AddRedrawRatios(table, shown);
    }
    AddFitRatio(table);
    AddHelpRatio(table);
    AddEditorRatios(table);
    AddPreferencesRatio(table);
    AddStartRatios(table);
}

} // namespace quorvex::bench
