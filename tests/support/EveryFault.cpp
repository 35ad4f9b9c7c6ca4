// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/EveryFault.h"

#include "platform/basMessages.h"
#include "support/Messages.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <exception>
#include <sstream>

namespace quorvex::tests {

namespace {

using platform::fake::Failure;
using text::Fault;

constexpr std::array Faults = {Fault::DiskFull, Fault::PermissionDenied, Fault::FileNotFound,
                               Fault::PathNotFound, Fault::BadFileName};
constexpr int MostCalls = 1000;

// What a run leaves.
struct State {
    Contents Files;
    std::string Memory;
    std::vector<std::string> Told;
};

Contents FilesOf(Trial const& trial) {
    Contents files = trial.Disk.Contents;
    std::erase_if(files, [&](auto const& file) { return trial.IsOfMemory && trial.IsOfMemory(file.first); });
    return files;
}

State StateOf(Trial const& trial) {
    return {FilesOf(trial), trial.Memory(), trial.Told()};
}

void RunWithoutEscape(Trial const& trial) {
    try {
        trial.Run();
    } catch (std::exception const& error) {
        ADD_FAILURE() << "escaped: " << error.what();
    }
    EXPECT_EQ(trial.Disk.OpenCount(), 0U);
}

// One command with what its runs do when nothing fails.
class Probe {
public:
    Probe(std::function<Trial()> const& make, std::set<std::string_view> const& calls)
        : make_(make),
          calls_(calls) {
        Trial const trial = make_();
        triesGone_ = trial.TriesGone;
        before_ = StateOf(trial);
        trial.Run();
        first_ = StateOf(trial);
        trial.Run();
        second_ = StateOf(trial);
    }

    void ExpectNothingOfPieces() const {
        SCOPED_TRACE("single bytes");
        Trial const trial = make_();
        trial.Files.PieceSize = 1;
        RunWithoutEscape(trial);
        ExpectState(trial, first_);
    }

    [[nodiscard]] bool Tries(Fault fault) const {
        return triesGone_ || fault == Fault::DiskFull || fault == Fault::PermissionDenied;
    }

    void ExpectSafe(Fault fault, bool lasts) {
        for (int number = 1;; ++number) {
            ASSERT_LE(number, MostCalls) << "files are called without end";
            if (!MeetsFault({number, fault, lasts})) {
                break;
            }
        }
    }

    void ExpectCalls() const { EXPECT_EQ(met_, calls_); }

private:
    static void ExpectState(Trial const& trial, State const& wanted) {
        EXPECT_EQ(trial.Memory(), wanted.Memory);
        EXPECT_EQ(FilesOf(trial), wanted.Files);
        EXPECT_EQ(trial.Told(), wanted.Told);
    }

    // Returns whether the command has as many calls.
    bool MeetsFault(Failure const& failure) {
        Trial const trial = make_();
        trial.Files.FailAt(failure);
        SCOPED_TRACE("call " + std::to_string(failure.Number) + (failure.Lasts ? " and all behind" : "") +
                     ": " + std::string(text::RunTimeError(failure.Raised).Description()));
        RunWithoutEscape(trial);
        auto const call = trial.Files.Failed();
        if (!call) {
            ExpectState(trial, first_);
            return false;
        }
        SCOPED_TRACE(NameOf(*call));
        met_.insert(NameOf(*call));
        MetFault const met{*call, failure.Raised, failure.Lasts};
        Ending const ending = trial.Ends ? trial.Ends(met) : Ending{{DescriptionBox(met)}};
        EXPECT_EQ(trial.Told(), ending.Told);
        ExpectMemory(trial, ending.IsDone);
        ExpectWholeFiles(trial, ending.IsDone);
        trial.Files.Recover();
        ExpectNextRun(trial);
        return true;
    }

    void ExpectMemory(Trial const& trial, bool isDone) const {
        std::string const now = trial.Memory();
        if (isDone) {
            EXPECT_EQ(now, first_.Memory);
        } else if (!trial.MayHold || !trial.MayHold(before_.Memory, first_.Memory, now)) {
            EXPECT_EQ(now, before_.Memory);
        }
    }

