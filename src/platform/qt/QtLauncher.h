// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Launcher.h"

namespace quorvex::platform::qt {

class QtLauncher final : public Launcher {
public:
    void Start(std::string_view program) override;
};

} // namespace quorvex::platform::qt
