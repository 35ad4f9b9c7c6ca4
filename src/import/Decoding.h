// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The bytes of a table as UTF-8.
#pragma once

#include "import/Choices.h"
#include "text/basFields.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quorvex::imports {

// The encoding of a text that begins with these bytes: told by a mark at the start, by the zero bytes of
// UTF-16, else UTF-8, or Windows-1252 when they are no UTF-8.
[[nodiscard]] Encoding FindEncoding(std::string_view start);

// A text from its first bytes, which were read already, to its end.
class StartedSource final : public text::ByteSource {
public:
    // The rest must outlive the source.
    StartedSource(std::string start, text::ByteSource& rest);

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override;

private:
    std::string start_;
    std::size_t at_ = 0;
    text::ByteSource& rest_;
};

// Gives the text of the bytes as UTF-8 without a mark at the start. Bytes that are no UTF-8 in a text of it
// are taken for Windows-1252, in which old programs write; half a pair of UTF-16 is replaced.
class DecodedSource final : public text::ByteSource {
public:
    // The bytes must outlive the source.
    DecodedSource(text::ByteSource& bytes, Encoding encoding);

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override;

private:
    [[nodiscard]] bool Refill();
    void Decode(bool isEnd);
    void DecodeUtf8(bool isEnd);
    void DecodeUtf16(bool isEnd);
    void DecodeWestern();

    text::ByteSource& bytes_;
    Encoding encoding_;
    std::string raw_;     // not decoded yet
    std::string decoded_; // of which at_ bytes were given
    std::size_t at_ = 0;
    bool isAtStart_ = true;
    bool hasEnded_ = false;
};

// Reads so many bytes, fewer only when the source ends.
[[nodiscard]] std::string ReadUpTo(text::ByteSource& source, std::size_t count);

} // namespace quorvex::imports
