// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What stands in folders, however many files that are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::platform {

enum class EntryKind { File, Folder };

// A piece of a folder's names.
struct NamesWanted {
    EntryKind Kind = EntryKind::File;
    std::string Pattern = "*";
    std::string Behind = {}; // only names behind this one
    std::size_t Most = 1;
};

// Paths are those of Files.
class Folders {
public:
    Folders() = default;
    Folders(Folders const&) = delete;
    Folders& operator=(Folders const&) = delete;
    virtual ~Folders() = default;

    // Whether the path leads to a folder, by links or not.
    [[nodiscard]] virtual bool IsFolder(std::string const& path) const = 0;

    // The first of the wanted names in the order of their bytes: so a folder of any size can be gone through
    // with little memory. Links to files are files, links to folders are none. The folder ends with a
    // separator. Raises the fault of a folder that cannot be read.
    [[nodiscard]] virtual std::vector<std::string> Names(std::string const& folder,
                                                         NamesWanted const& wanted) const = 0;
};

} // namespace quorvex::platform
