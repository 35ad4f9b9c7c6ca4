// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostArguments.h"

#include <gtest/gtest.h>

#include <array>

namespace quorvex::platform::disk {
namespace {

#ifndef _WIN32
TEST(HostArguments, ComeLastOneFirstWithoutTheProgramsName) {
    std::array<char const*, 3> const arguments = {"quorvex-cli", "format", "W\xC3\xA4hrung"};
    EXPECT_EQ(ReversedArguments(3, arguments.data()), (std::vector<std::string>{"W\xC3\xA4hrung", "format"}));
    EXPECT_TRUE(ReversedArguments(0, nullptr).empty());
}
#endif

} // namespace
} // namespace quorvex::platform::disk
