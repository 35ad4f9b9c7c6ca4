// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace quorvex::bench {

// What is done with the window between its first painting and the end of the process. Each executable that
// reports its start has its own.
void UseWindow(QWidget& window);

} // namespace quorvex::bench
