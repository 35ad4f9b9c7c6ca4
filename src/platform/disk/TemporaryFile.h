// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/basFields.h"

#include <filesystem>

namespace quorvex::platform::disk {

// A new file of its own name, ".quorvex-*.tmp", that is gone with the object unless it was moved to where it
// belongs. All routines raise the faults of Files.
class TemporaryFile {
public:
    // Writes the bytes beside the target and waits until the disk holds them. The file gets the rights of the
    // one named last, when there is one, and until then nobody but the user may read it.
    TemporaryFile(std::filesystem::path const& target, text::ByteSource& bytes,
                  std::filesystem::path const& rightsOf);

    TemporaryFile(TemporaryFile const&) = delete;
    TemporaryFile& operator=(TemporaryFile const&) = delete;
    ~TemporaryFile();

    [[nodiscard]] std::filesystem::path const& Path() const { return path_; }

    // Puts it in the place of the target in a single step. Nothing has changed after a fault.
    void MoveTo(std::filesystem::path const& target);

private:
    TemporaryFile() = default;

    std::filesystem::path path_; // empty when it was moved
};

} // namespace quorvex::platform::disk
