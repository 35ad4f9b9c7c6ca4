// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Folders.h"
#include "text/basFields.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::batch {

// What files of a folder are taken for quote files.
inline constexpr char const* QuotePattern = "*.txt";

// A file of a batch.
struct BatchFile {
    std::string Path;
    std::string Refusal; // of what is no file: why there is nothing to analyse; empty of a file
};

// The paths that a batch was given, one after the other, nothing behind the last one. Raises the fault of
// where they come from.
using PathSource = std::function<std::optional<std::string>()>;

[[nodiscard]] PathSource PathsOf(std::vector<std::string> paths);

// Those of a list, one a line, which ends with LF or CR LF; all other bytes, but a UTF-8 byte order mark at
// the start, belong to a path. Empty lines are none.
[[nodiscard]] PathSource PathsOfList(std::unique_ptr<text::ByteSource> list);

// Gives the quote files that the paths lead to, in their order: a folder stands for the files of QuotePattern
// in it, in the order of their bytes, and with IsRecursive for those of its folders behind them; links to
// folders are passed over there. A path that leads to nothing is given as it is. A folder that cannot be read
// or has nothing to give is given itself, with the refusal. However many files there are, a few names are
// kept.
class QuoteFileNames {
public:
    struct Options {
        bool IsRecursive = false;
        // Whether the path, of a folder's file, is to be left out.
        std::function<bool(std::string const&)> PassOver = {};
        std::size_t NamesAtOnce = 16'384;
    };

    // The folders must outlive it.
    QuoteFileNames(PathSource paths, platform::Folders const& folders, Options options);

    // Nothing behind the last one. Raises the faults of the paths.
    [[nodiscard]] std::optional<BatchFile> Next();

private:
    // Names of a folder, of which a piece is kept.
    struct Names {
        std::vector<std::string> Piece;
        std::size_t At = 0;  // the next one of the piece
        bool HasMore = true; // behind the piece, perhaps
    };

    // A folder on the way, below the one before.
    struct Level {
        std::string Folder; // ends with a separator
        Names Files;
        Names Folders;
    };

    void Enter(std::string folder);
    [[nodiscard]] std::optional<BatchFile> NextOfFolders();
    [[nodiscard]] std::optional<BatchFile> NextFile(Level& level);
    [[nodiscard]] std::optional<std::string> NextSubfolder(Level& level) const;
    [[nodiscard]] std::optional<std::string> NextName(std::string const& folder, Names& names,
                                                      platform::EntryKind kind) const;

    PathSource paths_;
    platform::Folders const& folders_;
    Options options_;
    std::vector<Level> levels_; // none outside of a folder
    bool hasGiven_ = false;     // anything since the outermost folder was entered
};

} // namespace quorvex::batch
