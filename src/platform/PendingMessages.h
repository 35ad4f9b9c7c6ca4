// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::platform {

// Lets the window system work off what waits for it, at the few points where a long computation allows it.
class PendingMessages {
public:
    PendingMessages() = default;
    PendingMessages(PendingMessages const&) = delete;
    PendingMessages& operator=(PendingMessages const&) = delete;
    virtual ~PendingMessages() = default;

    virtual void Process() = 0;
};

// For runs without a window.
class NoPendingMessages final : public PendingMessages {
public:
    void Process() override {}
};

} // namespace quorvex::platform
