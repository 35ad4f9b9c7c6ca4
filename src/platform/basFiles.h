// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Files read whole, and the names of files.
#pragma once

#include "platform/Files.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvex::platform {

// All bytes of the file. Raises the faults of Files.
[[nodiscard]] std::string ReadWholeFile(Files const& files, std::string const& path);

// The same; nothing when there is no such file in its folder.
[[nodiscard]] std::optional<std::string> ReadFileIfThere(Files const& files, std::string const& path);

// Whether something has this name, be it a file that cannot be read.
[[nodiscard]] bool IsThere(Files const& files, std::string const& path);

// The name of the file without its folder: what stands behind the last separator of this system.
[[nodiscard]] std::string_view BareName(std::string_view path);

} // namespace quorvex::platform
