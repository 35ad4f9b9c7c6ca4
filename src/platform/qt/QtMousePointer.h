// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MousePointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace quorvex::platform::qt {

// The pointer over all windows of the program.
class QtMousePointer final : public MousePointer {
public:
    void ShowHourglass() override { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

    void ShowDefault() override { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace quorvex::platform::qt
