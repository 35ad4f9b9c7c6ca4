// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/Tables.h"

#include "platform/pictures/QtTexts.h"

#include <QDir>
#include <QUrl>

namespace quorvex::app::ui {

namespace {

using platform::pictures::FromQt;

bool HasSeveralLines(QStringView text) {
    QStringView const trimmed = text.trimmed();
    return trimmed.contains(u'\n') || trimmed.contains(u'\r');
}

} // namespace

IncomingTables TablesIn(QMimeData const* data) {
    IncomingTables tables;
    if (data == nullptr) {
        return tables;
    }
    for (QUrl const& url : data->urls()) {
        if (url.isLocalFile()) {
            tables.Paths.push_back(FromQt(QDir::toNativeSeparators(url.toLocalFile())));
        }
    }
    if (QString const text = data->text(); tables.Paths.empty() && HasSeveralLines(text)) {
        tables.Text = FromQt(text);
    }
    return tables;
}

bool HoldsTables(QMimeData const* data) {
    return !TablesIn(data).IsNone();
}

} // namespace quorvex::app::ui
