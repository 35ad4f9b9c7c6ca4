// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <string>

namespace quorvex::tests {

// What a run did so far: tells how to repeat a failure, and in the end what was tried how often.
class Journal {
public:
    // The one of this run, which the handler of Qt's messages finds too.
    static Journal& OfThisRun();

    void Begin(std::uint64_t seed, bool isTraced);

    // Notes the action that comes now.
    void Note(std::string const& kind, QString const& what);

    // Counts what is no action of its own, such as a command or a window.
    void Count(std::string const& what) { ++counts_[what]; }

    // Counts the check, and aborts when it fails: these are to be equal.
    void Expect(std::string const& what, QStringList const& found, QStringList const& wanted);

    [[nodiscard]] int Steps() const { return steps_; }

    [[nodiscard]] int CountOf(std::string const& what) const;

    // Prints the reason, the seed and the last actions, and ends the process as a crash does. From any
    // thread.
    [[noreturn]] void Abort(std::string const& reason);

    void PrintSummary() const;

private:
    std::uint64_t seed_ = 0;
    bool isTraced_ = false;
    std::atomic<int> steps_ = 0;
    std::map<std::string, int> counts_;
    std::mutex mutex_; // of what follows
    std::deque<std::string> last_;
};

// Lets every warning of Qt abort the run.
void AbortOnWarnings();

} // namespace quorvex::tests
