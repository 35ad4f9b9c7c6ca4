// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basProcessor.h"

// GCC for Windows does not align the stack for wide registers, so that nothing is compiled for them there.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(_WIN32)
#define QUORVEX_FREES_WIDE_REGISTERS // NOLINT(*-macro-usage)
#include <immintrin.h>
#endif

namespace quorvex::platform {

#ifdef QUORVEX_FREES_WIDE_REGISTERS

namespace {

// The only routine that is compiled for processors with AVX, whatever the rest is compiled for.
__attribute__((target("avx"))) void ZeroUpperHalves() {
    _mm256_zeroupper();
}

} // namespace

void FreeWideRegisters() {
    // In the processor and in the system. Compilers differ in whether this is a number.
    static bool const areThere = static_cast<bool>(__builtin_cpu_supports("avx"));
    if (areThere) {
        ZeroUpperHalves();
    }
}

#else

void FreeWideRegisters() {}

#endif

} // namespace quorvex::platform
