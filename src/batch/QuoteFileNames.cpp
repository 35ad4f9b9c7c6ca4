// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/QuoteFileNames.h"

#include "text/RunTimeError.h"
#include "text/basFolders.h"

#include <filesystem>
#include <utility>

namespace quorvex::batch {

namespace {

std::string WithSeparator(std::string path) {
    if (path.find_first_of("/\\") != std::string::npos) {
        return text::EndWithSeparator(path);
    }
    return path += static_cast<char>(std::filesystem::path::preferred_separator);
}

} // namespace

PathSource PathsOf(std::vector<std::string> paths) {
    return [paths = std::move(paths), at = std::size_t{0}]() mutable -> std::optional<std::string> {
        return at < paths.size() ? std::optional(paths[at++]) : std::nullopt;
    };
}

QuoteFileNames::QuoteFileNames(PathSource paths, platform::Folders const& folders, Options options)
    : paths_(std::move(paths)),
      folders_(folders),
      options_(std::move(options)) {}

std::optional<BatchFile> QuoteFileNames::Next() {
    for (;;) {
        if (!levels_.empty()) {
            if (auto file = NextOfFolders()) {
                return file;
            }
        }
        auto path = paths_();
        if (!path) {
            return std::nullopt;
        }
        if (!folders_.IsFolder(*path)) {
            return BatchFile{std::move(*path), {}};
        }
        hasGiven_ = false;
        Enter(WithSeparator(std::move(*path)));
    }
}

void QuoteFileNames::Enter(std::string folder) {
    levels_.emplace_back().Folder = std::move(folder);
}

// Nothing when the outermost folder is done. A folder that cannot be read comes as a refusal, and is done.
std::optional<BatchFile> QuoteFileNames::NextOfFolders() {
    while (!levels_.empty()) {
        Level& level = levels_.back();
        std::optional<BatchFile> file;
        auto const error = text::Trap([&] {
            file = NextFile(level);
            if (auto subfolder = file ? std::nullopt : NextSubfolder(level)) {
                Enter(std::move(*subfolder));
            } else if (!file) {
                if (levels_.size() == 1 && !hasGiven_) {
                    file = BatchFile{level.Folder, std::string("There is no file ") + QuotePattern};
                }
                levels_.pop_back();
            }
        });
        if (error) {
            file = BatchFile{std::move(levels_.back().Folder), std::string(error->Description())};
            levels_.pop_back();
        }
        if (file) {
            hasGiven_ = true;
            return file;
        }
    }
    return std::nullopt;
}

std::optional<BatchFile> QuoteFileNames::NextFile(Level& level) {
    while (auto const name = NextName(level.Folder, level.Files, platform::EntryKind::File)) {
        std::string path = level.Folder + *name;
        if (!options_.PassOver || !options_.PassOver(path)) {
            return BatchFile{std::move(path), {}};
        }
    }
    return std::nullopt;
}

// The path of the folder's next one, which ends with a separator.
std::optional<std::string> QuoteFileNames::NextSubfolder(Level& level) const {
    if (!options_.IsRecursive) {
        return std::nullopt;
    }
    auto const name = NextName(level.Folder, level.Folders, platform::EntryKind::Folder);
    return name ? std::optional(text::EndWithSeparator(level.Folder + *name)) : std::nullopt;
}

std::optional<std::string> QuoteFileNames::NextName(std::string const& folder, Names& names,
                                                    platform::EntryKind kind) const {
    if (names.At == names.Piece.size() && names.HasMore) {
        names.Piece =
            folders_.Names(folder, {.Kind = kind,
                                    .Pattern = kind == platform::EntryKind::File ? QuotePattern : "*",
                                    .Behind = names.Piece.empty() ? "" : names.Piece.back(),
                                    .Most = options_.NamesAtOnce});
        names.At = 0;
        names.HasMore = names.Piece.size() == options_.NamesAtOnce;
    }
    return names.At < names.Piece.size() ? std::optional(names.Piece[names.At++]) : std::nullopt;
}

} // namespace quorvex::batch
