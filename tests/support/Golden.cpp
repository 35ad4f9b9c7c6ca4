// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/Golden.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quorvex::tests {

std::string GoldenPath(std::string_view path) {
    return std::string(QUORVEX_GOLDEN_FOLDER) + '/' + std::string(path);
}

std::string GoldenFile(std::string_view path) {
    std::ifstream file(GoldenPath(path), std::ios::binary);
    if (!file) {
        throw std::runtime_error("No such reference file: " + std::string(path));
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

nlohmann::json GoldenVector(std::string_view name) {
    return nlohmann::json::parse(GoldenFile("expected/" + std::string(name) + ".json"));
}

} // namespace quorvex::tests
