// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What an import prepares of files that fail.

#include "Tables.h"
#include "import/PreparedFile.h"
#include "import/basQuoteFiles.h"
#include "support/EveryFault.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace quorvex::imports {
namespace {

using platform::fake::FileCall;
using tests::Ending;
using tests::MetFault;
using tests::Trial;

std::string const UpdatedPath = "C:\\Quotes\\wheat.txt";

struct Preparing {
    platform::fake::MemoryFiles Files;
    platform::fake::FailingFiles Failing{Files};
    PreparedFile Prepared;
    std::string Described = "not yet";
};

std::string FebruaryTable() {
    std::string table = "Date,Open,High,Low,Close\n";
    for (int day = 1; day <= 28; ++day) {
        table += "2024-02-" + std::to_string(100 + day).substr(1) + ",10,12,9,11\n";
    }
    return table;
}

// A file that cannot be read is never brought up to date by a part of it, and why is told; one that seems not
// to be there is a new one.
TEST(PreparedFileUnderFaults, IsAnUpdateOfTheWholeFileOrNone) {
    auto const make = [] {
        auto const world = std::make_shared<Preparing>();
        world->Failing.PieceSize = 500;
        world->Files.Contents[UpdatedPath] = tests::QuoteLines(30);
        return Trial{
            .Disk = world->Files,
            .Files = world->Failing,
            .Run =
                [world] {
                    world->Prepared.Prepare(tests::ImportText(FebruaryTable()), {UpdatedPath, 500, false},
                                            world->Failing);
                    world->Described = world->Prepared.Describe();
                },
            .Memory = [world] { return std::string(world->Prepared.CanUpdate() ? "update" : "no update"); },
            .Told = [world] { return std::vector<std::string>{world->Described}; },
            .Ends = [world](MetFault const& met) -> Ending {
                std::string const made = "Quote file: 28 days, 02/01/24 to 02/28/24.";
                std::string const why =
                    "\nwheat.txt cannot be brought up to date: " + met.Description() + ".";
                bool const seemsNew = world->Described == made;
                EXPECT_TRUE(!seemsNew || (met.Call == FileCall::Length &&
                                          (met.IsGone() || met.Raised == text::Fault::BadFileName)));
                bool const isDone = world->Prepared.CanUpdate();
                EXPECT_TRUE(!isDone || (met.Call == FileCall::Length && !met.Lasts));
                return {{isDone ? world->Described : seemsNew ? made : made + why}, isDone};
            }};
    };
    tests::ExpectSafe("prepare an update", make, {"Length", "OpenForInput", "Read"});
}

} // namespace
} // namespace quorvex::imports
