// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/CharacterChart.h"

#include "cycles/basCurves.h"
#include "text/basFormats.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvex::cli {

namespace {

constexpr int Rows = 16;
constexpr int MiddleRow = Rows / 2;
constexpr int LeastColumns = 20;
constexpr int MostColumns = 160;
constexpr char CloseMark = '*';
constexpr char CompositeMark = 'o';
constexpr char BothMark = '@';

// Characters by row, top row first.
class CharacterCanvas {
public:
    CharacterCanvas(int columns, quotes::PriceScale const& scale)
        : scale_(scale),
          rows_(Rows, std::string(static_cast<std::size_t>(columns), ' ')) {}

    void Mark(int column, double price, char mark) {
        double const share = (scale_.PriceScaleHigh - price) / (scale_.PriceScaleHigh - scale_.PriceScaleLow);
        double const row = share * (Rows - 1);
        // A composite may leave the price axis.
        if (row < 0 || row > Rows - 1) {
            return;
        }
        char& cell = rows_.at(static_cast<std::size_t>(std::round(row))).at(static_cast<std::size_t>(column));
        cell = cell == ' ' || cell == mark ? mark : BothMark;
    }

    [[nodiscard]] std::vector<std::string> const& Lines() const { return rows_; }

private:
    quotes::PriceScale scale_;
    std::vector<std::string> rows_;
};

// A value of the composite as a price: the inverse of the mapping of prices to cycle units.
double PriceOf(double cycleUnits, quotes::PriceScale const& scale) {
    double const middle = (scale.PriceScaleHigh + scale.PriceScaleLow) / 2;
    return middle + cycleUnits * (scale.PriceScaleHigh - scale.PriceScaleLow) / cycles::ScaleHeight;
}

std::array<std::string, Rows> AxisLabels(app::Program const& program) {
    quotes::PriceScale const& scale = program.Curves.PriceScale;
    text::NumberFormat const format(program.Settings.CurrencyFormat);
    std::array<std::string, Rows> labels;
    labels.front() = format.Format(scale.PriceScaleHigh);
    labels.at(MiddleRow) = format.Format(scale.PriceScaleHigh - (scale.PriceScaleHigh - scale.PriceScaleLow) *
                                                                    MiddleRow / (Rows - 1));
    labels.back() = format.Format(scale.PriceScaleLow);
    return labels;
}

} // namespace

std::string CharacterChart(app::Program const& program, int width) {
    cycles::CycleCurves const& curves = program.Curves;
    if (!curves.States.Quotes.IsReady()) {
        return {};
    }
    bool const hasComposite = curves.States.Composite.IsReady();
    auto const labels = AxisLabels(program);
    std::size_t labelWidth = 0;
    for (std::string const& label : labels) {
        labelWidth = std::max(labelWidth, label.size());
    }
    int const n = program.Quotes.WorkingCount;
    int const days = hasComposite ? n + cycles::ForecastDays : n;
    int const room = std::clamp(width - static_cast<int>(labelWidth) - 3, LeastColumns, MostColumns);
    int const columns = std::min(room, days);

    CharacterCanvas canvas(columns, curves.PriceScale);
    for (int column = 0; column < columns; ++column) {
        int const day = (column + 1) * days / columns;
        if (hasComposite) {
            canvas.Mark(column, PriceOf(curves.CompositeCurve[day], curves.PriceScale), CompositeMark);
        }
        if (day <= n) {
            canvas.Mark(column, program.Quotes.Working[day].Close, CloseMark);
        }
    }
    std::string chart;
    for (std::size_t row = 0; row < labels.size(); ++row) {
        std::string const& label = labels.at(row);
        chart += std::string(labelWidth - label.size(), ' ') + label + " |" + canvas.Lines().at(row);
        chart.erase(chart.find_last_not_of(' ') + 1);
        chart += '\n';
    }
    chart +=
        std::string(labelWidth + 1, ' ') + '+' + std::string(static_cast<std::size_t>(columns), '-') + '\n';
    chart += std::string(labelWidth + 2, ' ') + "* close" + (hasComposite ? "   o composite   @ both" : "") +
             "   " + program.Quotes.FirstQuoteDate + " to " + program.Quotes.LastQuoteDate +
             (hasComposite ? " and 25 days on" : "") + '\n';
    return chart;
}

} // namespace quorvex::cli
