// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/SearchOptions.h"

#include "cli/WholeNumber.h"

#include <functional>
#include <utility>

namespace quorvex::cli {

namespace {

using search::SearchRequest;

// Changes the request, and makes one first where there is none yet.
using Change = std::function<void(SearchRequest&, int)>;

class SearchOptionAdder {
public:
    SearchOptionAdder(CLI::App& command, std::optional<SearchRequest>& request)
        : command_(command),
          request_(request) {}

    CLI::Option* AddNumber(std::string const& name, std::string const& type, std::string const& help,
                           int least, int most, Change change) {
        return command_
            .add_option_function<int>(
                name,
                [adder = *this, change = std::move(change)](int value) { change(adder.Request(), value); },
                help)
            ->type_name(type)
            ->transform(WholeNumberBetween(least, most));
    }

    CLI::Option* AddFlag(std::string const& name, std::string const& help, Change change) {
        return command_.add_flag_callback(
            name, [adder = *this, change = std::move(change)] { change(adder.Request(), 1); }, help);
    }

private:
    [[nodiscard]] SearchRequest& Request() const {
        if (!request_) {
            request_.emplace();
        }
        return *request_;
    }

    CLI::App& command_;
    std::optional<SearchRequest>& request_;
};

} // namespace

CLI::Option* AddSearchOptions(CLI::App& command, std::string const& name,
                              std::optional<SearchRequest>& request) {
    using search::LongestPeriod;
    using search::ShortestPeriod;
    bool const isOptional = !request;
    SearchRequest const defaults;
    auto const standing = [](int value) { return " [" + std::to_string(value) + "]"; };
    SearchOptionAdder adder(command, request);
    auto* const cycles =
        adder.AddNumber(name, "N",
                        "Find so many cycles, 1 to 10, that follow the moving average best" +
                            (isOptional ? std::string() : standing(defaults.CycleCount)),
                        1, search::MostCycles, [](SearchRequest& of, int count) { of.CycleCount = count; });
    auto* const shortest = adder.AddNumber(
        "--min-period", "DAYS", "Shortest period to look for" + standing(defaults.MinPeriod), ShortestPeriod,
        LongestPeriod, [](SearchRequest& of, int days) { of.MinPeriod = days; });
    auto* const longest =
        adder.AddNumber("--max-period", "DAYS", "Longest period to look for [half the days]", ShortestPeriod,
                        LongestPeriod, [](SearchRequest& of, int days) { of.MaxPeriod = days; });
    auto* const swing = adder.AddNumber("--min-swing", "N",
                                        "How far the composite of two cycles or more swings at least, of "
                                        "100: half the way from its lowest to its "
                                        "highest value" +
                                            standing(defaults.LeastSwing),
                                        0, search::LargestLeastSwing,
                                        [](SearchRequest& of, int least) { of.LeastSwing = least; });
    auto* const detrend =
        adder.AddFlag("--detrend", "Take the straight line out of the moving average, for the search alone",
                      [](SearchRequest& of, int) { of.Detrend = true; });
    if (isOptional) {
        for (CLI::Option* option : {shortest, longest, swing, detrend}) {
            option->needs(cycles);
        }
    }
    return cycles;
}

void RequirePeriods(std::optional<SearchRequest> const& request) {
    if (request && request->MaxPeriod && *request->MaxPeriod < request->MinPeriod) {
        throw CLI::ValidationError("The longest period, " + std::to_string(*request->MaxPeriod) +
                                   ", is below the shortest, " + std::to_string(request->MinPeriod));
    }
}

} // namespace quorvex::cli
