// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::tests {

// The administrator may do everything, so tests of permissions run as somebody else while this object lives.
// For POSIX systems.
class AsOrdinaryUser {
public:
    AsOrdinaryUser();
    AsOrdinaryUser(AsOrdinaryUser const&) = delete;
    AsOrdinaryUser& operator=(AsOrdinaryUser const&) = delete;
    ~AsOrdinaryUser();
};

} // namespace quorvex::tests
