// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The check that the rows of the editor pass before they are written.
#pragma once

#include "editor/Editor.h"
#include "platform/Dialogs.h"

#include <optional>
#include <string>

namespace quorvex::editor {

// Why rows are not written, in the words of a status line; nothing when they can be.
using Refusal = std::optional<std::string>;

// Whether every row has a date and four prices above zero and no date comes twice; volume, open interest and
// the order of the prices are not looked at. The rows are put into the order of their dates on the way. At
// the first cell that fails the user is told and finds the cursor there.
[[nodiscard]] Refusal ValidateQuotes(Editor& editor, platform::Dialogs& dialogs);

} // namespace quorvex::editor
