// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace quorvex::platform::disk {

// The command line's arguments behind the program's name as UTF-8, last one first. What main was given is
// used where the system has no better source.
[[nodiscard]] std::vector<std::string> ReversedArguments(int count, char const* const* arguments);

} // namespace quorvex::platform::disk
