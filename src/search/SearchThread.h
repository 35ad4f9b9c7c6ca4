// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/TaskThread.h"
#include "search/basSearch.h"

#include <exception>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quorvex::search {

// How a series is searched: SearchSeries, but for tests.
using SearchRoutine = std::function<SearchOutcome(std::span<double const>, SearchRequest const&, GoOn const&,
                                                  TakeModel const&)>;

// What comes from a search while it runs and at its end.
struct SearchNews {
    int Number = 0;                  // of the search
    std::optional<CycleModel> Found; // of one cycle more than the one before
    bool IsOver = false;             // the last news of this search
    std::string Refusal;             // as in SearchOutcome, at the end
    std::exception_ptr Fault;        // what ended it otherwise
};

// Searches on a thread of its own: one search at a time, the latest that was asked for. It works on copies.
class SearchThread {
public:
    using Report = std::function<void(SearchNews const&)>;

    // The report is called on that thread and must not throw. Searches that were ended report until they
    // notice, under the number that they had.
    explicit SearchThread(Report report, SearchRoutine routine = SearchSeries);

    // Ends the search under way and starts this one. Returns its number, which no other search has.
    int Start(std::vector<double> series, SearchRequest const& request);

    // Ends the search under way, without waiting for it.
    void Stop() { thread_.Stop(); }

private:
    void Run(int number, std::span<double const> series, SearchRequest const& request,
             GoOn const& goOn) const;

    Report report_;
    SearchRoutine routine_;
    TaskThread thread_; // the last member: it uses the others, and its end is waited for
};

} // namespace quorvex::search
