// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a user types who means no good.
#pragma once

#include "random/Dice.h"

#include <QString>

namespace quorvex::tests {

// A number, or what looks like one, or no number at all. No text has a separator of folders, so that one that
// ends up as the name of a file stays in the folder.
[[nodiscard]] QString PickText(Dice& dice);

// A plain name of a file.
[[nodiscard]] QString PickFileName(Dice& dice);

} // namespace quorvex::tests
