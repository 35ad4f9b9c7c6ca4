// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Replaces the file that is named with 40,000 letters, the first letter of the alphabet to the last one and
// again, until it is killed. Tells when it begins.

#include "platform/disk/DiskFiles.h"

#include <iostream>
#include <string>

int main(int, char** arguments) {
    constexpr std::size_t Length = 40'000;
    quorvex::platform::disk::DiskFiles files;
    std::cout << "begins" << std::endl;
    for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
        files.Replace(arguments[1], std::string(Length, letter));
    }
}
