// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Runs one class of window tests: `test_windows frmMainFileTest [options of Qt Test]`.

#include "windows/WindowTest.h"

#include <iostream>

int main(int argc, char** argv) {
    auto const& tests = quorvex::tests::ListedWindowTests();
    auto const test = argc > 1 ? tests.find(argv[1]) : tests.end();
    if (test == tests.end()) {
        std::cerr << "The first argument names one of these tests:\n";
        for (auto const& [name, run] : tests) {
            std::cerr << "    " << name << '\n';
        }
        return EXIT_FAILURE;
    }
    // Qt Test reads the arguments behind the name.
    argv[1] = argv[0];
    return test->second(argc - 1, argv + 1);
}
