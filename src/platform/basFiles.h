// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Files read whole.
#pragma once

#include "platform/Files.h"

#include <string>

namespace quorvex::platform {

// All bytes of the file. Raises the faults of Files.
[[nodiscard]] std::string ReadWholeFile(Files const& files, std::string const& path);

// The same; the empty text when there is no such file in its folder.
[[nodiscard]] std::string ReadFileIfThere(Files const& files, std::string const& path);

} // namespace quorvex::platform
