// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RatioTable.h"

#include <iomanip>

namespace quorvex::bench {

namespace {

std::string Figure(double ratio) {
    std::ostringstream figure;
    figure << std::fixed << std::setprecision(2) << ratio;
    return figure.str();
}

} // namespace

RatioTable::RatioTable() {
    text_ << std::setprecision(3); // of the targets
    Row("what", "measured") << "  target\n";
}

void RatioTable::Add(std::string const& what, double ratio) {
    Row(what, Figure(ratio)) << '\n';
}

void RatioTable::Add(std::string const& what, double ratio, double target) {
    bool const isOver = ratio > target;
    overCount_ += isOver ? 1 : 0;
    Row(what, Figure(ratio)) << "  at most " << target << (isOver ? "  over\n" : "  ok\n");
}

std::ostream& RatioTable::Row(std::string const& what, std::string const& ratio) {
    return text_ << std::left << std::setw(64) << what << std::right << std::setw(8) << ratio;
}

} // namespace quorvex::bench
