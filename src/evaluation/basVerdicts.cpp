// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basVerdicts.h"

#include "text/basFormats.h"

#include <algorithm>

namespace quorvex::evaluation {

namespace {

constexpr std::string_view Missing = "-";

// "1", "1 and 5" or "1, 5 and 10".
std::string Listed(std::vector<std::string> const& items) {
    std::string text;
    for (std::size_t index = 0; index < items.size(); ++index) {
        if (index > 0) {
            text += index + 1 == items.size() ? " and " : ", ";
        }
        text += items[index];
    }
    return text;
}

std::string Counted(int count, std::string_view noun) {
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}

// "composite at 10 and 25 days"; empty when the kind is nowhere better.
std::string SkillOf(ModelReport const& model, ForecastKind kind) {
    std::vector<std::string> horizons;
    for (std::size_t index = 0; index < Horizons.size(); ++index) {
        if (model.Of(kind).ByHorizon.at(index).IsBetter) {
            horizons.push_back(std::to_string(Horizons.at(index)));
        }
    }
    if (horizons.empty()) {
        return {};
    }
    return std::string(KindName(kind)) + " at " + Listed(horizons) +
           (horizons.back() == "1" ? " day" : " days");
}

bool IsTested(ModelReport const& model) {
    return std::any_of(model.ByKind.begin(), model.ByKind.end(), [](KindReport const& kind) {
        return std::any_of(kind.ByHorizon.begin(), kind.ByHorizon.end(),
                           [](HorizonReport const& report) { return report.Chance.has_value(); });
    });
}

std::string FaultsOf(ModelReport const& model) {
    std::vector<std::string> faults;
    for (auto const& [fault, count] : model.Faults) {
        faults.push_back(fault + " at " + Counted(count, "origin"));
    }
    return Listed(faults);
}

// The figure in the format, with its interval in brackets.
std::string FigureText(std::optional<double> const& value, std::optional<Interval> const& interval,
                       std::string_view format) {
    if (!value) {
        return std::string(Missing);
    }
    text::NumberFormat const number(format);
    std::string text = number.Format(*value);
    if (interval) {
        text += " [" + number.Format(interval->Low) + ", " + number.Format(interval->High) + ']';
    }
    return text;
}

std::string ChanceText(std::optional<double> const& chance) {
    constexpr double Smallest = 0.001;
    if (!chance) {
        return std::string(Missing);
    }
    return *chance < Smallest ? "<0.001" : text::FormatNumber(*chance, "0.000");
}

void AppendRows(std::vector<TableRow>& rows, std::string const& name, std::string_view kind,
                HorizonReports const& reports) {
    for (std::size_t index = 0; index < Horizons.size(); ++index) {
        HorizonReport const& report = reports.at(index);
        rows.push_back({name, std::string(kind), std::to_string(Horizons.at(index)),
                        FigureText(report.Figures.ErrorRatio, report.Intervals.ErrorRatio, "0.00"),
                        FigureText(report.Figures.RightDirections, report.Intervals.RightDirections, "0%"),
                        FigureText(report.Figures.Correlation, report.Intervals.Correlation, "0.00"),
                        ChanceText(report.Chance) + (report.IsBetter ? " *" : "")});
    }
}

} // namespace

std::string VerdictOf(ModelReport const& model) {
    std::vector<std::string> skills;
    for (ForecastKind const kind : ForecastKinds) {
        std::string const skill = SkillOf(model, kind);
        if (!skill.empty()) {
            skills.push_back(skill);
        }
    }
    if (!skills.empty()) {
        return "better than the last close: " + Listed(skills);
    }
    if (IsTested(model)) {
        return "no better than the last close";
    }
    int const count = model.Of(ForecastKind::Composite).ForecastCount;
    return count == 0
               ? "no forecasts: " + FaultsOf(model)
               : "not tested: " + Counted(count, "forecast") + (count == 1 ? " is" : " are") + " too few";
}

std::string DescribeTest(Evaluation const& evaluation) {
    Origin const& first = evaluation.Origins.front();
    Origin const& last = evaluation.Origins.back();
    return "Forecasts from " + Counted(static_cast<int>(evaluation.Origins.size()), "day") + ", every " +
           (evaluation.Every == 1 ? std::string("day") : std::to_string(evaluation.Every) + " days") +
           " from " + evaluation.DateOf(first) + " to " + evaluation.DateOf(last) +
           ", each made of nothing but the days up to it. Errors are ratios to those of the last close: "
           "below "
           "1 is better.";
}

TableRow TableHead() {
    return {"Model", "Forecast", "Days", "Error", "Right direction", "Correlation", "p"};
}

std::vector<TableRow> TableRows(Evaluation const& evaluation) {
    std::vector<TableRow> rows;
    AppendRows(rows, "Drift", Missing, evaluation.Drift);
    for (ModelReport const& model : evaluation.Models) {
        for (ForecastKind const kind : ForecastKinds) {
            AppendRows(rows, ModelName(model.Model), KindName(kind), model.Of(kind).ByHorizon);
        }
    }
    return rows;
}

std::vector<std::string> SurrogateLines(Evaluation const& evaluation) {
    std::vector<std::string> lines;
    for (SurrogateReport const& report : evaluation.Surrogates) {
        double const share = static_cast<double>(report.AsWell) / evaluation.SurrogateCount;
        lines.push_back(ModelName({Method::Search, report.CycleCount}) + ": " +
                        text::FormatNumber(report.Correlation, "0.0%") +
                        ", p = " + text::FormatNumber(share, "0.000") + " (" + std::to_string(report.AsWell) +
                        " of " + Counted(evaluation.SurrogateCount, "surrogate") +
                        (report.AsWell == 1 ? " correlates" : " correlate") + " at least as well)");
    }
    return lines;
}

std::vector<std::string> FaultLines(Evaluation const& evaluation) {
    std::vector<std::string> lines;
    for (ModelReport const& model : evaluation.Models) {
        if (!model.Faults.empty()) {
            lines.push_back(ModelName(model.Model) + ": no forecast, " + FaultsOf(model));
        }
    }
    return lines;
}

} // namespace quorvex::evaluation
