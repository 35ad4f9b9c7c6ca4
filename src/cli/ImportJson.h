// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/ImportReport.h"

#include <string>

namespace quorvex::cli {

// The result, a refused one too, as docs/formats/import-json.md describes it.
[[nodiscard]] std::string ImportJson(ImportResult const& result);

} // namespace quorvex::cli
