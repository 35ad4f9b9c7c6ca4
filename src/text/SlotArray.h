// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/RunTimeError.h"

#include <array>
#include <cstddef>

namespace quorvex::text {

// An array of the slots 0..LastSlot. Days and cycles are counted from 1, so slot 0 is there and stays unused.
// An index outside the slots raises "Subscript out of range".
template <class Value, std::ptrdiff_t LastSlot>
class SlotArray {
    static_assert(LastSlot >= 0);

public:
    static constexpr std::ptrdiff_t Last = LastSlot;

    [[nodiscard]] constexpr Value& operator[](std::ptrdiff_t slot) { return slots_[Checked(slot)]; }

    [[nodiscard]] constexpr Value const& operator[](std::ptrdiff_t slot) const {
        return slots_[Checked(slot)];
    }

    constexpr void Fill(Value const& value) { slots_.fill(value); }

private:
    static constexpr std::size_t Checked(std::ptrdiff_t slot) {
        if (slot < 0 || slot > LastSlot) {
            throw RunTimeError(Fault::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(slot);
    }

    std::array<Value, static_cast<std::size_t>(LastSlot) + 1> slots_{};
};

} // namespace quorvex::text
