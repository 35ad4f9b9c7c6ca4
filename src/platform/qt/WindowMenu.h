// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenuBar>
#include <functional>
#include <memory>

namespace quorvex::platform::qt {

// The menu bar of a window other than the main one. A command runs guarded once the menus are closed; one
// that assistive technology chooses while another window waits for an answer does not run. One that is chosen
// while the command before is about to end runs behind it, as long as the window is open.
class WindowMenu {
public:
    using Command = std::function<void()>;

    // An empty bar that belongs to the window. Captions mark their access keys by "&".
    explicit WindowMenu(QWidget& window);

    // What follows stands in this menu.
    WindowMenu& Menu(char const* name, char const* caption);

    // What follows stands on the bar itself, as at first.
    WindowMenu& OnBar();

    WindowMenu& Item(char const* name, char const* caption, Command command);
    WindowMenu& Separator();

    // For the window to place.
    [[nodiscard]] QMenuBar& Bar() { return *bar_; }

private:
    struct Turn; // one command at a time

    static void Run(QWidget& window, std::shared_ptr<Turn> const& turn, Command const& command);

    QWidget& window_;
    std::shared_ptr<Turn> turn_; // of the items, which outlive this
    QMenuBar* bar_;
    QWidget* current_; // the bar or the last menu
};

} // namespace quorvex::platform::qt
