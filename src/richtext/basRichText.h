// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Reads rich-text files (RTF). docs/formats/rich-text.md says what of them is understood.
#pragma once

#include "richtext/RichText.h"

#include <string_view>

namespace quorvex::richtext {

// The document in the bytes of a file. Takes time and memory in proportion to their number. What is not
// understood is passed over; a file that ends too early, or is damaged in any other way, gives what was read.
// Raises "Invalid procedure call or argument" for bytes that do not start with "{\rtf".
[[nodiscard]] RichTextDocument ReadRichText(std::string_view bytes);

} // namespace quorvex::richtext
