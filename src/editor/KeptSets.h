// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The files of unsaved edits of one quote file: NAME.edits, and behind that NAME.edits.2, NAME.edits.3 and so
// on for those of editors that found others there.
#pragma once

#include "editor/basUnsaved.h"
#include "platform/Files.h"

#include <string>
#include <vector>

namespace quorvex::editor {

// What one editor left.
struct KeptSet {
    std::string Path;
    std::string Text; // of the file
    KeptEdits Edits;
};

// Those of the name, the newest first. A file that holds something else is passed over. Raises the faults of
// reading.
[[nodiscard]] std::vector<KeptSet> ReadKeptSets(platform::Files const& files, std::string const& name);

// Where the next editor may keep its edits: behind all others.
[[nodiscard]] std::string NextKeptPath(platform::Files const& files, std::string const& name);

// Whether the file is there and holds what the mark was made of. Raises the faults of reading.
[[nodiscard]] bool HoldsMark(platform::Files const& files, std::string const& path, std::string const& mark);

} // namespace quorvex::editor
