// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostConsole.h"

#include <gtest/gtest.h>

namespace quorvex::platform::disk {
namespace {

TEST(HostConsole, HasAWidthEvenWithoutATerminal) {
    EXPECT_GT(HostConsole().Width(), 0);
}

} // namespace
} // namespace quorvex::platform::disk
