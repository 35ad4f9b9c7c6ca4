// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Single movements of the user's hands. What is hit may be gone after any of them.
#pragma once

#include "random/Dice.h"
#include "random/FrontWindow.h"

#include <QString>
#include <QWidget>

namespace quorvex::tests {

struct Click {
    Qt::MouseButton Button = Qt::LeftButton;
    Qt::KeyboardModifiers Modifiers;
};

void PressAndRelease(Spot const& spot, Click click);
void DoubleClick(Spot const& spot);

// Moves the pressed pointer to the other place of the same widget.
void Drag(Spot const& from, QPoint to);

// Moves the pointer there and rests it long enough for a tool tip.
void Rest(Spot const& spot);

void Scroll(Spot const& spot, QPoint degrees);

void AskForContextMenu(Spot const& spot, bool byKey);

void PressKey(QWidget& receiver, Qt::Key key, Qt::KeyboardModifiers modifiers);

// Types over all that stands in the widget.
void TypeText(QWidget& receiver, QString const& text);

} // namespace quorvex::tests
