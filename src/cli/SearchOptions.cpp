// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/SearchOptions.h"

namespace quorvex::cli {

namespace {

// Without a description of its own: the help names the type of the option.
CLI::Validator IsBetween(int least, int most) {
    return {[least, most](std::string const& text) {
                int value = 0;
                bool const good = CLI::detail::lexical_cast(text, value) && value >= least && value <= most;
                return good ? std::string()
                            : text + " is not between " + std::to_string(least) + " and " +
                                  std::to_string(most);
            },
            ""};
}

} // namespace

CLI::Option* AddSearchOptions(CLI::App& command, std::string const& name,
                              std::optional<search::SearchRequest>& request) {
    using search::SearchRequest;
    bool const isOptional = !request;
    auto const change = [&request]() -> SearchRequest& {
        request = request.value_or(SearchRequest());
        return *request;
    };
    auto* const cycles = command
                             .add_option_function<int>(
                                 name, [change](int count) { change().CycleCount = count; },
                                 "Find so many cycles, 1 to 10, that follow the moving average best")
                             ->type_name("N")
                             ->check(IsBetween(1, search::MostCycles));
    auto* const shortest =
        command
            .add_option_function<int>(
                "--min-period", [change](int days) { change().MinPeriod = days; },
                "Shortest period to look for [" + std::to_string(search::DefaultMinPeriod) + "]")
            ->type_name("DAYS")
            ->check(IsBetween(search::ShortestPeriod, search::LongestPeriod));
    auto* const longest = command
                              .add_option_function<int>(
                                  "--max-period", [change](int days) { change().MaxPeriod = days; },
                                  "Longest period to look for [half the days]")
                              ->type_name("DAYS")
                              ->check(IsBetween(search::ShortestPeriod, search::LongestPeriod));
    auto* const detrend = command.add_flag_callback(
        "--detrend", [change] { change().Detrend = true; },
        "Take the straight line out of the moving average, for the search alone");
    if (isOptional) {
        for (CLI::Option* option : {shortest, longest, detrend}) {
            option->needs(cycles);
        }
    }
    return cycles;
}

} // namespace quorvex::cli
