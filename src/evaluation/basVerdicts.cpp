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

// "window at 1 day and composite at 10 and 25 days": where the predicate of report and horizon's position is
// true; empty when it is nowhere.
template <class Predicate>
std::string PlacesOf(ModelReport const& model, Predicate const& isThere) {
    std::vector<std::string> places;
    for (ForecastKind const kind : ForecastKinds) {
        std::vector<std::string> horizons;
        for (std::size_t index = 0; index < Horizons.size(); ++index) {
            if (isThere(model.Of(kind).ByHorizon.at(index), index)) {
                horizons.push_back(std::to_string(Horizons.at(index)));
            }
        }
        if (!horizons.empty()) {
            places.push_back(std::string(KindName(kind)) + " at " + Listed(horizons) +
                             (horizons.back() == "1" ? " day" : " days"));
        }
    }
    return Listed(places);
}

// Where the model is better than the last close.
std::string SkillOf(ModelReport const& model) {
    return PlacesOf(model, [](HorizonReport const& report, std::size_t) { return report.IsBetter; });
}

// What to say of skill that going on with the mean change would have had, too; empty when there is none.
std::string ReservationOf(ModelReport const& model, HorizonReports const& drift) {
    std::string const places = PlacesOf(model, [&drift](HorizonReport const& report, std::size_t horizon) {
        auto const& ofDrift = drift.at(horizon).Figures.ErrorRatio;
        return report.IsBetter && ofDrift && *report.Figures.ErrorRatio >= *ofDrift;
    });
    if (places.empty()) {
        return {};
    }
    return ", but no better than the drift" + (places == SkillOf(model) ? std::string() : ": " + places);
}

// Whether the predicate is true of any kind and horizon.
template <class Predicate>
bool IsAnywhere(ModelReport const& model, Predicate const& isThere) {
    return std::any_of(model.ByKind.begin(), model.ByKind.end(), [&isThere](KindReport const& kind) {
        return std::any_of(kind.ByHorizon.begin(), kind.ByHorizon.end(), isThere);
    });
}

bool IsTested(ModelReport const& model) {
    return IsAnywhere(model, [](HorizonReport const& report) { return report.Chance.has_value(); });
}

std::string WhyNotTested(ModelReport const& model) {
    int const count = model.Of(ForecastKind::Composite).ForecastCount;
    if (!IsAnywhere(model,
                    [](HorizonReport const& report) { return report.Figures.ErrorRatio.has_value(); })) {
        return "the close did not move on the days tested";
    }
    return text::Counted(count, "forecast") + (count == 1 ? " is" : " are") + " too few" +
           (count < static_cast<int>(FewestForecasts) ? "" : " where they overlap");
}

