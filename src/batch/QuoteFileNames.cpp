// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/QuoteFileNames.h"

#include "batch/RecordReader.h"
#include "text/RunTimeError.h"
#include "text/basFolders.h"

#include <filesystem>
#include <string_view>
#include <utility>

namespace quorvex::batch {

namespace {

// A name of another system's file system, which here would be a path.
bool LeadsElsewhere(std::string_view name) {
    return name.find_first_of("/\\") != std::string_view::npos;
}

std::string BadName() {
    return std::string(text::RunTimeError(text::Fault::BadFileName).Description());
}

class ListLines {
public:
    explicit ListLines(std::unique_ptr<text::ByteSource> list) : list_(std::move(list)) {}

    // Nothing behind the last one.
    [[nodiscard]] std::optional<std::string> Next() {
        if (isOver_) {
            return std::nullopt;
        }
        auto const line = reader_.Next();
        isOver_ = !line;
        std::string_view path = line.value_or(reader_.Rest());
        constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
        if (std::exchange(isAtStart_, false) && path.starts_with(ByteOrderMark)) {
            path.remove_prefix(ByteOrderMark.size());
        }
        path.remove_suffix(path.ends_with('\n') ? 1 : 0);
        path.remove_suffix(path.ends_with('\r') ? 1 : 0);
        return std::string(path);
    }

private:
    std::unique_ptr<text::ByteSource> list_;
    RecordReader reader_{*list_, false};
    bool isAtStart_ = true;
    bool isOver_ = false;
};

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

PathSource PathsOfList(std::unique_ptr<text::ByteSource> list) {
    return [lines = std::make_shared<ListLines>(std::move(list))]() -> std::optional<std::string> {
        auto path = lines->Next();
        while (path && path->empty()) {
            path = lines->Next();
        }
        return path;
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
                if (LeadsElsewhere(*subfolder)) {
                    file = BatchFile{level.Folder + *subfolder, BadName()};
                } else {
                    Enter(text::EndWithSeparator(level.Folder + *subfolder));
                }
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
        if (LeadsElsewhere(*name)) {
            return BatchFile{std::move(path), BadName()};
        }
        if (!options_.PassOver || !options_.PassOver(path)) {
            return BatchFile{std::move(path), {}};
        }
    }
    return std::nullopt;
}

std::optional<std::string> QuoteFileNames::NextSubfolder(Level& level) const {
    return options_.IsRecursive ? NextName(level.Folder, level.Folders, platform::EntryKind::Folder)
                                : std::nullopt;
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
