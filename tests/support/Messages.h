// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <span>
#include <string>
#include <vector>

namespace quorvex::tests {

// For EXPECT_TRUE: exactly one message, with this text, title and icon and an OK button.
[[nodiscard]] testing::AssertionResult IsOnlyMessage(std::span<platform::Message const> messages,
                                                     std::string const& text, std::string const& title,
                                                     platform::Icon icon);

// The icon of this name in a reference vector, and the name of an icon.
[[nodiscard]] platform::Icon IconNamed(std::string const& name);
[[nodiscard]] std::string NameOf(platform::Icon icon);

// What the message says, as "title|icon|text"; "title|icon|buttons|text" when it has not just an OK button.
[[nodiscard]] std::string Describe(platform::Message const& message);

// The same of each.
[[nodiscard]] std::vector<std::string> DescribeAll(std::span<platform::Message const> messages);

} // namespace quorvex::tests
