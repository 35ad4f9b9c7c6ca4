// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>
#include <sys/resource.h>

namespace quorvex::tests {

// Files may grow to so many bytes only while this object lives, which fails the way a full disk does. For
// POSIX systems.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes);
    SmallDisk(SmallDisk const&) = delete;
    SmallDisk& operator=(SmallDisk const&) = delete;
    ~SmallDisk();

private:
    rlimit before_{};
    void (*handler_)(int);
};

} // namespace quorvex::tests
