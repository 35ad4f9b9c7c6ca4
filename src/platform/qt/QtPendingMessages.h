// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PendingMessages.h"

#include <QCoreApplication>

namespace quorvex::platform::qt {

// Works off what Qt has waiting, but for keys and mouse: a command is running.
class QtPendingMessages final : public PendingMessages {
public:
    void Process() override { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }
};

} // namespace quorvex::platform::qt
