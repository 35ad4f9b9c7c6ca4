// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The file system as the program uses it. Paths are UTF-8; on every system a backslash separates folders, on
// systems with "/" that does as well.
#pragma once

#include "text/basFields.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::platform {

// Takes the bytes of a file that is being written. Every operation raises the fault of the device.
class ByteSink {
public:
    ByteSink() = default;
    ByteSink(ByteSink const&) = delete;
    ByteSink& operator=(ByteSink const&) = delete;
    // Closes the file when that was not done; a fault then stays unknown.
    virtual ~ByteSink() = default;

    virtual void Write(std::string_view bytes) = 0;

    // Closes the file, so that what the system reports only now is not lost. Nothing can be written behind
    // it, and the file is closed even after a fault.
    virtual void Close() = 0;
};

// What stands behind the name of a file that keeps what another one held.
inline constexpr std::string_view BackupMark = "~";

// Makes the next content of a file from what it holds, which is nothing when the file is missing. Nothing as
// the result leaves it as it is.
using Revision = std::function<std::optional<std::string>(std::optional<std::string> const& content)>;

// The faults are those of text::RunTimeError: "Bad file name or number" for a name that no file can have,
// "File not found", "Path not found" when its folder is missing, "Permission denied" (a folder, a pipe or a
// device in place of a file included), "Disk full".
class Files {
public:
    Files() = default;
    Files(Files const&) = delete;
    Files& operator=(Files const&) = delete;
    virtual ~Files() = default;

    // Opens the file for reading; it is closed when the source goes.
    [[nodiscard]] virtual std::unique_ptr<text::ByteSource> OpenForInput(std::string const& path) const = 0;

    // Gives the file these bytes as its whole content, creating it when missing. What it held before stays as
    // Keep tells, unless that is the same. On a fault, and also when the program or the machine stops
    // half-way, the file is as it was before. Of several programs that replace files in one folder one does
    // so after the other, as far as the system can see to that: each finds and keeps what the one before has
    // written. "Permission denied" when another one does not come to an end.
    virtual void Replace(std::string const& path, std::string_view content) = 0;

    // The same with what the revision makes of the file. Nobody else replaces it in between.
    virtual void Revise(std::string const& path, Revision const& revise) = 0;

    // The same for what can be made again, such as a picture: what the file held before is not kept.
    virtual void Overwrite(std::string const& path, std::string_view content) = 0;

    // Puts the bytes behind what the file holds, which must be there, and waits until the disk has them. A
    // fault may leave the first of them.
    virtual void Append(std::string const& path, std::string_view bytes) = 0;

    // Puts a copy of the file, with its rights, under its name with BackupMark behind it, in place of an
    // older one. A link is followed: the copy lies beside the file that it names. A file that is missing or
    // empty needs none. On a fault, and also when the program stops half-way, the older copy is whole.
    virtual void Keep(std::string const& path) = 0;

    // Makes the file empty at once, creating it when missing, and opens it for writing; what was in it is
    // lost. A file that a link names is the one that is written. A fault leaves everything as it was. Once it
    // is closed, the disk has it.
    [[nodiscard]] virtual std::unique_ptr<ByteSink> OpenForOutput(std::string const& path) = 0;

    // Deletes the file. Of a link, the file that it names goes and the link stays.
    virtual void Remove(std::string const& path) = 0;

    // The length of the file in bytes.
    [[nodiscard]] virtual std::uint64_t Length(std::string const& path) const = 0;

    // Whether both names lead to one file, by whatever folder, link or spelling: where names that differ in
    // case are one, these are. False when one of them is not there. A bare name lies in the current folder.
    [[nodiscard]] virtual bool AreSame(std::string const& one, std::string const& other) const = 0;

    // Makes the folder the current one, in which bare names lie. Raises "Path not found" when it cannot be
    // entered.
    virtual void EnterFolder(std::string const& folder) = 0;

    // The names of the files, not folders, in the folder that fit the pattern, in the order of the file
    // system. The folder ends with a separator. None when the folder cannot be read.
    [[nodiscard]] virtual std::vector<std::string> List(std::string const& folder,
                                                        std::string_view pattern) const = 0;
};

} // namespace quorvex::platform
