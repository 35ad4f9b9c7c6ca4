// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basBars.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quorvex::imports {

namespace {

struct BarLength {
    int Least; // days
    int Most;
    std::string_view Name;
};

constexpr auto BarLengths = std::to_array<BarLength>(
    {{6, 8, "weekly"}, {28, 31, "monthly"}, {89, 92, "quarterly"}, {364, 367, "yearly"}});

} // namespace

int MedianDistance(std::vector<text::CalendarDay> days) {
    std::ranges::sort(days);
    days.erase(std::unique(days.begin(), days.end()), days.end());
    if (days.size() < 2) {
        return 0;
    }
    std::vector<int> distances;
    for (std::size_t index = 1; index < days.size(); ++index) {
        distances.push_back(static_cast<int>((days[index] - days[index - 1]).count()));
    }
    auto const middle = distances.begin() + static_cast<std::ptrdiff_t>((distances.size() - 1) / 2);
    std::nth_element(distances.begin(), middle, distances.end());
    return *middle;
}

std::string DescribeBars(int distance) {
    std::string const median = "the median distance of the days is " + std::to_string(distance);
    if (distance <= MostOfDaily) {
        return "Days are missing: " + median;
    }
    auto const found = std::ranges::find_if(BarLengths, [distance](BarLength const& length) {
        return distance >= length.Least && distance <= length.Most;
    });
    return (found == BarLengths.end() ? "The rows are not daily: "
                                      : "The rows look " + std::string(found->Name) + ", not daily: ") +
           median;
}

} // namespace quorvex::imports
