// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/Choices.h"

#include <QLineEdit>
#include <algorithm>
#include <array>

namespace quorvex::tests {

namespace {

constexpr auto Keys = std::to_array<Qt::Key>({
    Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,     Qt::Key_Escape, Qt::Key_Space,
    Qt::Key_Left, Qt::Key_Right,   Qt::Key_Up,     Qt::Key_Down,      Qt::Key_PageUp, Qt::Key_PageDown,
    Qt::Key_Home, Qt::Key_End,     Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Insert, Qt::Key_Menu,
    Qt::Key_F1,   Qt::Key_F5,      Qt::Key_F10,    Qt::Key_Alt,       Qt::Key_Minus,  Qt::Key_0,
    Qt::Key_5,    Qt::Key_9,       Qt::Key_A,      Qt::Key_C,         Qt::Key_F,      Qt::Key_O,
    Qt::Key_P,    Qt::Key_R,       Qt::Key_V,      Qt::Key_X,         Qt::Key_Y,      Qt::Key_Z,
});

constexpr auto Modifiers =
    std::to_array<Qt::KeyboardModifier>({Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                         Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier});

constexpr auto Buttons = std::to_array<Qt::MouseButton>(
    {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});

// Ending takes the quotes away and printing leaves a file behind.
bool IsRare(QAction const& command) {
    return command.objectName() == QStringLiteral("mnuFileExit") ||
           command.objectName() == QStringLiteral("mnuFileClose") ||
           command.objectName() == QStringLiteral("mnuFilePrint");
}

} // namespace

Qt::Key PickKey(Dice& dice) {
    return dice.Pick(Keys);
}

Qt::KeyboardModifiers PickModifiers(Dice& dice) {
    return dice.Pick(Modifiers);
}

Qt::MouseButton PickButton(Dice& dice) {
    return dice.Pick(Buttons);
}

QAction* PickCommand(QList<QAction*> const& commands, Dice& dice) {
    QAction* const command = dice.Pick(commands);
    return IsRare(*command) ? dice.Pick(commands) : command;
}

bool HasQuotes(QWidget const& main) {
    return main.windowTitle().contains(QStringLiteral(" - ["));
}

bool HasCycle(QWidget const& main) {
    static QRegularExpression const weights(QStringLiteral("^Text1_[1-9]"));
    auto const cells = main.findChildren<QLineEdit*>(weights);
    return std::ranges::any_of(cells, [](auto const* cell) { return cell->text().toDouble() != 0; });
}

QRegularExpression NextStep(QWidget const& main) {
    QString const step = !HasQuotes(main)  ? QStringLiteral("^mnuFileOpen$")
                         : !HasCycle(main) ? QStringLiteral("^mnuParameters(Automate[123]|Open)$")
                                           : QStringLiteral(".");
    return QRegularExpression(step);
}

QSize PickSize(Dice& dice) {
    // Large pictures take long; one size in fifty is of several screens.
    QSize const largest = dice.OneIn(50) ? QSize(4000, 3000) : QSize(1400, 1000);
    return {dice.Between(0, largest.width()), dice.Between(0, largest.height())};
}

} // namespace quorvex::tests
