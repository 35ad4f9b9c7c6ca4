// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Drawings as image files.
#pragma once

#include "platform/RecordingCanvas.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quorvex::platform {

enum class PictureKind { Png, Svg, Pdf };

// A drawing and where its top left corner stands on the sheet, in twips.
struct PlacedDrawing {
    double Left = 0;
    double Top = 0;
    RecordingCanvas const* Drawing = nullptr;
};

// A white sheet of this size in twips.
struct PictureSheet {
    double Width = 0;
    double Height = 0;
    std::span<PlacedDrawing const> Drawings;
};

// The kind that a file's name asks for by its end, in either case.
[[nodiscard]] std::optional<PictureKind> PictureKindOf(std::string_view fileName);

class PictureEncoder {
public:
    PictureEncoder() = default;
    PictureEncoder(PictureEncoder const&) = delete;
    PictureEncoder& operator=(PictureEncoder const&) = delete;
    virtual ~PictureEncoder() = default;

    // Whether it can make files of this kind.
    [[nodiscard]] virtual bool Makes(PictureKind kind) const = 0;

    // The bytes of the image file. Every drawing gets a thin border. Raises "Invalid procedure call or
    // argument" for a sheet without an extent and when the picture cannot be made, as of one too large.
    [[nodiscard]] virtual std::string Encode(PictureSheet const& sheet, PictureKind kind) = 0;
};

} // namespace quorvex::platform
