// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basSourceText.h"

#include "richtext/basCodePages.h"
#include "text/basUtf8.h"

#include <cstddef>

namespace quorvex::convert {

std::string ReadableText(std::string_view bytes) {
    constexpr int Western = 1252;
    static richtext::CodePage const page = richtext::FindCodePage(Western);
    std::string readable;
    while (!bytes.empty()) {
        std::size_t length = text::LengthOfCharacter(bytes);
        if (length > 0) {
            readable += bytes.substr(0, length);
        } else {
            richtext::AppendUtf8(readable,
                                 richtext::DecodeByte(page, static_cast<unsigned char>(bytes.front())));
            length = 1;
        }
        bytes.remove_prefix(length);
    }
    return readable;
}

} // namespace quorvex::convert
