// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Texts as the wide functions of Windows take them.
#pragma once

#include <string>
#include <string_view>

namespace quorvex::platform::windows {

// The text, which is UTF-8, in UTF-16; bytes that are no UTF-8 become question marks of Unicode (U+FFFD).
[[nodiscard]] std::wstring Widened(std::string_view text);

// Whether all bytes are UTF-8.
[[nodiscard]] bool IsUtf8(std::string_view text);

// A text of the system's own code page, which older programs wrote, in UTF-16.
[[nodiscard]] std::wstring WidenedFromCodePage(std::string_view text);

// The text, which is UTF-16, in UTF-8.
[[nodiscard]] std::string Narrowed(std::wstring_view text);

} // namespace quorvex::platform::windows
