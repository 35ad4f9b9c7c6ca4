// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace quorvex::cli {

// Puts the text on standard output. Returns false, after saying so on standard error, when it did not get
// there.
bool Print(std::string_view text);

// The same with bytes that are no text, which no system may change on their way.
bool PrintBytes(std::string_view bytes);

// Puts the text and a line end on standard error.
void Complain(std::string_view text);

} // namespace quorvex::cli
