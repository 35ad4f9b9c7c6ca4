// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The reference vectors under tests/golden.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace quorvex::tests {

// The reference vector of this name, without ".json".
[[nodiscard]] nlohmann::json GoldenVector(std::string_view name);

// The bytes of a file below tests/golden, such as "quotes/q025.txt".
[[nodiscard]] std::string GoldenFile(std::string_view path);

// The whole path of a file or folder below tests/golden.
[[nodiscard]] std::string GoldenPath(std::string_view path);

} // namespace quorvex::tests
