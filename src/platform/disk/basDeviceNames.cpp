// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/basDeviceNames.h"

#include "text/basTexts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace quorvex::platform::disk {

namespace {

constexpr std::string_view Separators = "/\\";

bool IsSeparator(char letter) {
    return Separators.find(letter) != std::string_view::npos;
}

bool IsLetter(char letter) {
    char const raised = text::UpperCase(letter);
    return 'A' <= raised && raised <= 'Z';
}

bool IsDevice(std::string_view part) {
    constexpr std::array<std::string_view, 6> Whole = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    constexpr std::array<std::string_view, 2> Numbered = {"COM", "LPT"};
    // Superscript digits count as digits.
    constexpr std::array<std::string_view, 12> Numbers = {"1", "2", "3", "4",        "5",        "6",
                                                          "7", "8", "9", "\xC2\xB9", "\xC2\xB2", "\xC2\xB3"};
    constexpr std::size_t NumberedLength = 3;
    std::string const name = text::UpperCase(text::Trim(part.substr(0, part.find('.'))));
    if (std::find(Whole.begin(), Whole.end(), name) != Whole.end()) {
        return true;
    }
    std::string_view const letters = std::string_view(name).substr(0, NumberedLength);
    return std::find(Numbered.begin(), Numbered.end(), letters) != Numbered.end() &&
           std::find(Numbers.begin(), Numbers.end(), std::string_view(name).substr(letters.size())) !=
               Numbers.end();
}

bool IsDeviceOrStream(std::string_view part) {
    return part.find(':') != std::string_view::npos || IsDevice(part);
}

// The path behind the mark of one that is taken literally, and behind its drive.
std::string_view WithoutRoot(std::string_view path) {
    constexpr std::string_view Literal = R"(\\?\)";
    if (path.starts_with(Literal)) {
        path.remove_prefix(Literal.size());
    }
    if (path.size() >= 2 && path[1] == ':' && IsLetter(path[0])) {
        path.remove_prefix(2);
    }
    return path;
}

bool IsOfDevices(std::string_view path) {
    return path.size() >= 4 && IsSeparator(path[0]) && IsSeparator(path[1]) && path[2] == '.' &&
           IsSeparator(path[3]);
}

} // namespace

bool NamesNoFileOnWindows(std::string_view path) {
    if (IsOfDevices(path)) {
        return true;
    }
    path = WithoutRoot(path);
    while (!path.empty()) {
        auto const end = path.find_first_of(Separators);
        if (IsDeviceOrStream(path.substr(0, end))) {
            return true;
        }
        path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
    }
    return false;
}

} // namespace quorvex::platform::disk
