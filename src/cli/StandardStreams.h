// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace quorvex::cli {

// Puts the text on standard output. Returns false, after saying so on standard error, when it did not get
// there.
bool Print(std::string_view text);

// The text with blanks where its lines end.
[[nodiscard]] std::string InOneLine(std::string_view text);

// Puts "quorvex-cli: NAME: message" on standard error, in one line. The name is that of the file, or of
// whatever else the message is about; nothing stands in its place when it is empty.
void Complain(std::string_view name, std::string_view message);

} // namespace quorvex::cli
