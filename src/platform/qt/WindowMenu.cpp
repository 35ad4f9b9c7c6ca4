// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/WindowMenu.h"

#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <utility>
#include <vector>

namespace quorvex::platform::qt {

struct WindowMenu::Turn {
    bool IsTaken = false;
    std::vector<Command> Waiting;
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
    // Keys and mouse do not come through while a dialog is open; assistive technology does.
    QWidget const* const waiting = QApplication::activeModalWidget();
    if (waiting != nullptr && waiting != &window) {
        return;
    }
    if (turn->IsTaken) {
        // Its dialog is closed and about to return: it cannot be opened before.
        turn->Waiting.push_back(command);
        return;
    }
    turn->IsTaken = true;
    RunGuarded(window, command);
    turn->IsTaken = false;
    for (Command& next : std::exchange(turn->Waiting, {})) {
        QMetaObject::invokeMethod(
            &window,
            [&window, turn, run = std::move(next)] {
                if (window.isVisible()) {
                    Run(window, turn, run);
                }
            },
            Qt::QueuedConnection);
    }
}

} // namespace quorvex::platform::qt
