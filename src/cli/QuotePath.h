// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <string_view>

namespace quorvex::cli {

// Makes the quote file of this path the one to be loaded: splits it into the data folder, with its separator,
// and the bare name.
void TakeQuotePath(std::string_view path, settings::Settings& settings, quotes::QuoteSeries& series);

} // namespace quorvex::cli
