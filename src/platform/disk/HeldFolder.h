// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/disk/SystemFile.h"

#include <chrono>
#include <filesystem>

namespace quorvex::platform::disk {

// Keeps all others that hold the folder in this way out of it while it lives, programs and threads; a thread
// must not hold it twice. Where the system cannot hold a folder, as on some networks, nobody is kept out.
class HeldFolder {
public:
    // Waits for whoever holds the folder. Raises "Permission denied" when that takes too long.
    explicit HeldFolder(std::filesystem::path const& folder,
                        std::chrono::milliseconds longest = std::chrono::seconds(10));

    HeldFolder(HeldFolder const&) = delete;
    HeldFolder& operator=(HeldFolder const&) = delete;
    ~HeldFolder();

private:
    SystemFile folder_;
};

} // namespace quorvex::platform::disk
