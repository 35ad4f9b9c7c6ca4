// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Commands that read and write files, with a fault in each of their calls.
#pragma once

#include "platform/fake/FailingFiles.h"
#include "platform/fake/MemoryFiles.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::tests {

// The first call that failed.
struct MetFault {
    platform::fake::FileCall Call = platform::fake::FileCall::Read;
    text::Fault Raised = text::Fault::DiskFull;
    bool Lasts = false; // so did all calls behind it

    // Whether it says that nothing has the name.
    [[nodiscard]] bool IsGone() const;

    [[nodiscard]] std::string Description() const;
};

// How a command ends that meets a fault.
struct Ending {
    std::vector<std::string> Told;
    bool IsDone = false; // as if there had been none
};

// "Quorvex|none|Disk full" for that fault: what is not told otherwise.
[[nodiscard]] std::string DescriptionBox(MetFault const& met);

using Contents = std::map<std::string, std::string>;

// A command in a world of its own, which the routines share. Optional ones may be left out.
struct Trial {
    platform::fake::MemoryFiles& Disk;
    platform::fake::FailingFiles& Files; // in front of the disk

    // Gives the command, with all answers that it may ask for.
    std::function<void()> Run;

    // What the program holds, in lines.
    std::function<std::string()> Memory;

    // What the last run has told, "title|icon|text" each.
    std::function<std::vector<std::string>()> Told;

    // How the run with that fault ought to end; else with its description in a box and nothing done.
    std::function<Ending(MetFault const&)> Ends = {};

    // Whether a run that is not done may leave the memory like that, if it is not what it was.
    std::function<bool(std::string const& before, std::string const& after, std::string const& now)> MayHold =
        {};

    // Whether a run may leave the file like that, which is neither old nor new.
    std::function<bool(std::string const& path, std::string const& content)> MayLeave = {};

    // Whether faults are tried that say that nothing has the name. A command may believe them.
    bool TriesGone = true;

    // Whether the memory tells what counts of that file.
    std::function<bool(std::string const& path)> IsOfMemory = {};
};

// Makes the world anew, for each call of the command and each fault that Files knows: once that call alone
// fails, once all behind it do as well. Expects that the command ends as it ought to, that what was in the
// files is whole under their names or as their backups, that nothing is left open, and that the next run,
// without a fault, does what the first would have done. Also expects that sources which give single bytes
// change nothing, and that the command makes these calls and no others.
void ExpectSafe(std::string_view command, std::function<Trial()> const& make,
                std::set<std::string_view> const& calls);

// Whether each line of the memory is that before or that after, and those after stand in front.
[[nodiscard]] bool IsDoneInPart(std::string const& before, std::string const& after, std::string const& now);

} // namespace quorvex::tests
