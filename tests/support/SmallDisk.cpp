// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/SmallDisk.h"

namespace quorvex::tests {

SmallDisk::SmallDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit const limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
}

SmallDisk::~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    static_cast<void>(std::signal(SIGXFSZ, handler_));
}

} // namespace quorvex::tests
