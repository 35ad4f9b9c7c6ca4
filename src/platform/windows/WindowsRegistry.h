// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Registry.h"

namespace quorvex::platform::windows {

// The registry's HKEY_LOCAL_MACHINE.
class WindowsRegistry final : public Registry {
public:
    [[nodiscard]] std::optional<Value> Query(std::string_view keyName,
                                             std::string_view valueName) const override;
};

} // namespace quorvex::platform::windows
