// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Folders.h"

namespace quorvex::platform::disk {

// The folders of this machine.
class DiskFolders final : public Folders {
public:
    [[nodiscard]] bool IsFolder(std::string const& path) const override;
    [[nodiscard]] std::vector<std::string> Names(std::string const& folder,
                                                 NamesWanted const& wanted) const override;
};

} // namespace quorvex::platform::disk
