// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvex::tests {

// A folder of the test's own, gone with the object.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] std::filesystem::path const& Path() const { return path_; }

    // The folder's text with the separator behind it.
    [[nodiscard]] std::string Text() const;

    // The whole path of a name in the folder.
    [[nodiscard]] std::string File(std::string_view name) const;

    void Write(std::string_view name, std::string_view content) const;
    [[nodiscard]] std::string Read(std::string_view name) const;

    // How many entries the folder has.
    [[nodiscard]] int EntryCount() const;

private:
    std::filesystem::path path_;
};

} // namespace quorvex::tests
