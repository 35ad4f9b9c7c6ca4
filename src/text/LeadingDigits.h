// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace quorvex::text {

// The digits that eight characters begin with.
struct LeadingDigits {
    std::uint64_t Value = 0;
    std::size_t Count = 0;
};

// The first one lowest, whatever the order of the processor. Compilers make one load of it, unless it is a
// loop.
template <std::size_t... At>
[[nodiscard]] inline std::uint64_t WordOf(char const* characters, std::index_sequence<At...>) {
    return ((std::uint64_t{static_cast<unsigned char>(characters[At])} << (8 * At)) | ...);
}

// All eight are looked at in one word, so that neither the number of digits nor the digits themselves make
// the processor guess.
[[nodiscard]] inline LeadingDigits ReadLeadingDigits(char const* eight) {
    constexpr std::size_t Characters = 8;
    constexpr unsigned Bits = 8; // of a character
    constexpr std::uint64_t Zeros = 0x3030303030303030;
    std::uint64_t digits = WordOf(eight, std::make_index_sequence<Characters>()) ^ Zeros;
    constexpr std::uint64_t HighestBits = 0x8080808080808080;
    constexpr std::uint64_t FromTenToHighest = 0x7676767676767676;
    // Those above 9 are none. What is carried disturbs only what stands behind the first of them.
    std::uint64_t const others = (digits | (digits + FromTenToHighest)) & HighestBits;
    std::size_t const count = static_cast<std::size_t>(std::countr_zero(others)) / Bits;
    if (count == 0) {
        return {};
    }
    // With zeros in front there are eight digits, which are joined to pairs, to fours and to the whole.
    digits <<= Bits * (Characters - count);
    digits = digits * 10 + (digits >> Bits);
    constexpr std::uint64_t Pairs = 0x000000FF000000FF;
    constexpr std::uint64_t FirstFactors = 100 + (std::uint64_t{1'000'000} << 32);
    constexpr std::uint64_t SecondFactors = 1 + (std::uint64_t{10'000} << 32);
    std::uint64_t const value =
        ((digits & Pairs) * FirstFactors + ((digits >> (2 * Bits)) & Pairs) * SecondFactors) >> 32;
    return {value & 0xFFFFFFFF, count};
}

} // namespace quorvex::text
