// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "settings/ChartTypes.h"

#include <algorithm>

namespace quorvex::settings {

ChartTypeRow const& ChartTypeOf(std::string_view chartType) {
    auto const* const row = std::ranges::find(ChartTypeTable, chartType, &ChartTypeRow::Name);
    return row == ChartTypeTable.end() ? ChartTypeTable.back() : *row;
}

} // namespace quorvex::settings
