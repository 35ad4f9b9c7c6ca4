// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The files of unsaved edits of one quote file: NAME.edits, and behind that NAME.edits.2, NAME.edits.3 and so
// on for those of editors that found others there.
#pragma once

#include "editor/basUnsaved.h"
#include "platform/Files.h"
#include "text/RunTimeError.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvex::editor {

// What one editor left.
struct KeptSet {
    std::string Path;
    std::string Text; // of the file
    KeptEdits Edits;
};

struct KeptSets {
    std::vector<KeptSet> Sets;               // the newest first
    std::optional<text::RunTimeError> Fault; // the first, when there are others that cannot be read
};

// Those of the name. A file that holds something else is passed over.
[[nodiscard]] KeptSets ReadKeptSets(platform::Files const& files, std::string const& name);

// Where the next editor may keep its edits: behind all others.
[[nodiscard]] std::string NextKeptPath(platform::Files const& files, std::string const& name);

// Whether the file is there and holds what the mark was made of. Raises the faults of reading.
[[nodiscard]] bool HoldsMark(platform::Files const& files, std::string const& path, std::string const& mark);

// A file that may go as long as it holds what the mark was made of.
struct MarkedFile {
    std::string Path;
    std::string Mark;

    friend bool operator==(MarkedFile const&, MarkedFile const&) = default;
};

[[nodiscard]] MarkedFile MarkedFileOf(KeptSet const& set);

// Deletes the file while it is there and holds that. Raises the faults of reading and deleting.
void RemoveMarked(platform::Files& files, MarkedFile const& file);

} // namespace quorvex::editor
