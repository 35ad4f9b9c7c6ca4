// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Vendors' files tell nobody which characters their bytes stand for.
#pragma once

#include <string>
#include <string_view>

namespace quorvex::convert {

// The bytes as UTF-8: those that are no UTF-8 are taken for Windows-1252, in which old programs write.
[[nodiscard]] std::string ReadableText(std::string_view bytes);

} // namespace quorvex::convert
