// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace quorvex::bench {

// 500 weekdays of made-up quotes as the text of a quote file, the same in every run and on every machine:
// "11/08/17, 445.25, 445.25, 436.75, 443.75, 54390, 157491" and CR LF.
[[nodiscard]] std::string GeneratedQuoteText();

} // namespace quorvex::bench
