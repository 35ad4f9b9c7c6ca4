// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/StandardStreams.h"

#include "cli/PipeFiles.h"

#include <algorithm>
#include <cstdio>

namespace quorvex::cli {

bool Print(std::string_view text) {
    bool const written =
        std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
    if (!written) {
        Complain(OutputName(PipeName), "The results could not be written.");
    }
    return written;
}

std::string InOneLine(std::string_view text) {
    std::string line(text);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

void Complain(std::string_view name, std::string_view message) {
    std::string line = "quorvex-cli: ";
    line.append(InOneLine(name)).append(name.empty() ? "" : ": ").append(InOneLine(message)) += '\n';
    // When even this fails there is nobody left to tell.
    static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

} // namespace quorvex::cli
