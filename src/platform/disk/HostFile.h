// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The operating system's calls for one file. Every fault of the system comes out as a text::RunTimeError.
#pragma once

#include "platform/Files.h"
#include "text/basFields.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

namespace quorvex::platform::disk {

// The file opened for reading from its start. A pipe is waited for until it has a writer.
[[nodiscard]] std::unique_ptr<text::ByteSource> OpenHostFile(std::filesystem::path const& path);

// What the process was given to read and to write on, byte for byte.
[[nodiscard]] std::unique_ptr<text::ByteSource> OpenStandardInput();
[[nodiscard]] std::unique_ptr<ByteSink> OpenStandardOutput();

// The file, made empty or created, opened for writing.
[[nodiscard]] std::unique_ptr<ByteSink> CreateHostFile(std::filesystem::path const& path);

void RemoveHostFile(std::filesystem::path const& path);

// In bytes.
[[nodiscard]] std::uint64_t HostFileLength(std::filesystem::path const& path);

// Writes the content to a new file beside the target, under a name that is not in use, and waits until the
// disk holds it. Only its owner may read it when the target exists, whose permissions it gets on moving. A
// file that could not be written whole is gone again.
[[nodiscard]] std::filesystem::path WriteTemporaryHostFile(std::filesystem::path const& target,
                                                           std::string_view content);

// Puts the file in the place of the other one in a single step, with the other one's permissions when there
// is one.
void MoveHostFile(std::filesystem::path const& from, std::filesystem::path const& to);

// Whether the file exists and may not be written.
[[nodiscard]] bool IsWriteProtected(std::filesystem::path const& path);

} // namespace quorvex::platform::disk
