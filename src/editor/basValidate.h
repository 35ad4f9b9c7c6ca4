// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The check that the rows of the editor pass before they are written.
#pragma once

#include "editor/Editor.h"
#include "platform/Dialogs.h"

namespace quorvex::editor {

// Whether every row has a date and four prices above zero and no date comes twice; volume, open interest and
// the order of the prices are not looked at. The rows are put into the order of their dates on the way. At
// the first cell that fails the user is told and finds the cursor there.
[[nodiscard]] bool ValidateQuotes(Editor& editor, platform::Dialogs& dialogs);

} // namespace quorvex::editor
