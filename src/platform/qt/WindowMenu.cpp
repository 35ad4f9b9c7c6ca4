// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/WindowMenu.h"

#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <utility>

namespace quorvex::platform::qt {

namespace {

void Run(QWidget& window, WindowMenu::Command const& command) {
    CloseMenus();
    // Keys and mouse do not come through while a dialog is open; assistive technology does.
    QWidget const* const waiting = QApplication::activeModalWidget();
    if (waiting == nullptr || waiting == &window) {
        RunGuarded(window, command);
    }
}

} // namespace

WindowMenu::WindowMenu(QWidget& window) : window_(window), bar_(new QMenuBar(&window)), current_(bar_) {
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
                     [&window = window_, run = std::move(command)] { Run(window, run); });
    current_->addAction(action);
    return *this;
}

WindowMenu& WindowMenu::Separator() {
    auto* const action = new QAction(&window_);
    action->setSeparator(true);
    current_->addAction(action);
    return *this;
}

} // namespace quorvex::platform::qt
