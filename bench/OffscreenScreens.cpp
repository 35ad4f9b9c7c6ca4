// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "OffscreenScreens.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <stdexcept>

namespace quorvex::bench {

OffscreenScreens::OffscreenScreens(QList<OffscreenScreen> const& screens) {
    QJsonArray described;
    int left = 0;
    for (OffscreenScreen const& screen : screens) {
        described.append(
            QJsonObject{{QStringLiteral("name"), QStringLiteral("Screen%1").arg(described.size())},
                        {QStringLiteral("x"), left},
                        {QStringLiteral("y"), 0},
                        {QStringLiteral("width"), screen.Size.width()},
                        {QStringLiteral("height"), screen.Size.height()},
                        {QStringLiteral("logicalDpi"), 96},
                        {QStringLiteral("logicalBaseDpi"), 96},
                        {QStringLiteral("dpr"), screen.Scale}});
        left += screen.Size.width();
    }
    QFile file(FileName());
    QByteArray const text = QJsonDocument(QJsonObject{{QStringLiteral("screens"), described}}).toJson();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        throw std::runtime_error("The description of the screens cannot be written.");
    }
}

QByteArray OffscreenScreens::Platform() const {
    return "offscreen:configfile=" + FileName().toUtf8();
}

} // namespace quorvex::bench
