// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basEvaluation.h"

#include "cycles/basCurves.h"
#include "evaluation/SurrogateTest.h"
#include "evaluation/basSignificance.h"
#include "evaluation/basVerdicts.h"
#include "text/RunTimeError.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace quorvex::evaluation {

namespace {

// Corrected chances below this are taken for skill.
constexpr double Level = 0.05;

// Sums of squares of prices up to this stay in range.
constexpr double LargestPrice = 1e100;

std::string RefusalOf(quotes::QuoteSeries const& series, EvaluationRequest const& request,
                      std::vector<int> const& origins) {
    int const days = series.WorkingCount;
    if (origins.empty()) {
        return "Forecasts are tested on " + std::to_string(FewestDays) + " days at least; there are " +
               std::to_string(days);
    }
    bool changes = false;
    for (int day = 1; day <= days; ++day) {
        quotes::QuoteRecord const& quote = series.Working[day];
        if (std::max({std::fabs(quote.High), std::fabs(quote.Low), std::fabs(quote.Close)}) > LargestPrice) {
            return "The prices are too large to be tested";
        }
        changes = changes || quote.Close != series.Working[1].Close;
    }
    if (!changes) {
        return "The closes do not change: there is nothing to forecast";
    }
    // The longest window at the ends of the moving average must lie within the days before the first origin.
    int const half = cycles::MovingAverageReach(request.MovingAverageLength);
    if (2 * half - 1 > origins.front()) {
        return "A moving average of " + std::to_string(request.MovingAverageLength) +
               " days does not fit into the " + std::to_string(origins.front()) +
               " days before the first forecast";
    }
    return {};
}

// The last of these closes and how far they reach, of which the larger one is what prices are rounded by.
double SizeOf(std::span<double const> closes) {
    auto const ends = std::minmax_element(closes.begin(), closes.end());
    return std::max(std::fabs(closes.back()), *ends.second - *ends.first);
}

// The change that the forecast foresees. A cycle of which whole turns fit into the horizon comes back to
// where it was but for rounding, which is no change and has no direction.
double ForeseenChange(double price, std::span<double const> past) {
    constexpr double Negligible = 1e-9;
    double const change = price - past.back();
    return std::fabs(change) > Negligible * SizeOf(past) ? change : 0;
}

// The moves that a set of forecasts foresaw, by origin.
template <class Routine>
Moves MovesOf(Evaluation const& evaluation, int horizon, Routine&& foreseen) {
    Moves moves;
    for (Origin const& origin : evaluation.Origins) {
        auto const day = static_cast<std::size_t>(origin.Day);
        auto const past = std::span(evaluation.Closes).first(day);
        double const actual = evaluation.Closes[day - 1 + static_cast<std::size_t>(horizon)] - past.back();
        std::optional<double> const price = foreseen(origin, past.back());
        moves.push_back(price ? std::optional(Move{ForeseenChange(*price, past), actual}) : std::nullopt);
    }
    return moves;
}

Moves DriftMoves(Evaluation const& evaluation, int horizon) {
    return MovesOf(evaluation, horizon, [&](Origin const& origin, double close) {
        return std::optional(close + horizon * (close - evaluation.Closes.front()) / (origin.Day - 1));
    });
}

Moves ModelMoves(Evaluation const& evaluation, std::size_t model, ForecastKind kind, int horizon) {
    return MovesOf(evaluation, horizon, [&](Origin const& origin, double) {
        auto const& prices = origin.Forecasts[model].Of(kind);
        return prices ? std::optional((*prices)[horizon]) : std::nullopt;
    });
}

// Whose chances are corrected together: fixed cycles that are tested beside the others change none of theirs.
enum class Family { Drift, Refitted, Fixed };

// What is judged: the report to fill and the moves that it is about.
struct Case {
    HorizonReport* Report = nullptr;
    int Horizon = 0;
    evaluation::Family Family = evaluation::Family::Drift;
};

class Judging {
public:
    explicit Judging(Evaluation& evaluation) : evaluation_(evaluation) {}

    void Run(search::GoOn const& goOn) {
        Collect();
        ComputeFigures(goOn);
        ComputeChances(Family::Refitted);
        ComputeChances(Family::Fixed);
    }

private:
    void Collect() {
        for (std::size_t index = 0; index < Horizons.size(); ++index) {
            cases_.push_back({&evaluation_.Drift.at(index), Horizons.at(index), Family::Drift});
            moves_.push_back(DriftMoves(evaluation_, Horizons.at(index)));
        }
        for (std::size_t model = 0; model < evaluation_.Models.size(); ++model) {
            Family const family =
                IsRefitted(evaluation_.Models[model].Model) ? Family::Refitted : Family::Fixed;
            for (ForecastKind const kind : ForecastKinds) {
                KindReport& report = evaluation_.Models[model].ByKind.at(static_cast<std::size_t>(kind));
                for (std::size_t index = 0; index < Horizons.size(); ++index) {
                    cases_.push_back({&report.ByHorizon.at(index), Horizons.at(index), family});
                    moves_.push_back(ModelMoves(evaluation_, model, kind, Horizons.at(index)));
                }
                report.ForecastCount = static_cast<int>(ForecastCount(moves_.back()));
            }
        }
    }

