// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/WindowMenu.h"

#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QPointer>
#include <QScopeGuard>
#include <deque>
#include <utility>

namespace quorvex::platform::qt {

namespace {

// Keys and mouse do not come through while a dialog is open; assistive technology does.
bool IsAnotherWaiting(QWidget const& window) {
    QWidget const* const waiting = QApplication::activeModalWidget();
    return waiting != nullptr && waiting != &window;
}

} // namespace

struct WindowMenu::Turn {
    bool IsTaken = false;
    std::deque<Command> Waiting;
};

WindowMenu::WindowMenu(QWidget& window)
    : window_(window),
      turn_(std::make_shared<Turn>()),
      bar_(new QMenuBar(&window)),
      current_(bar_) {
    // A menu bar of the system's own shows no commands outside of menus.
    bar_->setNativeMenuBar(false);
}

WindowMenu& WindowMenu::Menu(char const* name, char const* caption) {
    QMenu* const menu = bar_->addMenu(QString::fromLatin1(caption));
    menu->setObjectName(QString::fromLatin1(name));
    current_ = menu;
    return *this;
}

WindowMenu& WindowMenu::OnBar() {
    current_ = bar_;
    return *this;
}

WindowMenu& WindowMenu::Item(char const* name, char const* caption, Command command) {
    auto* const action = new QAction(QString::fromLatin1(caption), &window_);
    action->setObjectName(QString::fromLatin1(name));
    action->setMenuRole(QAction::NoRole); // macOS would move some into a menu of its own
    QObject::connect(action, &QAction::triggered, &window_,
                     [&window = window_, turn = turn_, run = std::move(command)] { Run(window, turn, run); });
    current_->addAction(action);
    return *this;
}

WindowMenu& WindowMenu::Separator() {
    auto* const action = new QAction(&window_);
    action->setSeparator(true);
    current_->addAction(action);
    return *this;
}

void WindowMenu::Run(QWidget& window, std::shared_ptr<Turn> const& turn, Command const& command) {
    CloseMenus();
    if (IsAnotherWaiting(window)) {
        return;
    }
    if (turn->IsTaken) {
        // The command before has not returned; its dialog could not be opened anew.
        turn->Waiting.push_back(command);
        return;
    }
    turn->IsTaken = true;
    auto const end = qScopeGuard([turn] { *turn = {}; });
    QPointer<QWidget> const shown(&window);
    RunGuarded(window, command);
    while (!turn->Waiting.empty() && shown != nullptr && shown->isVisible() && !IsAnotherWaiting(window)) {
        Command const next = std::move(turn->Waiting.front());
        turn->Waiting.pop_front();
        RunGuarded(window, next);
    }
}

} // namespace quorvex::platform::qt
