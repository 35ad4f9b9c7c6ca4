// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::cli {

// What a run of the companion ends with.
enum class ExitStatus {
    Success = 0,
    Refused = 1,       // the data were refused; the program's own message went to standard error
    Usage = 2,         // the command line was wrong
    Interrupted = 130, // Ctrl-C or a request to end came first
};

} // namespace quorvex::cli
