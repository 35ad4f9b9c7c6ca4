// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the user sees and could act on.
#pragma once

#include "random/Dice.h"

#include <QAction>
#include <QList>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace quorvex::tests {

// A place that the pointer can be at, in the coordinates of the widget.
struct Spot {
    QPointer<QWidget> Widget;
    QPoint Place;
};

// The window that takes keys and clicks: a menu or list that is open, else the topmost dialog, else the main
// one.
[[nodiscard]] QWidget& FrontWindow(QWidget& main);

// Whether anything else waits for an answer before the main window.
[[nodiscard]] bool IsWaiting();

// The window itself and what can be seen in it.
[[nodiscard]] QList<QWidget*> VisibleWidgets(QWidget& window);

// Half of the time a place of the window, however large what lies there is; else of any visible widget.
[[nodiscard]] Spot PickSpot(QWidget& window, Dice& dice);

// The enabled commands of the window's own menus, without separators and menus.
[[nodiscard]] QList<QAction*> CommandsOf(QWidget const& window);

// What keys go to.
[[nodiscard]] QWidget& KeyReceiver(QWidget& window);

[[nodiscard]] QString NameOf(QObject const& object);

} // namespace quorvex::tests
