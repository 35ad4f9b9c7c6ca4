// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostArguments.h"

#ifdef _WIN32
// The second needs the first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on
#include <filesystem>
#else
#include <algorithm>
#endif

namespace quorvex::platform::disk {

#ifdef _WIN32

// What main is given has lost every character outside the system's code page.
std::vector<std::string> ReversedArguments(int, char const* const*) {
    std::vector<std::string> reversed;
    int count = 0;
    if (LPWSTR* const wide = CommandLineToArgvW(GetCommandLineW(), &count)) {
        for (int index = count - 1; index > 0; --index) {
            auto const text = std::filesystem::path(wide[index]).u8string();
            reversed.emplace_back(text.begin(), text.end());
        }
        LocalFree(wide);
    }
    return reversed;
}

#else

std::vector<std::string> ReversedArguments(int count, char const* const* arguments) {
    std::vector<std::string> reversed(arguments + std::min(count, 1), arguments + count);
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

#endif

} // namespace quorvex::platform::disk
