// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The main function of every test program: sets up a hostile locale before the tests run, so that no number
// or date depends on the system's.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <locale>

namespace {

// Streams write "1.234,5" whether or not the system has a German locale.
class CommaPunctuation final : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }

    char do_thousands_sep() const override { return '.'; }

    std::string do_grouping() const override { return "\3"; }
};

} // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
