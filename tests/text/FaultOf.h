// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/RunTimeError.h"

#include <string>
#include <utility>

namespace quorvex::text {

// The description of the fault that the routine raises, "no fault" when it runs to its end.
template <class Routine>
[[nodiscard]] std::string FaultOf(Routine&& routine) {
    auto const error = Trap(std::forward<Routine>(routine));
    return error ? std::string(error->Description()) : "no fault";
}

} // namespace quorvex::text
