// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/TemporaryFolder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

namespace quorvex::tests {

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    do {
        path_ = std::filesystem::temp_directory_path() / ("quorvex-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::Text() const {
    return path_.string() + static_cast<char>(std::filesystem::path::preferred_separator);
}

std::string TemporaryFolder::File(std::string_view name) const {
    return Text() + std::string(name);
}

void TemporaryFolder::Write(std::string_view name, std::string_view content) const {
    std::ofstream file(File(name), std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!file) {
        throw std::runtime_error("Could not write " + File(name));
    }
}

std::string TemporaryFolder::Read(std::string_view name) const {
    std::ifstream file(File(name), std::ios::binary);
    if (!file) {
        throw std::runtime_error("Could not read " + File(name));
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int TemporaryFolder::EntryCount() const {
    return static_cast<int>(
        std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator()));
}

} // namespace quorvex::tests
