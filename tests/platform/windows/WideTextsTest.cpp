// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WideTexts.h"

#include <gtest/gtest.h>

namespace quorvex::platform::windows {
namespace {

TEST(WideTexts, ComeBackAsTheyWere) {
    for (std::string const text :
         {"", "C:\\Quotes", "W\xC3\xA4hrung \xE2\x82\xAC", "\xE5\xB0\x8F\xE9\xBA\xA6 \xF0\x9F\x8C\xBE"}) {
        EXPECT_TRUE(IsUtf8(text));
        EXPECT_EQ(Narrowed(Widened(text)), text);
    }
    EXPECT_EQ(Widened("\xE2\x82\xAC"), L"\x20AC");
}

TEST(WideTexts, OtherBytesAreNotTakenForUtf8) {
    EXPECT_FALSE(IsUtf8("W\xE4hrung"));
    EXPECT_FALSE(IsUtf8("\xC3"));
    EXPECT_EQ(WidenedFromCodePage("abc").substr(0, 3), L"abc");
}

} // namespace
} // namespace quorvex::platform::windows
