// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/RulerTable.h"

#include <algorithm>

namespace quorvex::richtext {

namespace {

bool PrecedesByPosition(TabStop const& left, TabStop const& right) {
    return left.Position < right.Position;
}

} // namespace

std::uint32_t RulerTable::AddTabStop(std::uint32_t ruler, TabStop stop) {
    auto const& stops = rulers_[ruler];
    auto const at = std::lower_bound(stops.begin(), stops.end(), stop, PrecedesByPosition);
    bool const isThere = at != stops.end() && at->Position == stop.Position;
    if (isThere || stops.size() == MostTabStops) {
        return ruler;
    }
    auto const offset = at - stops.begin();
    bool const isFree = ruler + std::size_t{1} == rulers_.size() && rulers_.size() > frozenCount_;
    if (!isFree) {
        auto copy = stops;
        rulers_.push_back(std::move(copy));
    }
    auto& grown = rulers_.back();
    grown.insert(grown.begin() + offset, stop);
    return static_cast<std::uint32_t>(rulers_.size() - 1);
}

} // namespace quorvex::richtext
