// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Starts the system's own information tool.
#pragma once

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Launcher.h"
#include "platform/Registry.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvex::auxiliary {

// The value as a text, a number as "&h" and its hexadecimal digits; nothing when it cannot be read.
[[nodiscard]] std::optional<std::string> GetKeyValue(platform::Registry const& registry,
                                                     std::string_view keyName, std::string_view valueName);

// Starts the tool that the registry names, or tells the user that there is none. A tool that is named and
// cannot be started shows the description of the error.
void StartSysInfo(platform::Registry const& registry, platform::Files const& files,
                  platform::Launcher& launcher, platform::Dialogs& dialogs);

} // namespace quorvex::auxiliary
