// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Whether a model's errors are smaller than those of the last close by more than chance.
#pragma once

#include "evaluation/basFigures.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quorvex::evaluation {

// The probability that Student's t with so many degrees of freedom is above the value. REQUIRES: 1 degree at
// least.
[[nodiscard]] double UpperTail(double t, int degrees);

// The probability of an error ratio as low as that of these moves or lower when the truth is 1; 1 for a ratio
// of 1 or more. Each forecast shares days with the next overlap - 1 ones. Nothing for less than ten
// forecasts, for so few that the overlap leaves not enough of them, and where the close did not move.
//
// The ratio is that of two means, so that its variance is that of the mean of
//
//     u = (error - ratio x error of the last close) / mean error of the last close.
//
// As the forecasts overlap, this mean's variance has the autocovariances of u up to overlap - 1 in it, with
// the correction of Harvey, Leybourne and Newbold for few forecasts. Two things keep it from claiming too
// much where forecasts are few: Student's t, of whose degrees of freedom every autocovariance that is
// estimated costs two; and that the variance is never taken below what it is without overlap, since negative
// autocovariances are mostly chance.
[[nodiscard]] std::optional<double> ChanceOfRatio(Moves const& moves, std::size_t overlap);

// The probabilities corrected by Holm for how many of them there are, in their order.
[[nodiscard]] std::vector<double> HolmCorrected(std::span<double const> probabilities);

} // namespace quorvex::evaluation
