// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/ImportSource.h"
#include "import/Sample.h"
#include "import/basConversion.h"
#include "platform/Files.h"
#include "search/TaskThread.h"

#include <exception>
#include <functional>
#include <memory>

namespace quorvex::imports::ui {

// What is wanted of a table.
struct TableRequest {
    ImportSource Source;
    Choices Chosen;
    Limits Within;
};

// The first rows of a table and what they are taken for.
struct TableLook {
    Sample First;
    Plan Made;
};

// What comes while a table is read and at its end.
struct TableNews {
    int Number = 0;                          // of the reading
    double Share = 0;                        // of 1 that is read
    std::shared_ptr<TableLook const> Looked; // once, before all that follows
    std::shared_ptr<Conversion const> Read;  // at the end
    bool IsOver = false;                     // the last news of this reading
    std::exception_ptr Fault;                // what ended it otherwise
};

// Reads tables on a thread of its own: one at a time, the latest that was asked for.
class TableThread {
public:
    using Report = std::function<void(TableNews const&)>;

    // The report is called on that thread and must not throw. Readings that were ended report until they
    // notice, under the number that they had. The files must outlive the thread.
    TableThread(Report report, platform::Files const& files);

    // Ends the reading under way and starts this one. Returns its number, which no other reading has.
    int Start(TableRequest request);

    // Ends the reading under way, without waiting for it.
    void Stop() { thread_.Stop(); }

private:
    void Run(int number, TableRequest const& request, search::GoOn const& goOn) const;
    [[nodiscard]] std::shared_ptr<Conversion const> Read(int number, TableRequest const& request,
                                                         search::GoOn const& goOn) const;

    Report report_;
    platform::Files const& files_;
    search::TaskThread thread_; // the last member: it uses the others, and its end is waited for
};

} // namespace quorvex::imports::ui
