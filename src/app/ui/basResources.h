// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The pictures, sample files and help documents that the executable carries.
#pragma once

#include "platform/Files.h"

#include <string>

namespace quorvex::app::ui {

// Makes the resources known to Qt. To be called before the first window.
void LoadResources();

// Puts the sample files and the help documents into the folder, which is the user's own and new. Raises the
// faults of Files.
void FillProgramFolder(std::string const& folder, platform::Files& files);

} // namespace quorvex::app::ui
