// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/QuotePath.h"

#include "platform/disk/DiskFiles.h"

namespace quorvex::cli {

void TakeQuotePath(std::string_view path, prefs::Settings& settings, quotes::QuoteSeries& series) {
    auto const folderEnd = path.find_last_of(platform::disk::FolderEnds) + 1; // 0 when there is none
    settings.DataPath = path.substr(0, folderEnd);
    series.QuoteFileName = path.substr(folderEnd);
}

} // namespace quorvex::cli
