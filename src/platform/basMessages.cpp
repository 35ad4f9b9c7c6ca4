// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basMessages.h"

#include <string>

namespace quorvex::platform {

void ShowWarning(Dialogs& dialogs, std::string_view text) {
    dialogs.Show({std::string(text), std::string(ApplicationTitle), Icon::Exclamation});
}

Message ErrorMessage(text::RunTimeError const& error) {
    return {std::string(error.Description()), std::string(ApplicationTitle), Icon::None};
}

void ShowError(Dialogs& dialogs, text::RunTimeError const& error) {
    dialogs.Show(ErrorMessage(error));
}

bool MayReplace(Dialogs& dialogs, std::string_view fileName, std::string_view title) {
    return dialogs.Show({std::string(fileName) + " already exists.\nDo you want to replace it?",
                         std::string(title), Icon::Exclamation, Buttons::YesNo}) == Answer::Yes;
}

} // namespace quorvex::platform