std::string FaultsOf(ModelReport const& model) {
    std::vector<std::string> faults;
    for (auto const& [fault, count] : model.Faults) {
        faults.push_back(fault + " at " + text::Counted(count, "origin"));
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

// Of none in so many it cannot be known whether it is none in more.
std::string ShareText(int count, int of) {
    return (count == 0 ? "< " : "= ") +
           text::FormatNumber(std::max(count, 1) / static_cast<double>(of), "0.000");
}

void AppendRows(std::vector<TableRow>& rows, std::string const& name, std::string_view kind,
                HorizonReports const& reports) {
    for (std::size_t index = 0; index < Horizons.size(); ++index) {
        HorizonReport const& report = reports.at(index);
        rows.push_back({name, std::string(kind), std::to_string(Horizons.at(index)),
                        FigureText(report.Figures.ErrorRatio, report.Intervals.ErrorRatio, "0.00"),
                        FigureText(report.Figures.RightDirections, report.Intervals.RightDirections, "0%"),
                        FigureText(report.Figures.Correlation, report.Intervals.Correlation, "0.00"),
                        ChanceText(report.Chance) + (report.IsBetter ? " *" : ""), report.IsBetter});
    }
}

} // namespace

bool HasSkill(ModelReport const& model) {
    return IsAnywhere(model, [](HorizonReport const& report) { return report.IsBetter; });
}

std::string VerdictOf(ModelReport const& model, Evaluation const& evaluation) {
    std::string const skill = SkillOf(model);
    if (!skill.empty()) {
        std::string const verdict =
            "better than the last close: " + skill + ReservationOf(model, evaluation.Drift);
        return IsRefitted(model.Model) ? verdict
                                       : verdict + ", if its cycles were chosen before " +
                                             evaluation.DateOf(evaluation.Origins.front()) +
                                             "; otherwise they have seen these days";
    }
    if (IsTested(model)) {
        return "no better than the last close";
    }
    return model.Of(ForecastKind::Composite).ForecastCount == 0 ? "no forecasts: " + FaultsOf(model)
                                                                : "not tested: " + WhyNotTested(model);
}

std::string VerdictOf(Evaluation const& evaluation) {
    constexpr std::string_view Better = " better than the last close";
    std::vector<std::string> better;
    int count = 0;
    int tested = 0;
    std::string ofFixed;
    for (ModelReport const& model : evaluation.Models) {
        if (!IsRefitted(model.Model) && HasSkill(model)) {
            ofFixed = " The fixed cycles look better, which counts only if they were chosen before " +
                      evaluation.DateOf(evaluation.Origins.front()) + '.';
            continue;
        }
        ++count;
        tested += IsTested(model) ? 1 : 0;
        if (HasSkill(model)) {
            better.push_back(ModelName(model.Model));
        }
    }
    if (!better.empty()) {
        return std::to_string(better.size()) + " of " + text::Counted(count, "model") +
               (better.size() == 1 ? " forecasts" : " forecast") + std::string(Better) + ": " +
               Listed(better) + '.' + ofFixed;
    }
    if (tested == 0) {
        return "There are too few forecasts to tell whether any model is" + std::string(Better) + '.' +
               ofFixed;
    }
    std::string const those = tested < count ? " that could be tested" : "";
    return (tested == 1 ? "The model" + those + " forecasts no"
                        : "None of the " + text::Counted(tested, "model") + those + " forecasts") +
           std::string(Better) + '.' + ofFixed;
}

std::string ConditionOfFixedCycles(Evaluation const& evaluation) {
    return evaluation.HasFixedCycles()
               ? "; fixed cycles only if chosen before " + evaluation.DateOf(evaluation.Origins.front())
               : std::string();
}

std::string DescribeTest(Evaluation const& evaluation) {
    std::string const first = evaluation.DateOf(evaluation.Origins.front());
    std::size_t const count = evaluation.Origins.size();
    std::string days = "one day, " + first + ',';
    if (count > 1) {
        days = std::to_string(count) + " days, every " +
               (evaluation.Every == 1 ? std::string("day") : std::to_string(evaluation.Every) + " days") +
               " from " + first + " to " + evaluation.DateOf(evaluation.Origins.back()) + ", each";
    }
    return "Forecasts from " + days + " made of nothing but the days up to it" +
           (evaluation.HasFixedCycles() ? ", except that fixed cycles may have been chosen later" : "") +
           ". Errors are ratios to those of the last close: below 1 is better.";
}

TableRow TableHead() {
    return {"Model", "Forecast", "Days", "Error", "Right direction", "Correlation", "p", false};
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

std::vector<std::string> TableKey(Evaluation const& evaluation) {
    return {
        "window: as the forecast window has it; composite: goes on from the last close in the height of the "
        "price scale; scaled: in the height that fits so far",
        "[ ]: 95% interval; p: chance of such an error without skill, corrected by Holm for all that is "
        "tested",
        "*: better than the last close, p below 0.05 and interval below 1" +
            ConditionOfFixedCycles(evaluation) + "; -: does not exist, or not tested"};
}

std::vector<std::string> SurrogateLines(Evaluation const& evaluation) {
    std::vector<std::string> lines;
    for (SurrogateReport const& report : evaluation.Surrogates) {
        lines.push_back(ModelName({Method::Search, report.CycleCount}) + ": " +
                        text::FormatNumber(report.Correlation, "0.0%") + ", p " +
                        ShareText(report.AsWell, evaluation.SurrogateCount) + " (" +
                        std::to_string(report.AsWell) + " of " +
                        text::Counted(evaluation.SurrogateCount, "surrogate") +
                        (report.AsWell == 1 ? " correlates" : " correlate") + " at least as well)");
    }
    if (!lines.empty()) {
        lines.emplace_back(
            "Surrogates have the same periods in their daily changes, in other phases: p tests the "
            "phases, not whether there are cycles, which surrogates have, too.");
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
