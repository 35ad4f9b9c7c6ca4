// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/Journal.h"

#include <QtGlobal>
#include <cstddef>
#include <cstdlib>
#include <iostream>

namespace quorvex::tests {

namespace {

constexpr std::size_t KeptActions = 20;

void HandleMessage(QtMsgType type, QMessageLogContext const&, QString const& text) {
    // The offscreen platform tells what it cannot do, and which scripts the fonts of the machine cannot
    // write; both say nothing about the windows.
    bool const isOfPlatform = text.startsWith(QStringLiteral("This plugin does not support")) ||
                              text.contains(QStringLiteral("OpenType support missing"));
    if (type == QtDebugMsg || type == QtInfoMsg || isOfPlatform) {
        return;
    }
    Journal::OfThisRun().Abort("Qt warns: " + text.toStdString());
}

} // namespace

Journal& Journal::OfThisRun() {
    static Journal journal;
    return journal;
}

void Journal::Begin(std::uint64_t seed, bool isTraced) {
    seed_ = seed;
    isTraced_ = isTraced;
    std::cout << "Seed " << seed << std::endl; // at once: a crash would take it away
}

void Journal::Note(std::string const& kind, QString const& what) {
    Count("action: " + kind);
    std::string const line = std::to_string(++steps_) + " " + kind + " " + what.toStdString();
    if (isTraced_) {
        std::cerr << line << std::endl;
    }
    std::lock_guard const lock(mutex_);
    last_.push_back(line);
    if (last_.size() > KeptActions) {
        last_.pop_front();
    }
}

void Journal::Expect(std::string const& what, QStringList const& found, QStringList const& wanted) {
    Count("checked: " + what);
    if (found == wanted) {
        return;
    }
    qsizetype line = 0;
    while (found.value(line) == wanted.value(line) && line < found.size()) {
        ++line;
    }
    Abort("Not so: " + what + ". Line " + std::to_string(line + 1) + " of " + std::to_string(found.size()) +
          " is\n" + found.value(line).toStdString() + "\nand should, of " + std::to_string(wanted.size()) +
          ", be\n" + wanted.value(line).toStdString());
}

int Journal::CountOf(std::string const& what) const {
    auto const found = counts_.find(what);
    return found == counts_.end() ? 0 : found->second;
}

void Journal::Abort(std::string const& reason) {
    std::lock_guard const lock(mutex_);
    std::cerr << reason << "\nSeed " << seed_ << ", step " << steps_ << ", after these actions:\n";
    for (std::string const& line : last_) {
        std::cerr << "  " << line << '\n';
    }
    std::cerr.flush();
    std::abort();
}

void Journal::PrintSummary() const {
    for (auto const& [what, count] : counts_) {
        std::cout << what << ": " << count << '\n';
    }
}

void AbortOnWarnings() {
    qInstallMessageHandler(HandleMessage);
}

} // namespace quorvex::tests
