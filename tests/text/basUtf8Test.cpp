// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basUtf8.h"

#include <gtest/gtest.h>

#include <string_view>

namespace quorvex::text {
namespace {

using namespace std::string_view_literals;

TEST(LengthOfCharacter, CountsTheBytesOfTheFirstCharacter) {
    EXPECT_EQ(LengthOfCharacter("ab"), 1U);
    EXPECT_EQ(LengthOfCharacter("\0a"sv), 1U);
    EXPECT_EQ(LengthOfCharacter("\xC3\xA9z"), 2U);
    EXPECT_EQ(LengthOfCharacter("\xE2\x82\xAC"), 3U);
    EXPECT_EQ(LengthOfCharacter("\xF0\x9F\x8C\xBE wheat"), 4U);
}

TEST(LengthOfCharacter, IsNothingForWhatIsNone) {
    for (auto const bytes : {"\xE9t"sv, "\x80"sv, "\xE2\x82"sv, "\xC0\xAF"sv, "\xE0\x9F\xBF"sv,
                             "\xED\xA0\x80"sv, "\xF4\x90\x80\x80"sv, "\xF5\xBF\xBF\xBF"sv, "\xFF"sv}) {
        EXPECT_EQ(LengthOfCharacter(bytes), 0U) << testing::PrintToString(bytes);
    }
}

} // namespace
} // namespace quorvex::text
