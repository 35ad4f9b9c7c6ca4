// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/StatusLine.h"

#include <QAccessibleWidget>

namespace quorvex::editor::ui {

namespace {

QAccessibleInterface* MakeAccessibleLine(QString const&, QObject* object) {
    auto* line = qobject_cast<StatusLine*>(object);
    return line == nullptr ? nullptr : new QAccessibleWidget(line, QAccessible::StatusBar);
}

} // namespace

StatusLine::StatusLine(QWidget& client) : QLabel(&client) {
    constexpr int Margin = 6;
    QAccessible::installFactory(MakeAccessibleLine); // which it takes once only
    setObjectName(QStringLiteral("StatusLine"));
    setTextFormat(Qt::PlainText); // names of files stand in it
    setWordWrap(true);
    setContentsMargins(Margin, 0, Margin, 0);
}

void StatusLine::Tell(QString const& newText) {
    if (newText != text()) {
        setAccessibleName(newText); // which announces it; a label without a name would do so again
        setText(newText);
    }
}

} // namespace quorvex::editor::ui
