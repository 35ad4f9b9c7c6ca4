// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RatioTable.h"

#include "CycleWork.h"
#include "QuoteWork.h"
#include "Ratio.h"

#include <iomanip>
#include <sstream>

namespace quorvex::bench {

namespace {

class Table {
public:
    Table() { Row("what", "measured") << "  target\n"; }

    void Add(std::string const& what, double ratio) { Row(what, Figure(ratio)) << '\n'; }

    void Add(std::string const& what, double ratio, double target) {
        Row(what, Figure(ratio)) << "  at most " << target << (ratio <= target ? "  ok\n" : "  over\n");
    }

    [[nodiscard]] std::string Text() const { return text_.str(); }

private:
    static std::string Figure(double ratio) {
        std::ostringstream figure;
        figure << std::fixed << std::setprecision(2) << ratio;
        return figure.str();
    }

    std::ostream& Row(std::string const& what, std::string const& ratio) {
        return text_ << std::left << std::setw(58) << what << std::right << std::setw(8) << ratio;
    }

    std::ostringstream text_;
};

} // namespace

std::string MeasuredRatioTable() {
    constexpr double ReadingTarget = 2;
    constexpr double FitTarget = 1.5;
    QuoteWork quotes;
    CycleWork cycles;
    auto const pass = [&] { quotes.ParseNumbers(); };
    Table table;
    table.Add("reading a 500-day quote file / one std::from_chars pass",
              MeasureRatio([&] { quotes.Load(); }, pass), ReadingTarget);
    table.Add("    the same from memory", MeasureRatio([&] { quotes.ReadText(); }, pass));
    table.Add("three-cycle fit over 500 days / its sines and cosines",
              MeasureRatio([&] { cycles.FitThreeCycles(); }, [&] { cycles.ComputeSinesAndCosines(); }),
              FitTarget);
    return table.Text();
}

} // namespace quorvex::bench
