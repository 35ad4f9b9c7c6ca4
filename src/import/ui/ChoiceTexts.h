// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the boxes say in which a user settles what a table leaves open.
#pragma once

#include "import/Choices.h"

#include <QString>

namespace quorvex::imports::ui {

// The entry that leaves it to the program.
[[nodiscard]] QString Automatic();

// The same with what was found out; an empty name when it is not one thing.
[[nodiscard]] QString Found(QString const& name);

[[nodiscard]] QString FractionName(int denominator); // "1/32"

// Where in the window the choice is made, as a sentence behind a refusal; empty when nothing settles it.
[[nodiscard]] QString HowToSettle(Choice choice);

} // namespace quorvex::imports::ui
