// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::platform {

// Declares the upper halves of the processor's wide registers unused. Libraries that fill pixels may leave
// them in use; until they are free, every sine and every sum takes several times as long. For all who
// compute after something was painted. Changes no value, and does nothing where there are no such registers.
void FreeWideRegisters();

} // namespace quorvex::platform
