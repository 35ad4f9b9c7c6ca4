// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PictureEncoder.h"

namespace quorvex::platform::pictures {

// Image files of every kind, those of pixels and pages by Qt. Works without a display: where no application
// runs yet, it starts one that has none.
class QtPictureEncoder final : public PictureEncoder {
public:
    [[nodiscard]] bool Makes(PictureKind /*kind*/) const override { return true; }

    // PNG at 96 pixels to the inch; SVG and PDF in the size of the sheet.
    [[nodiscard]] std::string Encode(PictureSheet const& sheet, PictureKind kind) override;
};

} // namespace quorvex::platform::pictures
