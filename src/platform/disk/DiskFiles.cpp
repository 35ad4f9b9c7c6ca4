// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/DiskFiles.h"

#include "platform/basFiles.h"
#include "platform/disk/HeldFolder.h"
#include "platform/disk/HostFile.h"
#include "platform/disk/TemporaryFile.h"
#include "text/RunTimeError.h"
#include "text/basFolders.h"

#include <array>
#include <cstddef>
#include <filesystem>
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

// A folder is no file, and neither is a device or a pipe: reading it could keep the program waiting, and it
// is never replaced, emptied or deleted. Returns whether there is a file.
bool RequireFileOrNone(std::filesystem::path const& path) {
    auto const kind = KindOfHostFile(path);
    if (kind == HostFileKind::Folder || kind == HostFileKind::Other) {
        throw RunTimeError(Fault::PermissionDenied);
    }
    return kind == HostFileKind::File;
}

void RequireWritableOrNone(std::filesystem::path const& path) {
    if (RequireFileOrNone(path) && IsWriteProtected(path)) {
        throw RunTimeError(Fault::PermissionDenied);
    }
}

// The file that takes new content for this name: a link keeps pointing at its own.
std::filesystem::path WritableTarget(std::string_view path) {
    RequireName(path);
    std::filesystem::path target = FollowHostLinks(HostPath(path));
    RequireWritableOrNone(target);
    return target;
}

TemporaryFile Written(std::filesystem::path const& target, std::string_view content) {
    text::TextSource bytes(content);
    return {target, bytes, target};
}

bool IsThere(std::filesystem::path const& path) {
    return KindOfHostFile(path) != HostFileKind::None;
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

// Of a file in a held folder.
void ReplaceContent(std::filesystem::path const& target, std::string_view content) {
    TemporaryFile fresh = Written(target, content);
    if (!HoldsAlready(target, content)) {
        KeepContent(target);
    }
    fresh.MoveTo(target);
}

} // namespace

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
    HeldFolder const held(target.parent_path());
    ReplaceContent(target, content);
}

void DiskFiles::Revise(std::string const& path, Revision const& revise) {
    RequireName(path);
    std::filesystem::path const target = FollowHostLinks(HostPath(path));
    HeldFolder const held(target.parent_path());
    if (auto const content = revise(ReadFileIfThere(*this, path))) {
        RequireWritableOrNone(target);
        ReplaceContent(target, *content);
    }
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
    std::filesystem::path const target = FollowHostLinks(HostPath(path));
    RequireFileOrNone(target);
    RemoveHostFile(target);
}

std::uint64_t DiskFiles::Length(std::string const& path) const {
    RequireName(path);
    std::filesystem::path const file = HostPath(path);
    RequireFileOrNone(file);
    return HostFileLength(file);
}

bool DiskFiles::AreSame(std::string const& one, std::string const& other) const {
    std::error_code error; // for one that is not there
    bool areSame = false;
    static_cast<void>(
        text::Trap([&] { areSame = std::filesystem::equivalent(HostPath(one), HostPath(other), error); }));
    return areSame && !error;
}

void DiskFiles::EnterFolder(std::string const& folder) {
    RequireName(folder);
    std::error_code error;
    std::filesystem::current_path(HostPath(folder), error);
    if (error) {
        throw RunTimeError(Fault::PathNotFound);
    }
}

std::vector<std::string> DiskFiles::List(std::string const& folder, std::string_view pattern) const {
    std::vector<std::string> names;
    // A folder that no folder can be is one that cannot be read.
    static_cast<void>(text::Trap([&] {
        VisitHostFolder(HostPath(folder), [&](std::string name, HostFileKind kind) {
            // A pipe or a device would keep a reader waiting.
            if (kind == HostFileKind::File && text::MatchesPattern(name, pattern)) {
                names.push_back(std::move(name));
            }
        });
    }));
    return names;
}

} // namespace quorvex::platform::disk
