// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Work on any number of files by some threads, with the results in the order of the files.
#pragma once

#include "batch/Results.h"

#include <functional>
#include <optional>
#include <vector>

namespace quorvex::batch {

// Called by the threads.
struct OrderedWork {
    // The next file; nothing behind the last one. Never by two threads at once; it may wait.
    std::function<std::optional<BatchFile>()> Next;

    // By several threads at once. Nothing when it was ended early: then neither this nor a later result is
    // taken.
    std::function<std::optional<FileResult>(BatchFile const&)> Do;

    // Those that are next in order, as soon as they are there. Never by two threads at once.
    std::function<void(std::vector<FileResult> const&)> Take;
};

// Does it on so many threads, while the calling one asks the watch some ten times a second: once that says
// no, no further file is begun. Results wait for those in front of them; so many files a thread are under way
// or wait, no more. Returns, when all threads have ended, whether all results were taken. What the work
// throws ends it and comes through. REQUIRES: 1 job at least.
[[nodiscard]] bool DoInOrder(OrderedWork const& work, int jobs, std::function<bool()> const& watch);

} // namespace quorvex::batch
