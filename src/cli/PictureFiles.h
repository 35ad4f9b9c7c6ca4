// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What options that name a picture say.
#pragma once

#include "platform/PictureEncoder.h"

#include <string>

namespace quorvex::cli {

// Behind the name of a file.
inline constexpr char const* NeedsQt = " is a picture that this program, built without Qt, cannot draw";

// The endings that the help shows.
[[nodiscard]] inline std::string FileKinds(platform::PictureEncoder const& encoder) {
    return encoder.Makes(platform::PictureKind::Png) ? "FILE.png|.svg|.pdf" : "FILE.svg";
}

} // namespace quorvex::cli
