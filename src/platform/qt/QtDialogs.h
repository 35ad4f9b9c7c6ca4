// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <QWidget>
#include <functional>
#include <string_view>

namespace quorvex::platform::qt {

// The window that the user is in, which is the given one or a dialog of it.
[[nodiscard]] QWidget* TopmostOf(QWidget& window);

// A message box over the window that the user is in. The mouse pointer is the usual one meanwhile.
Answer ShowMessageBox(QWidget& window, Message const& message);

// An input box, likewise; the empty text when it was cancelled.
[[nodiscard]] std::string AskInputBox(QWidget& window, Question const& question);

// Runs the routine so that no exception reaches Qt's event loop: what ended it is shown, if that is wanted.
// Returns whether it ran to its end.
bool RunGuarded(QWidget& window, bool isShown, std::function<void()> const& routine);
bool RunGuarded(QWidget& window, std::function<void()> const& routine);

// Closes every menu that is open. An item that assistive technology chooses leaves its menu open.
void CloseMenus();

// Makes Arial the font of all windows, with Liberation Sans as its stand-in.
void SetProgramFont();

// Gives the window this caption, in which no part stands for anything but itself.
void SetCaption(QWidget& window, std::string_view caption);

// Puts the window with its frame into the middle of the screen that it is on. One that was never shown is put
// there once more when it is shown, because the system gives it its frame no earlier.
void CentreForm(QWidget& window);

} // namespace quorvex::platform::qt
