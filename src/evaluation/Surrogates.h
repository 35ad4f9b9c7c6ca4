// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Surrogates: series that keep every period's share of the daily changes and nothing of how they fall
// together. A search that follows them as well as the series has gained nothing from the phases; whether
// there are cycles they do not tell, since a cycle of the series is in all of them.
#pragma once

#include "search/basAngles.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quorvex::evaluation {

// Makes surrogates of one series of closes. The daily changes are taken apart into sinusoids, which keep
// their amplitudes and get arbitrary phases; the mean change stays, so that all begin and end at the same
// closes. The same on every machine.
class SurrogateMaker {
public:
    // REQUIRES: 2 closes at least.
    explicit SurrogateMaker(std::span<double const> closes);

    // The closes of surrogate 0, 1 ..: each is the same whatever others were made before.
    [[nodiscard]] std::vector<double> Make(std::uint64_t number) const;

private:
    // One sinusoid of the changes: cosine coefficient and sine coefficient.
    using Part = search::Direction;

    [[nodiscard]] search::Direction const& TurnAt(std::size_t frequency, std::size_t day) const {
        return turns_[frequency * day % turns_.size()];
    }

    [[nodiscard]] std::vector<Part> WithAnyPhases(std::uint64_t number) const;

    double firstClose_;
    double meanChange_ = 0;
    std::vector<search::Direction> turns_; // of all days, by parts of the whole circle
    std::vector<Part> parts_;              // of the frequencies 1, 2 .. half the changes
};

} // namespace quorvex::evaluation
