// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/Hands.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

namespace quorvex::tests {

namespace {

void Move(Spot const& spot, Qt::MouseButtons buttons) {
    if (!spot.Widget.isNull()) {
        QMouseEvent move(QEvent::MouseMove, spot.Place, spot.Widget->mapToGlobal(spot.Place), Qt::NoButton,
                         buttons, Qt::NoModifier);
        QApplication::sendEvent(spot.Widget, &move);
    }
}

// Keys as the keyboard tells them; characters that no key is named after come from the keyboard's layout.
Qt::Key KeyOf(QChar character) {
    ushort const code = character.toUpper().unicode();
    return code >= u' ' && code <= u'~' ? static_cast<Qt::Key>(code) : Qt::Key_unknown;
}

} // namespace

void PressAndRelease(Spot const& spot, Click click) {
    QTest::mousePress(spot.Widget, click.Button, click.Modifiers, spot.Place);
    if (!spot.Widget.isNull()) {
        QTest::mouseRelease(spot.Widget, click.Button, click.Modifiers, spot.Place);
    }
}

void DoubleClick(Spot const& spot) {
    PressAndRelease(spot, {});
    if (!spot.Widget.isNull() && spot.Widget->isVisible()) {
        QTest::mouseDClick(spot.Widget, Qt::LeftButton, {}, spot.Place);
    }
}

void Drag(Spot const& from, QPoint to) {
    QTest::mousePress(from.Widget, Qt::LeftButton, {}, from.Place);
    Move({from.Widget, (from.Place + to) / 2}, Qt::LeftButton);
    Move({from.Widget, to}, Qt::LeftButton);
    if (!from.Widget.isNull()) {
        QTest::mouseRelease(from.Widget, Qt::LeftButton, {}, to);
    }
}

void Rest(Spot const& spot) {
    Move(spot, Qt::NoButton);
    if (!spot.Widget.isNull()) {
        QHelpEvent help(QEvent::ToolTip, spot.Place, spot.Widget->mapToGlobal(spot.Place));
        QApplication::sendEvent(spot.Widget, &help);
    }
}

void Scroll(Spot const& spot, QPoint degrees) {
    constexpr int UnitsPerDegree = 8;
    QWheelEvent wheel(spot.Place, spot.Widget->mapToGlobal(spot.Place), QPoint(), degrees * UnitsPerDegree,
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(spot.Widget, &wheel);
}

void AskForContextMenu(Spot const& spot, bool byKey) {
    QContextMenuEvent event(byKey ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse, spot.Place,
                            spot.Widget->mapToGlobal(spot.Place));
    QApplication::sendEvent(spot.Widget, &event);
}

void PressKey(QWidget& receiver, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&receiver, key, modifiers);
}

void TypeText(QWidget& receiver, QString const& text) {
    QPointer<QWidget> const widget = &receiver;
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    if (!widget.isNull()) {
        QTest::keyClick(widget, Qt::Key_Delete);
    }
    for (QChar const character : text) {
        if (!widget.isNull()) {
            QTest::sendKeyEvent(QTest::Click, widget, KeyOf(character), QString(character), Qt::NoModifier);
        }
    }
}

} // namespace quorvex::tests
