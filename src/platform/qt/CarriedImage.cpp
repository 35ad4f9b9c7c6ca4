// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/CarriedImage.h"

#include <QDir>

namespace quorvex::platform::qt {

QIcon CarriedImage(QString const& name) {
    QDir const folder(QStringLiteral(":/images"));
    QIcon icon;
    for (QString const& file : folder.entryList({name + QStringLiteral("-*.png")})) {
        icon.addFile(folder.filePath(file));
    }
    return icon;
}

} // namespace quorvex::platform::qt
