// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"
#include "platform/Files.h"

#include <string>
#include <string_view>

namespace quorvex::platform {

// Asks for a file to write until it is a new one or may be replaced. The ending, such as ".dat", is put
// behind every name that does not have it in either case; an empty one behind none. Returns the whole path,
// empty when it was cancelled.
[[nodiscard]] std::string AskForFileToWrite(Dialogs& dialogs, Files const& files, SaveQuestion question,
                                            std::string_view ending = {});

} // namespace quorvex::platform
