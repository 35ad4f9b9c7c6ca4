// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "ShownDialog.h"

#include <QCoreApplication>
#include <QTimer>

namespace quorvex::bench {

void CloseWhenShown(QDialog& dialog, std::function<void()> const& look) {
    QTimer::singleShot(0, &dialog, [&dialog, look] {
        QCoreApplication::processEvents();
        look();
        dialog.close();
    });
}

} // namespace quorvex::bench
