// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// How the commands of the converters end that meet a fault.
#pragma once

#include "support/EveryFault.h"

#include <string_view>

namespace quorvex::convert {

// A fault of the destination takes what was written of it away again; what it held stays as its backup. A
// destination that cannot be deleted is told of as well, and left without content where that can be.
[[nodiscard]] tests::Ending EndOfConversion(tests::MetFault const& met);

// Of Browse, with what stands in the source name's box behind it. A length that cannot be learnt empties both
// boxes without a message (docs/behaviour.md); a file that cannot be shown keeps its name.
[[nodiscard]] tests::Ending EndOfBrowse(tests::MetFault const& met, std::string_view name);

} // namespace quorvex::convert
