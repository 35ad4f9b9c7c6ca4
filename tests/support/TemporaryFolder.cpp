// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/TemporaryFolder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#endif

namespace quorvex::tests {

namespace {

#ifdef _WIN32

// The standard library goes into no path of more than 260 letters. The path begins with "\\?\".
void RemoveFolder(std::wstring const& path) {
    WIN32_FIND_DATAW entry{};
    HANDLE const search = FindFirstFileW((path + L"\\*").c_str(), &entry);
    BOOL isFound = search != INVALID_HANDLE_VALUE ? TRUE : FALSE;
    for (; isFound != 0; isFound = FindNextFileW(search, &entry)) {
        std::wstring const name = static_cast<wchar_t const*>(entry.cFileName);
        std::wstring const inner = path + L'\\' + name;
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            SetFileAttributesW(inner.c_str(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileW(inner.c_str());
        } else if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
            RemoveDirectoryW(inner.c_str()); // the link alone
        } else if (name != L"." && name != L"..") {
            RemoveFolder(inner);
        }
    }
    FindClose(search);
    RemoveDirectoryW(path.c_str());
}

void RemoveFolder(std::filesystem::path const& path) {
    RemoveFolder(L"\\\\?\\" + path.native());
}

#else

void RemoveFolder(std::filesystem::path const& path) {
    std::error_code ignored;
    std::filesystem::permissions(path, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path, ignored);
}

#endif

} // namespace

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    do {
        path_ = std::filesystem::temp_directory_path() / ("quorvex-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
    RemoveFolder(path_);
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
