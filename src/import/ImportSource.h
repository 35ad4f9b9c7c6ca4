// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Where a table comes from, and where its quotes went.
#pragma once

#include <memory>
#include <string>

namespace quorvex::imports {

// A file, or a text that was pasted.
struct ImportSource {
    std::string Path;                        // empty for a text
    std::shared_ptr<std::string const> Text; // UTF-8; nothing for a file
};

// A quote file that an import has written.
struct ImportedFile {
    std::string Folder; // ends with a separator
    std::string Name;
};

} // namespace quorvex::imports
