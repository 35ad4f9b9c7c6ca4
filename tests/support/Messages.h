// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <span>
#include <string>

namespace quorvex::tests {

// For EXPECT_TRUE: exactly one message, with this text, title and icon and an OK button.
[[nodiscard]] testing::AssertionResult IsOnlyMessage(std::span<platform::Message const> messages,
                                                     std::string const& text, std::string const& title,
                                                     platform::Icon icon);

// The icon of this name in a reference vector.
[[nodiscard]] platform::Icon IconNamed(std::string const& name);

} // namespace quorvex::tests
