// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basSearchReading.h"

#include "text/basFormats.h"

#include <cstddef>

namespace quorvex::search {

namespace {

std::string CountedCycles(std::size_t count) {
    return text::Counted(static_cast<int>(count), "cycle");
}

} // namespace

std::string ShareText(double share) {
    return text::FormatNumber(share, "##0.00%");
}

std::vector<CycleRow> ModelRows(CycleModel const& model) {
    std::vector<CycleRow> rows;
    for (FoundCycle const& cycle : model.Cycles) {
        rows.push_back({std::to_string(cycle.Weight), std::to_string(cycle.Period),
                        std::to_string(cycle.Shift), ShareText(cycle.Adds)});
    }
    return rows;
}

std::string DescribeSwing(Extremes const& swing) {
    return "The composite swings from " + text::FormatNumber(swing.Lowest, "##0") + " to " +
           text::FormatNumber(swing.Highest, "##0") + ".";
}

std::string DescribeModel(CycleModel const& model, int chosen, bool isDetrended,
                          GridComposite const& inGrid) {
    bool const isOne = model.Cycles.size() == 1;
    auto const& correlation = inGrid.Correlation;
    std::string words =
        CountedCycles(model.Cycles.size()) + (isOne ? " follows" : " follow") + " the moving average";
    if (isDetrended) {
        words += " less its trend with a correlation of " + ShareText(model.Correlation);
        words += correlation ? ", with its trend of " + ShareText(*correlation) : std::string();
    } else {
        words += " with a correlation of " + ShareText(correlation.value_or(model.Correlation));
    }
    if (static_cast<int>(model.Cycles.size()) < chosen) {
        words += "; no better model of " + CountedCycles(static_cast<std::size_t>(chosen)) + " was found";
    }
    return words + ". " + DescribeSwing(inGrid.Swing);
}

std::string DescribeCount(std::span<CycleModel const> models, int cycleCount) {
    auto const count = static_cast<std::size_t>(cycleCount);
    if (cycleCount < 1 || count > models.size()) {
        return {};
    }
    double const correlation = models[count - 1].Correlation;
    std::string lines = CountedCycles(count) + "\nCorrelation: " + ShareText(correlation);
    if (count > 1) {
        lines += "\nMore than with " + CountedCycles(count - 1) + ": " +
                 ShareText(correlation - models[count - 2].Correlation);
    }
    return lines;
}

std::string DescribeSearch(std::span<CycleModel const> models, int chosen) {
    if (models.empty()) {
        return "Nothing was found yet.";
    }
    std::string words = "Correlation by number of cycles: ";
    std::string separator;
    for (std::size_t index = 0; index < models.size(); ++index) {
        words += separator + std::to_string(index + 1) + " " + ShareText(models[index].Correlation);
        separator = ", ";
    }
    return words + ". Chosen: " + CountedCycles(static_cast<std::size_t>(chosen)) + ".";
}

} // namespace quorvex::search
