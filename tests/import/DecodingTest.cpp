// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/Decoding.h"

#include <gtest/gtest.h>

#include <array>

namespace quorvex::tests {
namespace {

using imports::Encoding;

// A source that gives its text in small pieces.
class SlowSource final : public text::ByteSource {
public:
    SlowSource(std::string_view text, std::size_t piece) : rest_(text), piece_(piece) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        std::size_t const count = rest_.copy(buffer.data(), std::min(buffer.size(), piece_));
        rest_.remove_prefix(count);
        return count;
    }

private:
    std::string_view rest_;
    std::size_t piece_;
};

std::string Decoded(std::string_view bytes, Encoding encoding, std::size_t piece) {
    SlowSource source(bytes, piece);
    imports::DecodedSource decoded(source, encoding);
    return imports::ReadUpTo(decoded, 100'000);
}

constexpr std::string_view Wide("\xFF\xFE\xF6\x00=\x00\x3D\xD8\x00\xDE", 10); // mark, o umlaut, =, a face
constexpr std::string_view WideBig("\xFE\xFF\x00\xF6\x00=\xD8\x3D\xDE\x00", 10);

TEST(Decoding, TellsEncodingsByTheirMarks) {
    EXPECT_EQ(imports::FindEncoding("\xEF\xBB\xBF"
                                    "a"),
              Encoding::Utf8);
    EXPECT_EQ(imports::FindEncoding(Wide), Encoding::Utf16LittleEndian);
    EXPECT_EQ(imports::FindEncoding(WideBig), Encoding::Utf16BigEndian);
}

TEST(Decoding, TellsEncodingsWithoutMarks) {
    EXPECT_EQ(imports::FindEncoding(""), Encoding::Utf8);
    EXPECT_EQ(imports::FindEncoding("Date,Open"), Encoding::Utf8);
    EXPECT_EQ(imports::FindEncoding("Er\xC3\xB6"
                                    "ffnung"),
              Encoding::Utf8);
    EXPECT_EQ(imports::FindEncoding("Er\xF6"
                                    "ffnung"),
              Encoding::Windows1252);
    EXPECT_EQ(imports::FindEncoding("Er\xC3"), Encoding::Utf8) << "the character may go on";
    EXPECT_EQ(imports::FindEncoding(std::string_view("D\0a\0t\0e\0", 8)), Encoding::Utf16LittleEndian);
    EXPECT_EQ(imports::FindEncoding(std::string_view("\0D\0a\0t\0e", 8)), Encoding::Utf16BigEndian);
}

TEST(Decoding, GivesUtf8HoweverSmallThePieces) {
    for (std::size_t const piece : {1U, 2U, 3U, 1000U}) {
        EXPECT_EQ(Decoded("\xEF\xBB\xBF"
                          "1\xC2\xA0"
                          "2\xE2\x82\xAC",
                          Encoding::Utf8, piece),
                  "1\xC2\xA0"
                  "2\xE2\x82\xAC");
        EXPECT_EQ(Decoded(Wide, Encoding::Utf16LittleEndian, piece), "\xC3\xB6=\xF0\x9F\x98\x80");
        EXPECT_EQ(Decoded(WideBig, Encoding::Utf16BigEndian, piece), "\xC3\xB6=\xF0\x9F\x98\x80");
        EXPECT_EQ(Decoded("1\xA0"
                          "2\x80",
                          Encoding::Windows1252, piece),
                  "1\xC2\xA0"
                  "2\xE2\x82\xAC");
    }
}

TEST(Decoding, TakesStrayBytesForWindows1252) {
    for (std::size_t const piece : {1U, 2U, 1000U}) {
        EXPECT_EQ(Decoded("\xC3\xA4 \xE4 \xF0", Encoding::Utf8, piece), "\xC3\xA4 \xC3\xA4 \xC3\xB0");
    }
}

TEST(Decoding, ReplacesHalfAPair) {
    EXPECT_EQ(Decoded(std::string_view("\x3D\xD8"
                                       "a\0",
                                       4),
                      Encoding::Utf16LittleEndian, 1),
              "\xEF\xBF\xBD"
              "a");
    EXPECT_EQ(Decoded(std::string_view("\x3D\xD8", 2), Encoding::Utf16LittleEndian, 1), "\xEF\xBF\xBD");
}

} // namespace
} // namespace quorvex::tests
