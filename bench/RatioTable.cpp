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
    text_ << std::setprecision(2);
    Row("what", "measured") << "  target\n";
}

void RatioTable::Add(std::string const& what, double ratio) {
    Row(what, Figure(ratio)) << '\n';
}

void RatioTable::Add(std::string const& what, double ratio, double target) {
    Row(what, Figure(ratio)) << "  at most " << target << (ratio <= target ? "  ok\n" : "  over\n");
}

std::ostream& RatioTable::Row(std::string const& what, std::string const& ratio) {
    return text_ << std::left << std::setw(58) << what << std::right << std::setw(8) << ratio;
}

} // namespace quorvex::bench
