// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The file system as the program uses it. Paths are UTF-8; on every system a backslash separates folders, on
// systems with "/" that does as well.
#pragma once

#include "text/basFields.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::platform {

// The faults are those of text::RunTimeError: "Bad file name or number" for a name that no file can have,
// "File not found", "Path not found" when its folder is missing, "Permission denied" (a folder in place of a
// file included), "Disk full".
class Files {
public:
    Files() = default;
    Files(Files const&) = delete;
    Files& operator=(Files const&) = delete;
    virtual ~Files() = default;

    // Opens the file for reading; it is closed when the source goes.
    [[nodiscard]] virtual std::unique_ptr<text::ByteSource> OpenForInput(std::string const& path) const = 0;

    // Gives the file these bytes as its whole content, creating it when missing. On a fault, and also when
    // the program or the machine stops half-way, the file is as it was before.
    virtual void Replace(std::string const& path, std::string_view content) = 0;

    // The names of the files, not folders, in the folder that fit the pattern, in the order of the file
    // system. The folder ends with a separator. None when the folder cannot be read.
    [[nodiscard]] virtual std::vector<std::string> List(std::string const& folder,
                                                        std::string_view pattern) const = 0;
};

} // namespace quorvex::platform
