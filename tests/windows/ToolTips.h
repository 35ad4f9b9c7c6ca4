// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace quorvex::tests {

// The tool tip that resting the pointer on this place of the control shows; empty when there is none.
[[nodiscard]] QString ToolTipAt(QWidget& control, QPoint place);

} // namespace quorvex::tests
