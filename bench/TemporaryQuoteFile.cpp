// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "TemporaryQuoteFile.h"

#include "platform/disk/DiskFiles.h"
#include "text/basFolders.h"

#include <atomic>
#include <random>
#include <string>
#include <system_error>

namespace quorvex::bench {

namespace {

std::string NewFolderName() {
    static std::atomic<unsigned> made = 0;
    return "quorvex-bench-" + std::to_string(std::random_device()()) + '-' + std::to_string(++made);
}

} // namespace

TemporaryQuoteFile::TemporaryQuoteFile(std::string_view content)
    : folder_(std::filesystem::temp_directory_path() / NewFolderName()) {
    std::filesystem::create_directory(folder_);
    platform::disk::DiskFiles().Replace(Folder() + std::string(Name), content);
}

TemporaryQuoteFile::~TemporaryQuoteFile() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string TemporaryQuoteFile::Folder() const {
    auto const spelled = folder_.u8string();
    return text::EndWithSeparator(std::string(spelled.begin(), spelled.end()));
}

} // namespace quorvex::bench