    void ComputeFigures(search::GoOn const& goOn) {
        auto const blockLength = static_cast<std::size_t>(evaluation_.BlockLength);
        std::vector<FigureIntervals> intervals(cases_.size());
        // One block is no choice: all samples would be alike.
        if (evaluation_.Origins.size() >= 2 * blockLength) {
            intervals = ResampledIntervals(moves_, blockLength, evaluation_.SampleCount, goOn);
            intervals.resize(cases_.size());
        }
        for (std::size_t index = 0; index < cases_.size(); ++index) {
            cases_[index].Report->Figures = FiguresOf(moves_[index]);
            cases_[index].Report->Intervals = intervals[index];
        }
    }

    void ComputeChances(Family family) {
        std::vector<HorizonReport*> tested;
        std::vector<double> chances;
        for (std::size_t index = 0; index < cases_.size(); ++index) {
            Case const& one = cases_[index];
            std::optional<double> const chance =
                one.Family == family ? ChanceOfRatio(moves_[index], OverlapOf(one.Horizon)) : std::nullopt;
            if (chance) {
                tested.push_back(one.Report);
                chances.push_back(*chance);
            }
        }
        std::vector<double> const corrected = HolmCorrected(chances);
        for (std::size_t index = 0; index < tested.size(); ++index) {
            auto const& interval = tested[index]->Intervals.ErrorRatio;
            tested[index]->Chance = corrected[index];
            tested[index]->IsBetter = corrected[index] < Level && interval && interval->High < 1;
        }
    }

    // How many origins in a row share days of their forecasts.
    [[nodiscard]] std::size_t OverlapOf(int horizon) const {
        return static_cast<std::size_t>((horizon + evaluation_.Every - 1) / evaluation_.Every);
    }

    Evaluation& evaluation_;
    std::vector<Case> cases_;
    std::vector<Moves> moves_;
};

void ComputeLastCloseErrors(Evaluation& evaluation) {
    for (std::size_t index = 0; index < Horizons.size(); ++index) {
        Sums const sums = SumsOf(DriftMoves(evaluation, Horizons.at(index)));
        evaluation.LastCloseError.at(index) = sums.ErrorOfLastClose / sums.Count;
    }
}

void CountFaults(Evaluation& evaluation) {
    for (Origin const& origin : evaluation.Origins) {
        for (std::size_t model = 0; model < evaluation.Models.size(); ++model) {
            std::string const& fault = origin.Forecasts[model].Fault;
            if (!fault.empty()) {
                ++evaluation.Models[model].Faults[fault];
            }
        }
    }
}

// Everything but the forecasts.
Evaluation Prepare(quotes::QuoteSeries const& series, EvaluationRequest const& request,
                   std::vector<int> const& origins) {
    Evaluation evaluation;
    evaluation.QuoteFileName = series.QuoteFileName;
    for (int day = 1; day <= series.WorkingCount; ++day) {
        evaluation.Dates.push_back(series.Working[day].Date);
        evaluation.Closes.push_back(series.Working[day].Close);
    }
    evaluation.MovingAverageLength = request.MovingAverageLength;
    evaluation.Every = request.Every;
    evaluation.BlockLength = (LongestHorizon + request.Every - 1) / request.Every;
    evaluation.SampleCount = request.SampleCount;
    for (int const day : origins) {
        evaluation.Origins.push_back({day, {}});
    }
    for (Model const& model : request.Models) {
        evaluation.Models.push_back({model, {}, {}, {}});
    }
    return evaluation;
}

} // namespace

void Judge(Evaluation& evaluation, search::GoOn const& goOn) {
    ComputeLastCloseErrors(evaluation);
    CountFaults(evaluation);
    Judging(evaluation).Run(goOn);
    for (ModelReport& model : evaluation.Models) {
        model.Verdict = VerdictOf(model, evaluation);
    }
}

EvaluationOutcome Evaluate(quotes::QuoteSeries const& series, EvaluationRequest const& request,
                           Watch const& watch) {
    std::vector<int> const origins = OriginsOf(series.WorkingCount, request.Every);
    std::string refusal = RefusalOf(series, request, origins);
    if (!refusal.empty()) {
        return {std::nullopt, std::move(refusal)};
    }
    Evaluation evaluation = Prepare(series, request, origins);
    std::vector<quotes::QuoteRecord> records;
    for (int day = 1; day <= series.WorkingCount; ++day) {
        records.push_back(series.Working[day]);
    }
    Plan const plan{request.Models, request.MovingAverageLength, request.Parameters};
    SurrogateTest surrogates(series, request);
    auto const workers = static_cast<std::size_t>(std::max(1, request.Jobs));
    Piece const piece = [&](std::size_t number, search::GoOn const& goOn) {
        if (number < origins.size()) {
            // The latest origins take longest.
            Origin& origin = evaluation.Origins[origins.size() - 1 - number];
            auto const past = std::span(records).first(static_cast<std::size_t>(origin.Day));
            origin.Forecasts = ForecastsAt(past, plan, goOn);
        } else {
            surrogates.DoPiece(number - origins.size(), goOn);
        }
    };
    if (!DoPieces(origins.size() + surrogates.PieceCount(), workers, piece, watch)) {
        return {};
    }
    evaluation.SurrogateCount = surrogates.SurrogateCount();
    evaluation.Surrogates = surrogates.Report();
    Piece const judge = [&](std::size_t, search::GoOn const& goOn) { Judge(evaluation, goOn); };
    if (!DoPieces(1, 1, judge, [&](double) { return watch(1); })) {
        return {};
    }
    return {std::move(evaluation), {}};
}

} // namespace quorvex::evaluation
