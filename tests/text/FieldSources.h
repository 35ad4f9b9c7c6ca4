// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/basFields.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::text {

using FieldTexts = std::vector<std::string>;

// Gives the text in pieces of so many bytes, as a slow device does.
class PieceSource final : public ByteSource {
public:
    PieceSource(std::string_view text, std::size_t pieceSize) : source_(text), pieceSize_(pieceSize) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        return source_.Read(buffer.first(std::min(buffer.size(), pieceSize_)));
    }

private:
    TextSource source_;
    std::size_t pieceSize_;
};

inline FieldTexts AllFields(ByteSource& source) {
    FieldReader reader(source);
    FieldTexts fields;
    while (!reader.AtEnd()) {
        fields.emplace_back(reader.Take());
    }
    return fields;
}

inline FieldTexts FieldsOf(std::string_view text) {
    TextSource source(text);
    return AllFields(source);
}

inline FieldTexts FieldsInPieces(std::string_view text, std::size_t pieceSize) {
    PieceSource source(text, pieceSize);
    return AllFields(source);
}

} // namespace quorvex::text
