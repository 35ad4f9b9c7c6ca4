// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace quorvex::tests {

// Could be taken for an access key and for markup.
inline constexpr auto AmbiguousName = "S&P<b>500</b>.txt";

// Whether the label looks as one that shows this text letter for letter.
[[nodiscard]] bool ShowsLetterForLetter(QLabel& label, QString const& text);

} // namespace quorvex::tests
