// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/RichText.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quorvex::richtext {

// The colours of a document by their numbers, which count from 0.
class ColourTable {
public:
    // One part of the current entry, cut to 0..255. An entry without any part is automatic.
    void SetRed(int value) { SetPart(value, 16); }

    void SetGreen(int value) { SetPart(value, 8); }

    void SetBlue(int value) { SetPart(value, 0); }

    void EndEntry();

    // The colour with this number; automatic when the table has none.
    [[nodiscard]] Colour ColourOf(std::optional<int> number) const;

private:
    void SetPart(int value, unsigned shift);

    std::vector<Colour> colours_;
    Colour entry_;
};

} // namespace quorvex::richtext
