// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The names that Windows takes for something else than a file. Works on texts alone, on every system.
#pragma once

#include <string_view>

namespace quorvex::platform::disk {

// Whether a part of the path names a device ("NUL", "com1.txt") or a stream of a file ("a.txt:b"), or the
// path is one of devices ("\\.\..."). A drive in front is none of these.
[[nodiscard]] bool NamesNoFileOnWindows(std::string_view path);

} // namespace quorvex::platform::disk
