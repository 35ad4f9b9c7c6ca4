// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/QuotePath.h"

#include "platform/basFiles.h"

namespace quorvex::cli {

void TakeQuotePath(std::string_view path, settings::Settings& settings, quotes::QuoteSeries& series) {
    std::string_view const name = platform::BareName(path);
    settings.DataPath = path.substr(0, path.size() - name.size());
    series.QuoteFileName = name;
}

} // namespace quorvex::cli
