// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/Surrogates.h"

#include <random>

namespace quorvex::evaluation {

namespace {

constexpr std::uint64_t DirectionCount = std::uint64_t{1} << 30U;

// Any direction, all alike.
search::Direction AnyDirection(std::mt19937_64& random) {
    auto const place = static_cast<std::int64_t>(random() % DirectionCount);
    return search::DirectionAt(2 * place, static_cast<std::int64_t>(DirectionCount));
}

} // namespace

SurrogateMaker::SurrogateMaker(std::span<double const> closes) : firstClose_(closes.front()) {
    std::size_t const count = closes.size() - 1;
    std::vector<double> changes;
    for (std::size_t day = 0; day < count; ++day) {
        changes.push_back(closes[day + 1] - closes[day]);
        turns_.push_back(
            search::DirectionAt(2 * static_cast<std::int64_t>(day), static_cast<std::int64_t>(count)));
    }
    meanChange_ = (closes.back() - closes.front()) / static_cast<double>(count);
    for (std::size_t frequency = 1; 2 * frequency <= count; ++frequency) {
        Part part{0, 0};
        for (std::size_t day = 0; day < count; ++day) {
            part.Cosine += changes[day] * TurnAt(frequency, day).Cosine;
            part.Sine += changes[day] * TurnAt(frequency, day).Sine;
        }
        // The fastest of an even number has no partner on the other side of the spectrum.
        double const scale = (2 * frequency == count ? 1.0 : 2.0) / static_cast<double>(count);
        parts_.push_back({part.Cosine * scale, part.Sine * scale});
    }
}

std::vector<SurrogateMaker::Part> SurrogateMaker::WithAnyPhases(std::uint64_t number) const {
    std::mt19937_64 random(number);
    std::vector<Part> turned;
    for (std::size_t index = 0; index < parts_.size(); ++index) {
        search::Direction by = AnyDirection(random);
        if (2 * (index + 1) == turns_.size()) {
            by = {by.Cosine < 0 ? -1.0 : 1.0, 0}; // changes of sign every day have no other phases
        }
        Part const& part = parts_[index];
        turned.push_back(
            {part.Cosine * by.Cosine - part.Sine * by.Sine, part.Cosine * by.Sine + part.Sine * by.Cosine});
    }
    return turned;
}

std::vector<double> SurrogateMaker::Make(std::uint64_t number) const {
    std::vector<Part> const parts = WithAnyPhases(number);
    std::vector<double> closes = {firstClose_};
    for (std::size_t day = 0; day < turns_.size(); ++day) {
        double change = meanChange_;
        for (std::size_t index = 0; index < parts.size(); ++index) {
            search::Direction const& turn = TurnAt(index + 1, day);
            change += parts[index].Cosine * turn.Cosine + parts[index].Sine * turn.Sine;
        }
        closes.push_back(closes.back() + change);
    }
    return closes;
}

} // namespace quorvex::evaluation
