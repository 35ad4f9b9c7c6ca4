// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TemporaryQuoteFile.h"
#include "platform/disk/DiskFiles.h"

#include <array>
#include <cstddef>
#include <string>

namespace quorvex::bench {

// Reading a vendor's long table on the disk, and the update of every evening.
class ImportWork {
public:
    // Does both once, so that everything is there and warm. Throws when that went wrong.
    ImportWork();

    // All rows of the long table as days. Throws when that went wrong.
    void Import();

    // The least that a program does with a file line by line.
    void CountLines() const;

    // Puts five days into a quote file of 500 on the disk, as the companion does it. Throws when that went
    // wrong.
    void Update();

private:
    [[nodiscard]] static std::string PathOf(TemporaryQuoteFile const& file) {
        return file.Folder() + std::string(TemporaryQuoteFile::Name);
    }

    TemporaryQuoteFile table_;
    TemporaryQuoteFile quotes_;
    std::array<std::string, 2> tables_; // of two updates, each of which changes what the other one did
    std::size_t turn_ = 0;
    platform::disk::DiskFiles files_;
};

} // namespace quorvex::bench
