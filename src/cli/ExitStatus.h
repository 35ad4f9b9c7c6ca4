// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::cli {

// What a run of the companion ends with.
enum class ExitStatus {
    Success = 0,
    Refused = 1,       // the data were refused; the program's own message went to standard error
    Usage = 2,         // the command line was wrong
    Unfinished = 3,    // of "batch": files are left without a line
    Interrupted = 130, // the same by Ctrl-C or a request to end
};

} // namespace quorvex::cli
