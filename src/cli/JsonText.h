// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace quorvex::cli {

// Ordered, so that members stand as documented.
using Json = nlohmann::ordered_json;

// The whole value on one line, with a line end. Doubles are spelled as shortly as they can be; bytes of a
// text that are no UTF-8, as in file names, are replaced.
[[nodiscard]] std::string JsonText(Json const& value);

} // namespace quorvex::cli
