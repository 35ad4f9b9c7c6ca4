// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The operating system's calls for one file. Every fault of the system comes out as a text::RunTimeError.
#pragma once

#include "platform/Files.h"
#include "text/basFields.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace quorvex::platform::disk {

// The path in the form of this system. Where "/" separates folders, backslashes become "/". On Windows it
// becomes a whole path of any length, and what names a device or a stream there, or cannot be spelled in
// UTF-16, raises "Bad file name or number".
[[nodiscard]] std::filesystem::path HostPath(std::string_view path);

// What a path names. Links are followed: one that leads nowhere is none.
enum class HostFileKind { None, File, Folder, Other };

[[nodiscard]] HostFileKind KindOfHostFile(std::filesystem::path const& path);

// The file that the link names, even one that is not there yet; any other path as it is. On Windows a link
// that leads nowhere raises a fault.
[[nodiscard]] std::filesystem::path FollowHostLinks(std::filesystem::path path);

// Tells the name as UTF-8 and the kind of all that stands in the folder, in the order of the file system. A
// link to a folder, through which a walk could come back to where it was, is of the kind Other. Names that
// Unicode cannot spell, as Windows allows, are left out.
using HostEntryVisitor = std::function<void(std::string, HostFileKind)>;

void VisitHostFolder(std::filesystem::path const& folder, HostEntryVisitor const& visit);

// The file opened for reading from its start. A pipe is waited for until it has a writer.
[[nodiscard]] std::unique_ptr<text::ByteSource> OpenHostFile(std::filesystem::path const& path);

// What the process was given to read and to write on, byte for byte.
[[nodiscard]] std::unique_ptr<text::ByteSource> OpenStandardInput();

// Standard input that ends early once the callback says no, even while it waits for bytes: it is asked some
// times a second. Where the system cannot wait for a while only, not before the next bytes.
[[nodiscard]] std::unique_ptr<text::ByteSource> OpenStandardInputWhile(std::function<bool()> goesOn);

[[nodiscard]] std::unique_ptr<ByteSink> OpenStandardOutput();

// The file, made empty or created, opened for writing. What was written is on the disk once it is closed.
[[nodiscard]] std::unique_ptr<ByteSink> CreateHostFile(std::filesystem::path const& path);

// The file, which must be there, opened for writing behind its end. What was written is on the disk once it
// is closed.
[[nodiscard]] std::unique_ptr<ByteSink> OpenHostFileToAppend(std::filesystem::path const& path);

// The same, held as long as it is open. Nothing when it is held already, by whatever process.
[[nodiscard]] std::unique_ptr<ByteSink> OpenHeldHostFileToAppend(std::filesystem::path const& path);

void RemoveHostFile(std::filesystem::path const& path);

// Takes what stands behind so many bytes off the file.
void ShortenHostFile(std::filesystem::path const& path, std::uint64_t length);

// In bytes.
[[nodiscard]] std::uint64_t HostFileLength(std::filesystem::path const& path);

// A new file opened for writing, whose content is on the disk once it is closed. Nothing when the name is in
// use.
[[nodiscard]] std::unique_ptr<ByteSink> CreateNewHostFile(std::filesystem::path const& path,
                                                          bool onlyForOwner);

// Gives the second file the permissions of the first one and, where the system lets the user, its owner and
// group. Permissions of a group that cannot be given are left out.
void CopyHostFileRights(std::filesystem::path const& from, std::filesystem::path const& to);

// Puts the file in the place of the other one, which need not be there, in a single step that the disk holds.
void MoveHostFile(std::filesystem::path const& from, std::filesystem::path const& to);

// Whether the file exists and may not be written.
[[nodiscard]] bool IsWriteProtected(std::filesystem::path const& path);

} // namespace quorvex::platform::disk
