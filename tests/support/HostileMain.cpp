// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The main function of every test program: sets up a hostile locale before the tests run, so that no number
// or date depends on the system's.

#include "support/HostileLocale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    quorvex::tests::EnterHostileLocale();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
