// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/AsOrdinaryUser.h"

#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

namespace quorvex::tests {

namespace {

constexpr uid_t Nobody = 65534;

} // namespace

AsOrdinaryUser::AsOrdinaryUser() {
    if (geteuid() == 0 && seteuid(Nobody) != 0) {
        throw std::runtime_error("Cannot become an ordinary user");
    }
}

AsOrdinaryUser::~AsOrdinaryUser() {
    // Going on as somebody else would fail the tests that follow for no reason of theirs.
    if (geteuid() != getuid() && seteuid(getuid()) != 0) {
        std::abort();
    }
}

} // namespace quorvex::tests
