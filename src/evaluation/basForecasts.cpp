// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basForecasts.h"

#include "cycles/ParameterGrid.h"
#include "cycles/basAutomate.h"
#include "cycles/basCurves.h"
#include "quotes/PriceScale.h"
#include "search/basSearch.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace quorvex::evaluation {

namespace {

// What is computed of the days up to an origin. The search runs once for all its models.
class Past {
public:
    Past(std::span<quotes::QuoteRecord const> days, std::int16_t movingAverageLength) {
        for (quotes::QuoteRecord const& day : days) {
            ++series_->WorkingCount;
            series_->Working[series_->WorkingCount] = day;
        }
        fault_ = text::Trap([&] {
            curves_->PriceScale = quotes::ComputePriceScale(*series_);
            cycles::ComputeMovingAverage(*series_, movingAverageLength, curves_->MovingAverageCurve);
        });
    }

    // Returns whether it came to its end.
    bool Search(int cycleCount, search::GoOn const& goOn) {
        if (cycleCount == 0 || fault_) {
            return true;
        }
        search::SearchRequest request;
        request.CycleCount = cycleCount;
        request.HowHard = search::Effort::Quick;
        found_ = search::SearchMovingAverage(*curves_, Count(), request, goOn);
        return !found_.Models.empty() || !found_.Refusal.empty();
    }

    [[nodiscard]] ModelForecast Forecast(Model const& model, Plan const& plan) {
        ModelForecast forecast;
        auto const fault = fault_ ? fault_ : text::Trap([&] {
            cycles::CycleParameterSet const& set = CyclesOf(model, plan, forecast.Fault);
            if (forecast.Fault.empty()) {
                Follow(set, forecast);
            }
        });
        if (fault) {
            forecast = {{}, std::string(fault->Description())};
        }
        return forecast;
    }

private:
    [[nodiscard]] std::int16_t Count() const { return series_->WorkingCount; }

    // The cycles as they come through the grid. Without cycles the refusal tells why.
    cycles::CycleParameterSet const& CyclesOf(Model const& model, Plan const& plan, std::string& refusal) {
        if (model.Method == Method::Parameters) {
            *set_ = *plan.Parameters;
        } else {
            FindCycles(model, refusal);
        }
        if (refusal.empty() && !cycles::HasActiveCycle(*set_)) {
            refusal = "No cycle is active";
        }
        return *set_;
    }

    void FindCycles(Model const& model, std::string& refusal) {
        cycles::ClearCycles(*set_, curves_->CompositeCurve);
        cycles::TextGrid grid;
        if (model.Method == Method::Search) {
            refusal = found_.Refusal;
            if (!refusal.empty()) {
                return;
            }
            search::WriteModel(found_.Models.at(static_cast<std::size_t>(model.CycleCount - 1)), grid);
        } else {
            std::vector<cycles::SinusoidFit> fits;
            cycles::AutomateCycles(model.CycleCount, Count(), *curves_, *set_, grid, fits);
        }
        platform::NoPendingMessages pending;
        cycles::ReadGrid(grid, *set_, pending);
    }

    void Follow(cycles::CycleParameterSet const& set, ModelForecast& forecast) {
        cycles::ForecastCurve const window = cycles::ComputeForecast(set, *series_);
        cycles::ComputeCycleValues(*set_, Count());
        cycles::ComputeComposite(*set_, Count(), curves_->CompositeCurve);
        quotes::PriceScale const& scale = curves_->PriceScale;
        double const unitOnScale = (scale.PriceScaleHigh - scale.PriceScaleLow) / cycles::ScaleHeight;
        forecast.Prices = {window, Continue(unitOnScale), Continue(FittedUnit())};
    }

    // The composite's continuation from the last close on, a cycle unit being worth so much.
    [[nodiscard]] cycles::ForecastCurve Continue(double priceOfUnit) const {
        double const close = series_->Working[Count()].Close;
        double const anchor = curves_->CompositeCurve[Count()];
        cycles::ForecastCurve prices;
        for (int day = 1; day <= cycles::ForecastDays; ++day) {
            double const change = curves_->CompositeCurve[Count() + day] - anchor;
            prices[day] = text::RequireFinite(close + change * priceOfUnit);
        }
        return prices;
    }

    // The mean of days 1..n.
    template <class Curve>
    [[nodiscard]] double MeanOf(Curve const& curve) const {
        double sum = 0;
        for (int day = 1; day <= Count(); ++day) {
            sum += curve[day];
        }
        return sum / Count();
    }

    // The price of a cycle unit that makes the composite fit the moving average by least squares; 0 when it
    // would have to be upside down for that, or does not change by more than rounding.
    [[nodiscard]] double FittedUnit() const {
        constexpr double Negligible = 1e-9; // of a cycle unit, or of the composite's distance from 0
        double const meanX = MeanOf(curves_->CompositeCurve);
        double const meanY = MeanOf(curves_->MovingAverageCurve);
        double spread = 0;
        double common = 0;
        for (int day = 1; day <= Count(); ++day) {
            double const x = curves_->CompositeCurve[day] - meanX;
            spread += x * x;
            common += x * (curves_->MovingAverageCurve[day] - meanY);
        }
        double const least = Negligible * (1 + std::fabs(meanX));
        if (text::RequireFinite(spread) <= least * least * Count()) {
            return 0;
        }
        return std::max(0.0, text::RequireFinite(common / spread));
    }

    std::unique_ptr<quotes::QuoteSeries> series_ = std::make_unique<quotes::QuoteSeries>();
    std::unique_ptr<cycles::CycleCurves> curves_ = std::make_unique<cycles::CycleCurves>();
    std::unique_ptr<cycles::CycleParameterSet> set_ = std::make_unique<cycles::CycleParameterSet>();
    std::optional<text::RunTimeError> fault_;
    search::SearchOutcome found_;
};

int MostSearchedCycles(std::vector<Model> const& models) {
    int most = 0;
    for (Model const& model : models) {
        most = model.Method == Method::Search ? std::max(most, model.CycleCount) : most;
    }
    return most;
}

} // namespace

std::vector<int> OriginsOf(int days, int every) {
    std::vector<int> origins;
    for (int day = std::max(FewestPastDays, days / 2); day <= days - LongestHorizon; day += every) {
        origins.push_back(day);
    }
    return origins;
}

std::vector<ModelForecast> ForecastsAt(std::span<quotes::QuoteRecord const> past, Plan const& plan,
                                       search::GoOn const& goOn) {
    Past known(past, plan.MovingAverageLength);
    std::vector<ModelForecast> forecasts;
    if (!known.Search(MostSearchedCycles(plan.Models), goOn)) {
        return forecasts;
    }
    for (Model const& model : plan.Models) {
        forecasts.push_back(known.Forecast(model, plan));
    }
    return forecasts;
}

} // namespace quorvex::evaluation
