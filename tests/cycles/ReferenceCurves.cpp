// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "ReferenceCurves.h"

#include "CycleTexts.h"
#include "cycles/basCurves.h"
#include "support/QuoteTexts.h"

#include <string>

namespace quorvex::cycles {

ReferenceCurves::ReferenceCurves(nlohmann::json const& expected)
    : series(tests::GoldenSeries(expected.at("file"), expected.at("currency_format").get<std::string>())) {
    SetRows(*set, expected.at("cycles"));
    auto const& scale = expected.at("price_scale");
    auto const length = MovingAverageLength(expected.at("moving_average_index").get<std::string>());
    ComputeMovingAverage(*series, length, curves->MovingAverageCurve);
    ComputeCycleValues(*set, series->WorkingCount);
    ComputeComposite(*set, series->WorkingCount, curves->CompositeCurve);
    ComputeResidual(*curves, {scale.at("high"), scale.at("low")}, series->WorkingCount);
}

} // namespace quorvex::cycles
