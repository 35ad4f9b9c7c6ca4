// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::platform::disk {

// As long as it lives, Ctrl-C and a request to end are noted and end nothing, once: the next one ends the
// process. What the process was started to ignore stays ignored. There is one at a time.
// On Windows a console that is closed, the end of the session and that of the system end the process all the
// same, once this is gone or the seconds are over that the system grants for it.
class HostInterruption {
public:
    HostInterruption();
    HostInterruption(HostInterruption const&) = delete;
    HostInterruption& operator=(HostInterruption const&) = delete;
    ~HostInterruption();

    // Whether there was one. For any thread.
    [[nodiscard]] static bool HasCome();
};

} // namespace quorvex::platform::disk
