// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HeldFolder.h"

#include "text/RunTimeError.h"

#include <optional>
#include <thread>

namespace quorvex::platform::disk {

namespace {

SystemFile AwaitSystemFolder(std::filesystem::path const& folder, std::chrono::milliseconds longest) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds Pause(5);
    auto const end = Clock::now() + longest;
    std::optional<SystemFile> held = HoldSystemFolder(folder);
    while (!held) {
        if (Clock::now() > end) {
            throw text::RunTimeError(text::Fault::PermissionDenied);
        }
        std::this_thread::sleep_for(Pause);
        held = HoldSystemFolder(folder);
    }
    return *held;
}

} // namespace

HeldFolder::HeldFolder(std::filesystem::path const& folder, std::chrono::milliseconds longest)
    : folder_(AwaitSystemFolder(folder, longest)) {}

HeldFolder::~HeldFolder() {
    if (folder_ != NoSystemFile) {
        ReleaseSystemFolder(folder_);
    }
}

} // namespace quorvex::platform::disk
