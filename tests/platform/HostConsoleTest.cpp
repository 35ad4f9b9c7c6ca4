// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostConsole.h"

#include <gtest/gtest.h>

namespace quorvex::platform::disk {
namespace {

TEST(HostConsole, HasTheUsualWidthWithoutATerminal) {
    HostConsole const console;
    EXPECT_TRUE(console.IsTerminal() || console.Width() == 80);
    EXPECT_GT(console.Width(), 0);
}

} // namespace
} // namespace quorvex::platform::disk
