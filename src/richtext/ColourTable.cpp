// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/ColourTable.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quorvex::richtext {

void ColourTable::EndEntry() {
    colours_.push_back(std::exchange(entry_, std::nullopt));
}

Colour ColourTable::ColourOf(std::optional<int> number) const {
    auto const index = static_cast<std::size_t>(std::max(number.value_or(0), 0));
    return index < colours_.size() ? colours_[index] : std::nullopt;
}

void ColourTable::SetPart(int value, unsigned shift) {
    auto const part = static_cast<std::uint32_t>(std::clamp(value, 0, 0xFF));
    entry_ = (entry_.value_or(0) & ~(0xFFU << shift)) | (part << shift);
}

} // namespace quorvex::richtext
