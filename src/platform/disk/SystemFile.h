// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The calls for an open file that the kinds of systems name differently. Every fault of the system comes out
// as a text::RunTimeError.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace quorvex::platform::disk {

// A descriptor, or on Windows a handle.
using SystemFile = std::intptr_t;

inline constexpr SystemFile NoSystemFile = -1;

enum class Opening {
    Read,
    Create,     // a file that is not there yet
    Append,     // to a file that is there, while nobody else writes it where the system sees to that
    AppendHeld, // the same for who holds it, which whoever else opens it so can ask for
    Empty,      // or create
};

// The opened file, which is no folder. NoSystemFile when a new file is asked for and its name is in use.
[[nodiscard]] SystemFile OpenSystemFile(std::filesystem::path const& path, Opening opening,
                                        bool onlyForOwner);

// What the process was given to read (0) and to write on (1), to be closed by itself.
[[nodiscard]] SystemFile DuplicateStandardFile(int number);

// How many bytes were read; 0 at the end. Nothing when Ctrl-C broke off the wait for what is typed, which
// another thread is about to note.
[[nodiscard]] std::optional<std::size_t> ReadSystemFile(SystemFile file, std::span<char> buffer);

// Waits for bytes to read, or for the end of them, for a tenth of a second at most. Returns whether reading
// need not wait; always where the system cannot tell.
[[nodiscard]] bool AwaitSystemFile(SystemFile file);

// How many of the bytes were written.
[[nodiscard]] std::size_t WriteSystemFile(SystemFile file, std::string_view bytes);

// Holds the file as long as it is open. Returns false when somebody else holds it; where a file cannot be
// held it counts as held.
[[nodiscard]] bool HoldSystemFile(SystemFile file);

// Holds the folder, of which an empty path names the current one, until it is released or the program ends.
// Nothing when somebody else holds it, and NoSystemFile where a folder cannot be held.
[[nodiscard]] std::optional<SystemFile> HoldSystemFolder(std::filesystem::path const& folder);

// By the thread that holds it.
void ReleaseSystemFolder(SystemFile folder);

// Wait for the disk. Of a folder the names of its files are meant; where it cannot be flushed, they stand
// nevertheless until the power fails.
void FlushSystemFile(SystemFile file);
void FlushSystemFolder(std::filesystem::path const& folder);

// The file is closed after a fault, too.
void CloseSystemFile(SystemFile file);

} // namespace quorvex::platform::disk
