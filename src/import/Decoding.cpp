// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/Decoding.h"

#include "convert/basSourceText.h"
#include "richtext/basCodePages.h"
#include "text/Characters.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace quorvex::imports {

namespace {

constexpr std::size_t BlockSize = 65'536;
constexpr std::string_view LittleEndianMark = "\xFF\xFE";
constexpr std::string_view BigEndianMark = "\xFE\xFF";
constexpr int WesternPage = 1252;

// Eight bytes at a time, as all of a long file goes through here.
bool IsAscii(std::string_view text) {
    constexpr std::uint64_t HighBits = 0x8080808080808080U;
    std::uint64_t seen = 0;
    while (text.size() >= sizeof seen) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data(), sizeof word);
        seen |= word;
        text.remove_prefix(sizeof word);
    }
    return (seen & HighBits) == 0 &&
           std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// How many bytes at the end may be the start of a character whose rest has not come yet.
std::size_t LengthOfOpenEnd(std::string_view text) {
    constexpr std::size_t Longest = 4;
    for (std::size_t length = 1; length < Longest && length <= text.size(); ++length) {
        auto const byte = static_cast<unsigned char>(text[text.size() - length]);
        if (byte < 0x80) {
            return 0;
        }
        if (byte >= 0xC0) {
            std::size_t const whole = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
            return length < whole ? length : 0;
        }
    }
    return 0;
}

// Which of the two bytes of UTF-16 is zero in letters of ASCII tells their order.
std::optional<Encoding> FindUtf16(std::string_view start) {
    std::size_t evenZeros = 0;
    std::size_t oddZeros = 0;
    for (std::size_t at = 0; at < start.size(); ++at) {
        if (start[at] == '\0') {
            ++(at % 2 == 0 ? evenZeros : oddZeros);
        }
    }
    std::size_t const most = start.size() / 4; // half of the pairs
    if (oddZeros > most && evenZeros == 0) {
        return Encoding::Utf16LittleEndian;
    }
    return evenZeros > most && oddZeros == 0 ? std::optional(Encoding::Utf16BigEndian) : std::nullopt;
}

} // namespace

Encoding FindEncoding(std::string_view start) {
    if (start.starts_with(text::ByteOrderMark)) {
        return Encoding::Utf8;
    }
    if (start.starts_with(LittleEndianMark)) {
        return Encoding::Utf16LittleEndian;
    }
    if (start.starts_with(BigEndianMark)) {
        return Encoding::Utf16BigEndian;
    }
    if (auto const wide = FindUtf16(start)) {
        return *wide;
    }
    std::string_view const whole = start.substr(0, start.size() - LengthOfOpenEnd(start));
    return convert::ReadableText(whole) == whole ? Encoding::Utf8 : Encoding::Windows1252;
}

StartedSource::StartedSource(std::string start, text::ByteSource& rest)
    : start_(std::move(start)),
      rest_(rest) {}

std::size_t StartedSource::Read(std::span<char> buffer) {
    if (at_ == start_.size()) {
        return rest_.Read(buffer);
    }
    std::size_t const count = start_.copy(buffer.data(), buffer.size(), at_);
    at_ += count;
    return count;
}

DecodedSource::DecodedSource(text::ByteSource& bytes, Encoding encoding)
    : bytes_(bytes),
      encoding_(encoding) {}

std::size_t DecodedSource::Read(std::span<char> buffer) {
    while (at_ == decoded_.size()) {
        if (!Refill()) {
            return 0;
        }
    }
    std::size_t const count = decoded_.copy(buffer.data(), buffer.size(), at_);
    at_ += count;
    return count;
}

// Decodes one more block. Returns whether there was anything left.
bool DecodedSource::Refill() {
    decoded_.clear();
    at_ = 0;
    if (hasEnded_) {
        return false;
    }
    std::size_t const kept = raw_.size();
    raw_.resize(kept + BlockSize);
    std::size_t const count = bytes_.Read(std::span(raw_).subspan(kept));
    raw_.resize(kept + count);
    hasEnded_ = count == 0;
    Decode(hasEnded_);
    if (isAtStart_ && !decoded_.empty()) {
        isAtStart_ = false;
        if (decoded_.starts_with(text::ByteOrderMark)) {
            at_ = text::ByteOrderMark.size();
        }
    }
    return true;
}

void DecodedSource::Decode(bool isEnd) {
    switch (encoding_) {
    case Encoding::Utf8:
        return DecodeUtf8(isEnd);
    case Encoding::Utf16LittleEndian:
    case Encoding::Utf16BigEndian:
        return DecodeUtf16(isEnd);
    case Encoding::Windows1252:
        return DecodeWestern();
    }
}

void DecodedSource::DecodeUtf8(bool isEnd) {
    if (IsAscii(raw_)) {
        decoded_.swap(raw_);
        raw_.clear();
        return;
    }
    std::size_t const whole = raw_.size() - (isEnd ? 0 : LengthOfOpenEnd(raw_));
    decoded_ = convert::ReadableText(std::string_view(raw_).substr(0, whole));
    raw_.erase(0, whole);
}

void DecodedSource::DecodeUtf16(bool isEnd) {
    std::size_t const low = encoding_ == Encoding::Utf16LittleEndian ? 0 : 1;
    auto const unitAt = [&](std::size_t at) {
        return static_cast<char32_t>(static_cast<unsigned char>(raw_[at + low])) |
               static_cast<char32_t>(static_cast<unsigned char>(raw_[at + 1 - low])) << 8U;
    };
    auto const isHalf = [](char32_t unit, char32_t first) { return unit >= first && unit < first + 0x400; };
    std::size_t at = 0;
    while (at + 1 < raw_.size()) {
        char32_t character = unitAt(at);
        if (isHalf(character, 0xD800)) {
            bool const isThere = at + 3 < raw_.size();
            if (!isThere && !isEnd) {
                break;
            }
            if (isThere && isHalf(unitAt(at + 2), 0xDC00)) {
                character = 0x10000 + ((character - 0xD800) << 10U) + (unitAt(at + 2) - 0xDC00);
                at += 2;
            }
        }
        richtext::AppendUtf8(decoded_, character);
        at += 2;
    }
    raw_.erase(0, isEnd ? raw_.size() : at);
}

void DecodedSource::DecodeWestern() {
    static richtext::CodePage const page = richtext::FindCodePage(WesternPage);
    for (char const byte : raw_) {
        auto const value = static_cast<unsigned char>(byte);
        if (value < 0x80) {
            decoded_ += byte;
        } else {
            richtext::AppendUtf8(decoded_, richtext::DecodeByte(page, value));
        }
    }
    raw_.clear();
}

std::string ReadUpTo(text::ByteSource& source, std::size_t count) {
    std::string bytes(count, '\0');
    std::size_t length = 0;
    while (length < count) {
        std::size_t const got = source.Read(std::span(bytes).subspan(length));
        if (got == 0) {
            break;
        }
        length += got;
    }
    bytes.resize(length);
    return bytes;
}

} // namespace quorvex::imports
