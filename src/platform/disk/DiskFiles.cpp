// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/DiskFiles.h"

#include "platform/disk/HostFile.h"
#include "platform/disk/TemporaryFile.h"
#include "text/RunTimeError.h"
#include "text/basFolders.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <system_error>
#include <utility>

namespace quorvex::platform::disk {

namespace {

using text::Fault;
using text::RunTimeError;

void RequireName(std::string_view path) {
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        throw RunTimeError(Fault::BadFileName);
    }
}

// The name as UTF-8; nothing for one that Unicode cannot spell, as Windows allows.
std::optional<std::string> Utf8(std::filesystem::path const& name) {
    try {
        auto const text = name.u8string();
        return std::string(text.begin(), text.end());
    } catch (std::system_error const&) {
        return std::nullopt;
    }
}

// A link keeps pointing at its file: the file behind it is the one that is replaced, even one that is not
// there yet.
std::filesystem::path BehindLinks(std::filesystem::path path) {
    constexpr int MostLinks = 40;
    std::error_code error;
    for (int links = 0; std::filesystem::is_symlink(path, error); ++links) {
        auto const target = std::filesystem::read_symlink(path, error);
        if (error || links == MostLinks) {
            throw RunTimeError(Fault::BadFileName);
        }
        path = path.parent_path() / target; // an absolute target stands for itself
    }
    return path;
}

// A folder is no file, and neither is a device or a pipe: reading it could keep the program waiting, and it
// is never replaced, emptied or deleted. Returns whether there is a file.
bool RequireFileOrNone(std::filesystem::path const& path) {
    std::error_code error;
    bool const exists = std::filesystem::exists(path, error);
    if (exists && !std::filesystem::is_regular_file(path, error)) {
        throw RunTimeError(Fault::PermissionDenied);
    }
    return exists;
}

void RequireWritableOrNone(std::filesystem::path const& path) {
    if (RequireFileOrNone(path) && IsWriteProtected(path)) {
        throw RunTimeError(Fault::PermissionDenied);
    }
}

// The file that takes new content for this name.
std::filesystem::path WritableTarget(std::string_view path) {
    RequireName(path);
    std::filesystem::path target = BehindLinks(HostPath(path));
    RequireWritableOrNone(target);
    return target;
}

TemporaryFile Written(std::filesystem::path const& target, std::string_view content) {
    text::TextSource bytes(content);
    return {target, bytes, target};
}

bool IsThere(std::filesystem::path const& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

bool HoldsAlready(std::filesystem::path const& file, std::string_view content) {
    if (!IsThere(file) || HostFileLength(file) != content.size()) {
        return false;
    }
    constexpr std::size_t BufferSize = 65'536;
    std::array<char, BufferSize> buffer{};
    auto const source = OpenHostFile(file);
    std::size_t count = 0;
    while ((count = source->Read(buffer)) > 0) {
        if (!content.starts_with({buffer.data(), count})) {
            return false;
        }
        content.remove_prefix(count);
    }
    return content.empty();
}

void KeepContent(std::filesystem::path const& file) {
    if (!IsThere(file) || HostFileLength(file) == 0) {
        return;
    }
    std::filesystem::path backup = file;
    backup += BackupMark;
    RequireWritableOrNone(backup);
    auto const content = OpenHostFile(file);
    TemporaryFile(backup, *content, file).MoveTo(backup);
}

} // namespace

std::filesystem::path HostPath(std::string_view path) {
    std::u8string spelled(path.begin(), path.end());
    if constexpr (std::filesystem::path::preferred_separator == '/') {
        std::replace(spelled.begin(), spelled.end(), u8'\\', u8'/');
    }
    try {
        return {spelled};
    } catch (std::system_error const&) {
        throw RunTimeError(Fault::BadFileName); // bytes that are no UTF-8, on Windows
    }
}

std::unique_ptr<text::ByteSource> OpenFileOrPipe(std::string const& path) {
    RequireName(path);
    return OpenHostFile(HostPath(path));
}

std::unique_ptr<text::ByteSource> DiskFiles::OpenForInput(std::string const& path) const {
    RequireName(path);
    std::filesystem::path const file = HostPath(path);
    RequireFileOrNone(file);
    return OpenHostFile(file);
}

void DiskFiles::Replace(std::string const& path, std::string_view content) {
    std::filesystem::path const target = WritableTarget(path);
    TemporaryFile fresh = Written(target, content);
    if (!HoldsAlready(target, content)) {
        KeepContent(target);
    }
    fresh.MoveTo(target);
}

void DiskFiles::Overwrite(std::string const& path, std::string_view content) {
    std::filesystem::path const target = WritableTarget(path);
    Written(target, content).MoveTo(target);
}

void DiskFiles::Append(std::string const& path, std::string_view bytes) {
    auto const sink = OpenHostFileToAppend(WritableTarget(path));
    sink->Write(bytes);
    sink->Close();
}

void DiskFiles::Keep(std::string const& path) {
    KeepContent(WritableTarget(path));
}

std::unique_ptr<ByteSink> DiskFiles::OpenForOutput(std::string const& path) {
    RequireName(path);
    std::filesystem::path const target = HostPath(path);
    RequireFileOrNone(target);
    return CreateHostFile(target);
}

void DiskFiles::Remove(std::string const& path) {
    RequireName(path);
    std::filesystem::path const target = BehindLinks(HostPath(path));
    RequireFileOrNone(target);
    RemoveHostFile(target);
}

std::uint64_t DiskFiles::Length(std::string const& path) const {
    RequireName(path);
    std::filesystem::path const file = HostPath(path);
    RequireFileOrNone(file);
    return HostFileLength(file);
}

std::vector<std::string> DiskFiles::List(std::string const& folder, std::string_view pattern) const {
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::path path;
    if (text::Trap([&] { path = HostPath(folder); })) {
        return names;
    }
    std::filesystem::directory_iterator entry(path, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::error_code unreadable;
        auto name = Utf8(entry->path().filename());
        // A pipe or a device would keep a reader waiting.
        if (name && text::MatchesPattern(*name, pattern) && entry->is_regular_file(unreadable)) {
            names.push_back(std::move(*name));
        }
    }
    return names;
}

} // namespace quorvex::platform::disk
