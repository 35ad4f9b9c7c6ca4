// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/PictureEncoder.h"

#include "text/basTexts.h"

#include <array>
#include <utility>

namespace quorvex::platform {

std::optional<PictureKind> PictureKindOf(std::string_view fileName) {
    constexpr std::array<std::pair<std::string_view, PictureKind>, 3> Kinds = {
        {{".PNG", PictureKind::Png}, {".SVG", PictureKind::Svg}, {".PDF", PictureKind::Pdf}}};
    std::string const name = text::UpperCase(fileName);
    for (auto const& [ending, kind] : Kinds) {
        if (name.ends_with(ending)) {
            return kind;
        }
    }
    return std::nullopt;
}

} // namespace quorvex::platform
