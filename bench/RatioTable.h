// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sstream>
#include <string>

namespace quorvex::bench {

// What was measured, one ratio a line, beside its target.
class RatioTable {
public:
    RatioTable();

    // A ratio that explains the one above it.
    void Add(std::string const& what, double ratio);

    void Add(std::string const& what, double ratio, double target);

    // How many ratios are over their targets.
    [[nodiscard]] int OverCount() const { return overCount_; }

    [[nodiscard]] std::string Text() const { return text_.str(); }

private:
    std::ostream& Row(std::string const& what, std::string const& ratio);

    std::ostringstream text_;
    int overCount_ = 0;
};

} // namespace quorvex::bench
