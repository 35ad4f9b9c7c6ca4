// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What libraries have in common that are preloaded on Linux and stand between a program and the system. They
// look at calls that concern the folder PRELOAD_FOLDER, which is absolute, without links, and ends with a
// slash, and files below it.
#pragma once

#include <array>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>

namespace quorvex::tests {

inline std::string_view Setting(char const* name) {
    char const* const value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

inline bool IsBelowFolder(char const* path) {
    std::array<char, PATH_MAX> whole{};
    return realpath(std::string(path).substr(0, std::string_view(path).rfind('/') + 1).append(".").c_str(),
                    whole.data()) != nullptr &&
           (std::string(whole.data()) + '/').starts_with(Setting("PRELOAD_FOLDER"));
}

inline bool IsBelowFolder(int descriptor) {
    std::array<char, PATH_MAX> path{};
    std::string const link = "/proc/self/fd/" + std::to_string(descriptor);
    auto const length = readlink(link.c_str(), path.data(), path.size() - 1);
    return length > 0 && (std::string(path.data()) + '/').starts_with(Setting("PRELOAD_FOLDER"));
}

// Which has the mode as a further argument.
inline bool MakesFile(int flags) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

template <class Function>
Function* Next(char const* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace quorvex::tests
