// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/ToolTips.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

namespace quorvex::tests {

QString ToolTipAt(QWidget& control, QPoint place) {
    // A tool tip that goes stays a little while.
    QToolTip::hideText();
    if (!QTest::qWaitFor([] { return QToolTip::text().isEmpty(); })) {
        return QStringLiteral("The last tool tip does not go away");
    }
    QHelpEvent event(QEvent::ToolTip, place, control.mapToGlobal(place));
    QCoreApplication::sendEvent(&control, &event);
    return QToolTip::text();
}

} // namespace quorvex::tests
