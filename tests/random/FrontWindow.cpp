// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/FrontWindow.h"

#include <QApplication>
#include <QMenu>
#include <algorithm>

namespace quorvex::tests {

namespace {

// The dialog or main window that the command belongs to: a menu is a window of its own.
QObject const* OwnerOf(QAction const& command) {
    QObject const* owner = command.parent();
    while (owner != nullptr && (!owner->isWidgetType() || !static_cast<QWidget const*>(owner)->isWindow() ||
                                qobject_cast<QMenu const*>(owner) != nullptr)) {
        owner = owner->parent();
    }
    return owner;
}

} // namespace

QWidget& FrontWindow(QWidget& main) {
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) {
        return *popup;
    }
    QWidget* const dialog = QApplication::activeModalWidget();
    return dialog == nullptr ? main : *dialog;
}

bool IsWaiting() {
    return QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr;
}

QList<QWidget*> VisibleWidgets(QWidget& window) {
    QList<QWidget*> widgets{&window};
    for (QWidget* child : window.findChildren<QWidget*>()) {
        if (child->isVisible() && child->window() == &window && !child->size().isEmpty()) {
            widgets.append(child);
        }
    }
    return widgets;
}

Spot PickSpot(QWidget& window, Dice& dice) {
    auto const placeIn = [&dice](QWidget const& widget) {
        return QPoint{dice.Below(std::max(1, widget.width())), dice.Below(std::max(1, widget.height()))};
    };
    if (dice.OneIn(2)) {
        QWidget* const widget = dice.Pick(VisibleWidgets(window));
        return {widget, placeIn(*widget)};
    }
    QPoint const place = placeIn(window);
    QWidget* const child = window.childAt(place);
    return child == nullptr ? Spot{&window, place} : Spot{child, child->mapFrom(&window, place)};
}

QList<QAction*> CommandsOf(QWidget const& window) {
    QList<QAction*> commands;
    for (QAction* action : window.findChildren<QAction*>()) {
        // The toolkit's own, which for instance clear a line edit, have no names.
        bool const isCommand =
            !action->isSeparator() && action->menu() == nullptr && OwnerOf(*action) == &window;
        if (isCommand && action->isEnabled() && action->objectName().startsWith(QStringLiteral("mnu"))) {
            commands.append(action);
        }
    }
    return commands;
}

QWidget& KeyReceiver(QWidget& window) {
    QWidget* const focus = QApplication::focusWidget();
    if (focus != nullptr && focus->window() == &window) {
        return *focus;
    }
    return window.focusWidget() == nullptr ? window : *window.focusWidget();
}

QString NameOf(QObject const& object) {
    QString const name = object.objectName();
    return name.isEmpty() ? QString::fromLatin1(object.metaObject()->className()) : name;
}

} // namespace quorvex::tests
