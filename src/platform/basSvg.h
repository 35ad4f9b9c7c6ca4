// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Drawings as SVG: the same bytes on every machine, whatever fonts and libraries it has.
#pragma once

#include "platform/PictureEncoder.h"

#include <string>

namespace quorvex::platform {

// In logical pixels, 96 to the inch, to the thousandth. Every drawing is cut off at its box, which gets a
// thin border. Bytes that are no UTF-8, and characters that XML cannot hold, become U+FFFD. Raises "Invalid
// procedure call or argument" for a sheet without an extent.
[[nodiscard]] std::string SvgOf(PictureSheet const& sheet);

// The pictures of a program that has nothing else to draw with.
class SvgEncoder final : public PictureEncoder {
public:
    [[nodiscard]] bool Makes(PictureKind kind) const override { return kind == PictureKind::Svg; }

    // Raises "Invalid procedure call or argument" for another kind, too.
    [[nodiscard]] std::string Encode(PictureSheet const& sheet, PictureKind kind) override;
};

} // namespace quorvex::platform
