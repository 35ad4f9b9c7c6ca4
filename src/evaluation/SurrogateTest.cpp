// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/SurrogateTest.h"

#include "cycles/basCurves.h"
#include "search/basSearch.h"
#include "search/basWeights.h"

#include <algorithm>
#include <memory>

namespace quorvex::evaluation {

namespace {

std::vector<double> ClosesOf(quotes::QuoteSeries const& series) {
    std::vector<double> closes;
    for (int day = 1; day <= series.WorkingCount; ++day) {
        closes.push_back(series.Working[day].Close);
    }
    return closes;
}

std::vector<double> MovingAverageOf(std::vector<double> const& closes, std::int16_t length) {
    auto const series = std::make_unique<quotes::QuoteSeries>();
    for (double const close : closes) {
        ++series->WorkingCount;
        series->Working[series->WorkingCount].Close = close;
    }
    auto const curve = std::make_unique<cycles::QuoteCurve>();
    cycles::ComputeMovingAverage(*series, length, *curve);
    std::vector<double> average;
    for (int day = 1; day <= series->WorkingCount; ++day) {
        average.push_back((*curve)[day]);
    }
    return average;
}

} // namespace

SurrogateTest::SurrogateTest(quotes::QuoteSeries const& series, EvaluationRequest const& request)
    : closes_(ClosesOf(series)),
      movingAverageLength_(request.MovingAverageLength),
      maker_(closes_) {
    for (Model const& model : request.Models) {
        if (model.Method == Method::Search) {
            cycleCounts_.push_back(model.CycleCount);
        }
    }
    if (!cycleCounts_.empty() && request.SurrogateCount > 0) {
        correlations_.resize(static_cast<std::size_t>(request.SurrogateCount) + 1);
    }
}

void SurrogateTest::DoPiece(std::size_t number, search::GoOn const& goOn) {
    search::SearchRequest request;
    request.CycleCount = *std::max_element(cycleCounts_.begin(), cycleCounts_.end());
    request.HowHard = search::Effort::Quick;
    auto const found =
        search::SearchSeries(MovingAverageOf(Closes(number), movingAverageLength_), request, goOn);
    std::vector<double> correlations;
    for (search::CycleModel const& model : found.Models) {
        correlations.push_back(model.Correlation);
    }
    correlations_[number] = std::move(correlations);
}

std::vector<double> SurrogateTest::Closes(std::size_t number) const {
    return number == 0 ? closes_ : maker_.Make(number);
}

std::vector<SurrogateReport> SurrogateTest::Report() const {
    std::vector<SurrogateReport> reports;
    if (correlations_.empty() || correlations_.front().empty()) {
        return reports;
    }
    for (int const cycleCount : cycleCounts_) {
        auto const position = static_cast<std::size_t>(cycleCount - 1);
        SurrogateReport report{cycleCount, correlations_.front().at(position), 0};
        for (std::size_t number = 1; number < correlations_.size(); ++number) {
            std::vector<double> const& ofSurrogate = correlations_[number];
            bool const asWell = !ofSurrogate.empty() && search::Comparable(ofSurrogate.at(position)) >=
                                                            search::Comparable(report.Correlation);
            report.AsWell += asWell ? 1 : 0;
        }
        reports.push_back(report);
    }
    return reports;
}

} // namespace quorvex::evaluation
