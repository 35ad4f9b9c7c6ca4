// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::tests {

// Makes the process write and read numbers as in a country with a decimal comma, so that a test notices
// numbers and dates that depend on the system.
void EnterHostileLocale();

} // namespace quorvex::tests
