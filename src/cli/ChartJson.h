// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/RecordingCanvas.h"

#include <array>
#include <string>

namespace quorvex::cli {

// The drawing operations of Pic1 to Pic4 as one JSON object and a line end. docs/formats/chart-json.md
// describes the notation.
[[nodiscard]] std::string ChartJson(std::array<platform::RecordingCanvas const*, 4> const& boxes);

} // namespace quorvex::cli
