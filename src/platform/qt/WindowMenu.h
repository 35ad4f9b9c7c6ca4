// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenuBar>
#include <functional>

namespace quorvex::platform::qt {

// The menu bar of a window other than the main one. A command runs guarded once the menus are closed; one
// that assistive technology chooses while another window waits for an answer does not run.
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
    QWidget& window_;
    QMenuBar* bar_;
    QWidget* current_; // the bar or the last menu
};

} // namespace quorvex::platform::qt
