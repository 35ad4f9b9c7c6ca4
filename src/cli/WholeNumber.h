// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <CLI/CLI.hpp>

#include <charconv>
#include <string>

namespace quorvex::cli {

// Lets decimal whole numbers of the range through, and as such: the library itself would read 010 as 8. To be
// used with transform. Without a description of its own: the help names the type of the option.
inline CLI::Validator WholeNumberBetween(int least, int most) {
    return {[least, most](std::string& text) {
                int value = 0;
                char const* const end = text.data() + text.size();
                auto const read = std::from_chars(text.data(), end, value);
                if (read.ec != std::errc() || read.ptr != end || value < least || value > most) {
                    return text + " is not a whole number between " + std::to_string(least) + " and " +
                           std::to_string(most);
                }
                text = std::to_string(value);
                return std::string();
            },
            ""};
}

} // namespace quorvex::cli