    void ExpectWholeFiles(Trial const& trial, bool isDone) const {
        Contents const files = FilesOf(trial);
        if (isDone) {
            EXPECT_EQ(files, first_.Files);
        }
        for (auto const& [path, content] : before_.Files) {
            bool const isWhole = Holds(files, path, content) ||
                                 Holds(files, path + std::string(platform::BackupMark), content);
            EXPECT_TRUE(isWhole || MayBeLeft(trial, path)) << path;
        }
        for (auto const& [path, content] : files) {
            EXPECT_TRUE(before_.Files.contains(path) || MayBeLeft(trial, path)) << path << " holds:\n"
                                                                                << content;
        }
    }

    static bool Holds(Contents const& files, std::string const& path, std::string const& content) {
        auto const file = files.find(path);
        return file != files.end() && file->second == content;
    }

    // Whether the file is what it becomes, a backup of what another one was, or may be left so.
    [[nodiscard]] bool MayBeLeft(Trial const& trial, std::string const& path) const {
        auto const now = trial.Disk.Contents.find(path);
        if (now == trial.Disk.Contents.end()) {
            return !first_.Files.contains(path) || (trial.MayLeave && trial.MayLeave(path, {}));
        }
        return IsBackup(before_.Files, path, now->second) || Holds(first_.Files, path, now->second) ||
               (trial.MayLeave && trial.MayLeave(path, now->second));
    }

    // What was done in spite of the fault is done twice then. Backups are of what the run has found.
    void ExpectNextRun(Trial const& trial) const {
        SCOPED_TRACE("the next run");
        Contents const found = FilesOf(trial);
        RunWithoutEscape(trial);
        State now = StateOf(trial);
        for (State const* wanted : {&second_, &first_}) {
            Contents files = wanted->Files;
            for (auto const& [path, content] : now.Files) {
                if (IsBackup(found, path, content)) {
                    files[path] = content;
                }
            }
            if (wanted == &first_) {
                EXPECT_EQ(now.Memory, wanted->Memory);
                EXPECT_EQ(now.Files, files);
                EXPECT_EQ(now.Told, wanted->Told);
            } else if (now.Memory == wanted->Memory && now.Files == files && now.Told == wanted->Told) {
                return;
            }
        }
    }

    // Whether the path is that of a backup of one of those files.
    static bool IsBackup(Contents const& files, std::string const& path, std::string const& content) {
        return path.ends_with(platform::BackupMark) &&
               Holds(files, path.substr(0, path.size() - platform::BackupMark.size()), content);
    }

    std::function<Trial()> const& make_;
    std::set<std::string_view> const& calls_;
    bool triesGone_ = true;
    State before_;
    State first_;
    State second_;
    std::set<std::string_view> met_;
};

std::vector<std::string> LinesOf(std::string const& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace

bool MetFault::IsGone() const {
    return Raised == Fault::FileNotFound || Raised == Fault::PathNotFound;
}

std::string MetFault::Description() const {
    return std::string(text::RunTimeError(Raised).Description());
}

std::string DescriptionBox(MetFault const& met) {
    return Describe(platform::ErrorMessage(text::RunTimeError(met.Raised)));
}

void ExpectSafe(std::string_view command, std::function<Trial()> const& make,
                std::set<std::string_view> const& calls) {
    SCOPED_TRACE(command);
    Probe probe(make, calls);
    probe.ExpectNothingOfPieces();
    for (Fault const fault : Faults) {
        for (bool const lasts : {false, true}) {
            if (probe.Tries(fault)) {
                probe.ExpectSafe(fault, lasts);
            }
        }
    }
    probe.ExpectCalls();
}

bool IsDoneInPart(std::string const& before, std::string const& after, std::string const& now) {
    auto const old = LinesOf(before);
    auto const fresh = LinesOf(after);
    auto const lines = LinesOf(now);
    if (old.size() != fresh.size() || old.size() != lines.size()) {
        return false;
    }
    bool isOld = false;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        isOld = isOld || lines[line] != fresh[line];
        if (lines[line] != (isOld ? old[line] : fresh[line])) {
            return false;
        }
    }
    return true;
}

} // namespace quorvex::tests
