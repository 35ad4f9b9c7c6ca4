// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basUtf8.h"

#include <algorithm>
#include <array>

namespace quorvex::text {

namespace {

// First bytes of characters of UTF-8, how many bytes follow, and between which the second one lies: what is
// outside spells no character, or one in more bytes than it needs.
struct LeadRow {
    unsigned char First;
    unsigned char Last;
    std::size_t Following;
    unsigned char SecondFrom;
    unsigned char SecondTo;
};

constexpr std::array<LeadRow, 9> LeadTable = {{
    {0x00, 0x7F, 0, 0x00, 0x00},
    {0xC2, 0xDF, 1, 0x80, 0xBF},
    {0xE0, 0xE0, 2, 0xA0, 0xBF},
    {0xE1, 0xEC, 2, 0x80, 0xBF},
    {0xED, 0xED, 2, 0x80, 0x9F},
    {0xEE, 0xEF, 2, 0x80, 0xBF},
    {0xF0, 0xF0, 3, 0x90, 0xBF},
    {0xF1, 0xF3, 3, 0x80, 0xBF},
    {0xF4, 0xF4, 3, 0x80, 0x8F},
}};

bool LiesBetween(char byte, unsigned char from, unsigned char to) {
    auto const value = static_cast<unsigned char>(byte);
    return value >= from && value <= to;
}

} // namespace

std::size_t LengthOfCharacter(std::string_view text) {
    auto const lead = std::ranges::find_if(
        LeadTable, [&](LeadRow const& row) { return LiesBetween(text.front(), row.First, row.Last); });
    if (lead == LeadTable.end() || text.size() <= lead->Following) {
        return 0;
    }
    std::string_view const following = text.substr(1, lead->Following);
    bool const isWhole =
        following.empty() ||
        (LiesBetween(following.front(), lead->SecondFrom, lead->SecondTo) &&
         std::ranges::all_of(following.substr(1), [](char byte) { return LiesBetween(byte, 0x80, 0xBF); }));
    return isWhole ? following.size() + 1 : 0;
}

} // namespace quorvex::text
