// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The header of QCustomPlot uses Qt's keywords, which are off for our own files.
#undef QT_NO_KEYWORDS

#include "PlotWork.h"

#include "cycles/basCurves.h"
#include "settings/ChartTypes.h"

#include <functional>
#include <numeric>
#include <qcustomplot.h>

namespace quorvex::bench {

namespace {

using Values = QVector<double>;

// A tick a day, a large one every ten.
class DayTicker final : public QCPAxisTickerFixed {
public:
    DayTicker() { setTickStep(DaysOfLargeTick); }

protected:
    int getSubTickCount(double) override { return DaysOfLargeTick - 1; }

private:
    static constexpr int DaysOfLargeTick = 10;
};

Values DaysUpTo(int last) {
    Values days(last);
    std::iota(days.begin(), days.end(), 1);
    return days;
}

template <class Curve>
Values ValuesOf(Curve const& curve, int last) {
    return {&curve[1], &curve[last] + 1};
}

Values PricesOf(quotes::QuoteSeries const& series, double quotes::QuoteRecord::*price) {
    Values prices;
    for (int day = 1; day <= series.WorkingCount; ++day) {
        prices.append(series.Working[day].*price);
    }
    return prices;
}

} // namespace

// One plot and how it gets its data.
class PlotWork::Plot {
public:
    Plot(QWidget const& box, int days, double top, double bottom) {
        plot_.xAxis->setRange(0, days + 1);
        plot_.xAxis->setTicker(QSharedPointer<DayTicker>::create());
        plot_.xAxis->setTickLabels(false);
        plot_.xAxis->grid()->setVisible(false);
        auto const quarters = QSharedPointer<QCPAxisTickerFixed>::create();
        quarters->setTickOrigin(bottom);
        quarters->setTickStep((top - bottom) / 4);
        plot_.yAxis->setTicker(quarters);
        plot_.yAxis->setRange(bottom, top);
        plot_.yAxis->setSubTicks(false);
        plot_.yAxis->setTickLabelSide(QCPAxis::lsInside);
        plot_.axisRect()->setAutoMargins(QCP::msNone);
        plot_.axisRect()->setMargins({});
        plot_.resize(box.size());
        plot_.setBufferDevicePixelRatio(box.devicePixelRatioF());
        plot_.show(); // it has a buffer then
        plot_.setUpdatesEnabled(false);
    }

    void AddCurve(Values const& values) {
        QCPGraph* graph = plot_.addGraph();
        fillings_.emplace_back([graph, days = DaysUpTo(static_cast<int>(values.size())), values] {
            graph->setData(days, values, true);
        });
    }

    void AddBars(quotes::QuoteSeries const& series, QCPFinancial::ChartStyle style) {
        auto* bars = new QCPFinancial(plot_.xAxis, plot_.yAxis); // belongs to the plot
        bars->setChartStyle(style);
        fillings_.emplace_back([bars, days = DaysUpTo(series.WorkingCount),
                                open = PricesOf(series, &quotes::QuoteRecord::Open),
                                high = PricesOf(series, &quotes::QuoteRecord::High),
                                low = PricesOf(series, &quotes::QuoteRecord::Low),
                                close = PricesOf(series, &quotes::QuoteRecord::Close)] {
            bars->setData(days, open, high, low, close, true);
        });
    }

    void HideValues() const { plot_.yAxis->setTickLabels(false); }

    void Replot() {
        for (auto const& fill : fillings_) {
            fill();
        }
        plot_.replot(QCustomPlot::rpQueuedRefresh);
    }

private:
    QCustomPlot plot_;
    std::vector<std::function<void()>> fillings_;
};

PlotWork::PlotWork(RedrawWork const& window) {
    app::Program const& program = window.Data();
    quotes::QuoteSeries const& series = program.Quotes;
    int const count = series.WorkingCount;
    int const days = cycles::CurveDays(series.WorkingCount);
    auto const add = [&](int columns, double top, double bottom) -> Plot& {
        QWidget const& box = *window.Boxes().at(plots_.size());
        return *plots_.emplace_back(std::make_unique<Plot>(box, columns, top, bottom));
    };

    Plot& quotesPlot =
        add(days, program.Curves.PriceScale.PriceScaleHigh, program.Curves.PriceScale.PriceScaleLow);
    switch (settings::ChartTypeOf(program.Settings.ChartType).Style) {
    case settings::QuoteStyle::Bars:
        quotesPlot.AddBars(series, QCPFinancial::csOhlc);
        break;
    case settings::QuoteStyle::Candles:
        quotesPlot.AddBars(series, QCPFinancial::csCandlestick);
        break;
    case settings::QuoteStyle::Line:
        quotesPlot.AddCurve(PricesOf(series, &quotes::QuoteRecord::Close));
        break;
    }
    quotesPlot.AddCurve(ValuesOf(program.Curves.MovingAverageCurve, count));

    constexpr double CycleTop = 105;
    Plot& cyclesPlot = add(days, CycleTop, -CycleTop);
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        cyclesPlot.AddCurve(ValuesOf(program.Cycles.Cycles[cycle].Values, days));
    }
    constexpr double CompositeTop = 110;
    add(days, CompositeTop, -CompositeTop).AddCurve(ValuesOf(program.Curves.CompositeCurve, days));
    auto const bounds = cycles::ScaleResidual(program.Curves.ResidualCurve, series.WorkingCount);
    add(days, bounds.High, bounds.Low).AddCurve(ValuesOf(program.Curves.ResidualCurve, count));
    for (std::size_t index = 1; index < plots_.size(); ++index) {
        plots_[index]->HideValues();
    }
    Replot();
}

PlotWork::~PlotWork() = default;

void PlotWork::Replot() {
    for (auto const& plot : plots_) {
        plot->Replot();
    }
}

} // namespace quorvex::bench
