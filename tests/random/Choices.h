// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the random user chooses among.
#pragma once

#include "random/Dice.h"

#include <QAction>
#include <QList>
#include <QRegularExpression>
#include <QSize>
#include <QWidget>

namespace quorvex::tests {

[[nodiscard]] Qt::Key PickKey(Dice& dice);

// None, most of the time.
[[nodiscard]] Qt::KeyboardModifiers PickModifiers(Dice& dice);

// The left one, most of the time.
[[nodiscard]] Qt::MouseButton PickButton(Dice& dice);

// A size for a window.
[[nodiscard]] QSize PickSize(Dice& dice);

// One of the commands, of which there must be one, and seldom a rare one.
[[nodiscard]] QAction* PickCommand(QList<QAction*> const& commands, Dice& dice);

// Whether the analysis has something to work on.
[[nodiscard]] bool HasQuotes(QWidget const& main);

// Whether it has something to work with.
[[nodiscard]] bool HasCycle(QWidget const& main);

// The names of the commands that have to come before most others can do anything; of all, when that is done.
[[nodiscard]] QRegularExpression NextStep(QWidget const& main);

} // namespace quorvex::tests
