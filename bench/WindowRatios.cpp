// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "WindowRatios.h"

#include "PaintWork.h"
#include "PlotWork.h"
#include "Ratio.h"
#include "RedrawWork.h"
#include "StartWork.h"
#include "app/ui/basResources.h"
#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QtGlobal>
#include <string>
#include <string_view>

namespace quorvex::bench {

namespace {

void AddRedrawRatios(RatioTable& table) {
    constexpr double PrimitivesTarget = 1.5;
    constexpr double ReplotTarget = 1.0 / 3;
    RedrawWork window;
    for (std::string_view const chartType : {"Daily Bar Chart", "Candlestick Chart", "Line Chart"}) {
        window.ShowChartType(chartType);
        PaintWork primitives(window);
        PlotWork plots(window);
        auto const redraw = [&] { window.Redraw(); };
        std::string const what = "redraw, " + std::string(chartType);
        table.Add(what + " / its QPainter primitives", MeasureRatio(redraw, [&] { primitives.Paint(); }),
                  PrimitivesTarget);
        auto const replot = [&] { plots.Replot(); };
        table.Add(what + " / QCustomPlot replot", MeasureRatio(redraw, replot), ReplotTarget);
        table.Add("    of it its QPainter primitives", MeasureRatio([&] { primitives.Paint(); }, replot));
    }
}

void AddStartRatios(RatioTable& table) {
    constexpr double StartTarget = 1.3;
    constexpr double MemoryTarget = 1.3;
    StartRatios const ratios = MeasureStarts();
    table.Add("start to first painted window / an empty QMainWindow", ratios.Time, StartTarget);
    if (ratios.PeakMemory) {
        table.Add("peak memory with 500 days open / an empty QMainWindow", *ratios.PeakMemory, MemoryTarget);
    }
}

} // namespace

void AddWindowRatios(RatioTable& table, int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(argc, argv);
    app::ui::LoadResources();
    platform::qt::SetProgramFont();
    AddRedrawRatios(table);
    AddStartRatios(table);
}

} // namespace quorvex::bench
