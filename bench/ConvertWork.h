// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TemporaryQuoteFile.h"
#include "convert/basConvertSubs.h"
#include "platform/disk/DiskFiles.h"

#include <memory>
#include <string>

namespace quorvex::bench {

// Converting a vendor's file of 32,000 lines on the disk.
class ConvertWork {
public:
    // Converts the file once, so that everything is there and warm.
    ConvertWork();

    // As the program does it. Throws when that went wrong.
    void Convert();

    // The least that a program does with a file line by line: std::getline into a std::ofstream.
    void CopyLines() const;

private:
    TemporaryQuoteFile source_;
    convert::FileNames names_;
    std::unique_ptr<convert::SourceLayout> layout_;
    platform::disk::DiskFiles files_;
};

} // namespace quorvex::bench
