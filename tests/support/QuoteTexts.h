// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Quote files and series made for tests.
#pragma once

#include "quotes/QuoteSeries.h"

#include <memory>
#include <string>
#include <string_view>

namespace quorvex::tests {

// So many lines of a quote file, weekdays from 01/01/01 on, in the written form; day d closes at 100 + d.
[[nodiscard]] std::string QuoteLines(int count);

// The series that the text gives in this currency format, as a loaded file of this name would; no minimum of
// days.
[[nodiscard]] std::unique_ptr<quotes::QuoteSeries> SeriesOf(std::string_view text,
                                                            std::string_view currencyFormat = "####0.00",
                                                            std::string_view name = "test.txt");

// The same of a quote file among the reference vectors.
[[nodiscard]] std::unique_ptr<quotes::QuoteSeries> GoldenSeries(std::string const& file,
                                                                std::string_view currencyFormat);

} // namespace quorvex::tests
