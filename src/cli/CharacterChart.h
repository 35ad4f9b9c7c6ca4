// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Program.h"

#include <string>

namespace quorvex::cli {

// A chart of the closes with the composite over them, drawn in ASCII characters for a terminal of this width.
// The composite is put on the price axis as the residual chart does, 25 forecast days included. When there
// are more days than columns, a column shows the last day that falls into it. Empty for quotes that cannot be
// shown.
[[nodiscard]] std::string CharacterChart(app::Program const& program, int width);

} // namespace quorvex::cli
