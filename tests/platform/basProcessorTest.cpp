// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basProcessor.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>

#if defined(__x86_64__) && defined(__GNUC__) && !defined(_WIN32)
#include <cpuid.h>
#define QUORVEX_TELLS_WIDE_REGISTERS // NOLINT(*-macro-usage)
#endif

namespace quorvex::platform {

#ifdef QUORVEX_TELLS_WIDE_REGISTERS

namespace {

// Whether the processor tells which registers are in use, and has wide ones.
bool TellsUse() {
    constexpr unsigned StateLeaf = 0xD;
    constexpr unsigned TellsInUse = 4; // of the leaf's second part
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    return static_cast<bool>(__builtin_cpu_supports("avx")) &&
           __get_cpuid_count(StateLeaf, 1, &a, &b, &c, &d) != 0 && (a & TellsInUse) != 0;
}

bool WideRegistersAreInUse() {
    constexpr unsigned UpperHalves = 4;
    unsigned low = 0;
    unsigned high = 0;
    asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
    return (low & UpperHalves) != 0;
}

// As a library that fills pixels leaves them.
void UseWideRegisters() {
    asm volatile("vcmptrueps %%ymm7, %%ymm7, %%ymm7" ::: "xmm7");
}

} // namespace

TEST(FreeWideRegisters, FreesThem) {
    if (!TellsUse()) {
        GTEST_SKIP() << "This processor does not tell which registers are in use.";
    }
    UseWideRegisters();
    bool const before = WideRegistersAreInUse();
    FreeWideRegisters();
    bool const after = WideRegistersAreInUse();
    EXPECT_TRUE(before);
    EXPECT_FALSE(after);
}

#endif

} // namespace quorvex::platform
