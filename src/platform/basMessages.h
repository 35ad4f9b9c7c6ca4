// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Messages that many commands share.
#pragma once

#include "platform/Dialogs.h"
#include "text/RunTimeError.h"

#include <string_view>
#include <utility>

namespace quorvex::platform {

// The title of the program's own message boxes.
inline constexpr std::string_view ApplicationTitle = "Quorvex";

// Shows the text with an OK button and the exclamation icon.
void ShowWarning(Dialogs& dialogs, std::string_view text);

// The plain box with an OK button that shows an error's own description.
[[nodiscard]] Message ErrorMessage(text::RunTimeError const& error);

void ShowError(Dialogs& dialogs, text::RunTimeError const& error);

// Asks whether the existing file may be replaced. The title is that of the dialog which named it.
[[nodiscard]] bool MayReplace(Dialogs& dialogs, std::string_view fileName, std::string_view title);

// Runs the routine under an error trap and shows the fault that ended it. Returns whether there was none.
template <class Routine>
bool RunReported(Dialogs& dialogs, Routine&& routine) {
    auto const error = text::Trap(std::forward<Routine>(routine));
    if (error) {
        ShowError(dialogs, *error);
    }
    return !error;
}

} // namespace quorvex::platform
