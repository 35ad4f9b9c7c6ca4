// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/StandardStreams.h"

#include "platform/disk/HostConsole.h"

#include <cstdio>

namespace quorvex::cli {

bool Print(std::string_view text) {
    bool const written =
        std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
    if (!written) {
        Complain("The results could not be written.");
    }
    return written;
}

bool PrintBytes(std::string_view bytes) {
    platform::disk::LeaveOutputAsItIs();
    return Print(bytes);
}

void Complain(std::string_view text) {
    // When even this fails there is nobody left to tell.
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr));
    static_cast<void>(std::fputc('\n', stderr));
}

} // namespace quorvex::cli
