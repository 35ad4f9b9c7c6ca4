// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Reads the quote files of a folder on one thread and does nothing with them: the least that any analysis of
// them costs.

#include "SilentDialogs.h"
#include "batch/QuoteFileNames.h"
#include "platform/basFiles.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/DiskFolders.h"
#include "quotes/basDisk.h"

#include <iostream>
#include <memory>

namespace quorvex::bench {

namespace {

int ReadFolder(char const* folder) {
    platform::disk::DiskFolders const folders;
    platform::disk::DiskFiles const files;
    SilentDialogs dialogs;
    settings::Settings settings;
    settings.CurrencyFormat = settings::SettingRowOf(&settings::Settings::CurrencyFormat).Default;
    auto const series = std::make_unique<quotes::QuoteSeries>();
    batch::QuoteFileNames names(batch::PathsOf({folder}), folders, {});
    int count = 0;
    while (auto const file = names.Next()) {
        auto const name = platform::BareName(file->Path);
        settings.DataPath = file->Path.substr(0, file->Path.size() - name.size());
        series->QuoteFileName = name;
        count += quotes::LoadQuoteFile(*series, settings, files, dialogs) > 0 ? 1 : 0;
    }
    return count;
}

} // namespace

} // namespace quorvex::bench

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: quorvex-bench-read FOLDER\n";
        return 2;
    }
    std::cout << quorvex::bench::ReadFolder(argv[1]) << " files read\n";
    return 0;
}
