// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/MemoryProfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace quorvex::platform::fake {
namespace {

using testing::ElementsAre;

TEST(MemoryProfile, KeepsAndReadsAsAFileWould) {
    MemoryProfile profile;
    std::array<ProfileEntry, 2> const first = {{{"b", " 'x' "}, {"a", std::string_view("1")}}};
    profile.WriteStrings("Globals", first);
    std::array<ProfileEntry, 1> const second = {{{"A", "2"}}};
    profile.WriteStrings("globals", second);
    EXPECT_THAT(profile.Entries, ElementsAre(MemoryProfile::Entry{"Globals", "b", " 'x' "},
                                             MemoryProfile::Entry{"Globals", "a", "2"}));
    EXPECT_EQ(profile.ReadString("GLOBALS", "B", ""), "x");
    EXPECT_EQ(profile.ReadString("Other", "b", "none"), "none");
    profile.Entries[0].Value = std::string(200, 'x');
    EXPECT_EQ(profile.ReadString("Globals", "b", "").size(), 127U);
}

TEST(MemoryProfile, ChangesNothingOnAFault) {
    MemoryProfile profile;
    std::array<ProfileEntry, 2> const entries = {{{"a", "1"}, {"b", "2\n"}}};
    EXPECT_THROW(profile.WriteStrings("Globals", entries), text::RunTimeError);
    profile.BreakWriting = text::Fault::DiskFull;
    EXPECT_THROW(profile.WriteStrings("Globals", std::span(entries).first(1)), text::RunTimeError);
    EXPECT_TRUE(profile.Entries.empty());
}

} // namespace
} // namespace quorvex::platform::fake
