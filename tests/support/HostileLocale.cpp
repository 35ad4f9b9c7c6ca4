// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/HostileLocale.h"

#include <clocale>
#include <locale>
#include <string>

namespace quorvex::tests {

namespace {

// Streams write "1.234,5" whether or not the system has a German locale.
class CommaPunctuation final : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }

    char do_thousands_sep() const override { return '.'; }

    std::string do_grouping() const override { return "\3"; }
};

} // namespace

void EnterHostileLocale() {
    std::setlocale(LC_ALL, "");
    std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
}

} // namespace quorvex::tests
