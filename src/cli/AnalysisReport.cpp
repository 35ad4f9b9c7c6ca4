// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisReport.h"

#include "auxiliary/basProperties.h"
#include "cycles/basCurves.h"
#include "cycles/basForecast.h"
#include "search/basSearchReading.h"
#include "text/basFormats.h"
#include "text/basTexts.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quorvex::cli {

namespace {

std::string PadLeft(std::string_view text, std::size_t width) {
    std::string padded(width > text.size() ? width - text.size() : 0, ' ');
    return padded.append(text);
}

std::string PadRight(std::string_view text, std::size_t width) {
    std::string padded(text);
    padded.resize(std::max(width, text.size()), ' ');
    return padded;
}

std::string Statistics(std::vector<auxiliary::PropertyCaption> const& properties) {
    constexpr std::size_t NameWidth = 15;
    std::string lines = "Quotes\n";
    for (auto const& caption : properties) {
        lines += "  " + PadRight(caption.Name, NameWidth);
        lines.append(text::Trim(caption.Caption)) += '\n';
    }
    return lines;
}

std::string Cycles(app::Program const& program, cycles::ParameterGrid const& grid) {
    constexpr std::size_t NameWidth = 10;
    constexpr std::size_t ColumnWidth = 8;
    if (!cycles::HasActiveCycle(program.Cycles)) {
        return "Cycles\n  none: give --parameters FILE.dat, --automate 1|2|3 or --search N\n";
    }
    std::string lines = PadRight("Cycles", NameWidth + 2);
    for (auto const parameter : cycles::Parameters) {
        lines += PadLeft(cycles::ParameterName(parameter), ColumnWidth);
    }
    lines += '\n';
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        if (!program.Cycles.Cycles[cycle].IsActive()) {
            continue;
        }
        lines += "  " + PadRight("Cycle " + std::to_string(cycle), NameWidth);
        for (auto const parameter : cycles::Parameters) {
            lines += PadLeft(grid.Text(parameter, cycle), ColumnWidth);
        }
        lines += '\n';
    }
    return lines;
}

std::string Fits(std::vector<cycles::SinusoidFit> const& fits) {
    constexpr std::size_t NameWidth = 10;
    constexpr std::size_t ColumnWidth = 14;
    std::string lines = PadRight("Fit", NameWidth + 2) + PadLeft("Period, days", ColumnWidth) +
                        PadLeft("Amplitude", ColumnWidth) + PadLeft("Phase, rad", ColumnWidth) + '\n';
    text::NumberFormat const number("####0.0000");
    for (std::size_t index = 0; index < fits.size(); ++index) {
        cycles::SinusoidFit const& fit = fits[index];
        lines += "  " + PadRight("Cycle " + std::to_string(index + 1), NameWidth);
        lines += PadLeft(number.Format(cycles::TwoPi / fit.Frequency), ColumnWidth);
        lines += PadLeft(number.Format(fit.Amplitude), ColumnWidth);
        lines += PadLeft(number.Format(fit.Phase), ColumnWidth) + '\n';
    }
    return lines;
}

// The lines of the message without the blanks that shape its box.
std::string Correlation(platform::Message const& message) {
    std::string lines = "Correlation\n";
    std::string_view rest = message.Text;
    while (!rest.empty()) {
        auto const end = std::min(rest.find('\n'), rest.size());
        lines.append("  ").append(text::Trim(rest.substr(0, end))) += '\n';
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return lines;
}

// What each of the cycles adds, and what fewer would do.
std::string Found(app::AnalysisResult const& result) {
    constexpr std::size_t NameWidth = 10;
    constexpr std::size_t ColumnWidth = 13;
    auto const row = [](std::string const& name, double share) {
        return "  " + PadRight(name, NameWidth) + PadLeft(search::ShareText(share), ColumnWidth) + '\n';
    };
    std::vector<search::CycleModel> const& models = result.Models;
    search::CycleModel const& model = models.back();
    std::string lines = PadRight("Search", NameWidth + 2) + PadLeft("Adds", ColumnWidth) + '\n';
    for (std::size_t cycle = 0; cycle < model.Cycles.size(); ++cycle) {
        lines += row("Cycle " + std::to_string(cycle + 1), model.Cycles[cycle].Adds);
    }
    if (model.Cycles.size() < models.size()) {
        lines += "  No better model of " + std::to_string(models.size()) + " cycles was found.\n";
    }
    lines += '\n' + PadRight("Cycles", NameWidth + 2) + PadLeft("Correlation", ColumnWidth) + '\n';
    for (std::size_t count = 0; count < models.size(); ++count) {
        lines += row(std::to_string(count + 1), models[count].Correlation);
    }
    if (result.IsDetrended) {
        lines += "These are correlations with the moving average less its straight line.\n";
    }
    return lines;
}

std::string Swing(app::Program const& program) {
    return search::DescribeSwing(
               search::ExtremesOf(program.Curves.CompositeCurve, program.Quotes.WorkingCount)) +
           '\n';
}

std::string ForecastTable(quotes::QuoteSeries const& series, app::WholeForecast const& forecast) {
    constexpr std::size_t ColumnWidth = 34;
    std::string lines = "Forecast\n  " + PadRight("Previous Closes", ColumnWidth) + "Estimated Values\n";
    auto const previousCloses = cycles::PreviousCloseLines(series);
    auto const estimatedValues = cycles::EstimatedValueLines(forecast.Values, forecast.Dates);
    std::size_t const count = std::max(previousCloses.size(), estimatedValues.size());
    for (std::size_t index = 0; index < count; ++index) {
        bool const known = index < previousCloses.size();
        lines += "  " + PadRight(known ? previousCloses[index] : std::string(), ColumnWidth);
        lines += estimatedValues[index] + '\n';
    }
    return lines;
}

} // namespace

std::string AnalysisReport(app::Program const& program, cycles::ParameterGrid const& grid,
                           app::AnalysisResult const& result) {
    std::string report;
    if (result.Properties) {
        report += Statistics(*result.Properties) + '\n';
    }
    report += Cycles(program, grid);
    if (!result.Fits.empty()) {
        report += '\n' + Fits(result.Fits);
    }
    report += '\n' + Correlation(result.CorrelationMessage);
    if (!result.Models.empty()) {
        report += Swing(program) + '\n' + Found(result);
    }
    if (result.ForecastShown) {
        report += '\n' + ForecastTable(program.Quotes, *result.ForecastShown);
    }
    return report;
}

std::string SearchReport(app::Program const& program, cycles::ParameterGrid const& grid,
                         app::AnalysisResult const& result) {
    return Cycles(program, grid) + '\n' + Correlation(result.CorrelationMessage) + Swing(program) + '\n' +
           Found(result);
}

} // namespace quorvex::cli
