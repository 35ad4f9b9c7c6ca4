// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/SmallSystem.h"

namespace quorvex::search {

SmallSystem WithCommonPart(SmallSystem system, double square) {
    for (std::size_t i = 0; i < system.Size; ++i) {
        for (std::size_t j = 0; j < system.Size; ++j) {
            system.Products[i][j] += square;
        }
    }
    return system;
}

} // namespace quorvex::search
