// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <functional>

namespace quorvex::bench {

// Once the dialog, which is just being opened, has been painted, runs the routine and closes it.
void CloseWhenShown(
    QDialog& dialog, std::function<void()> const& look = [] {});

} // namespace quorvex::bench
