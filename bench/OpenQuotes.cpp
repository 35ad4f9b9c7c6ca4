// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Linked with the main routine of the real program: opens the 500 generated days as a user would, with ten
// cycles.

#include "TemporaryQuoteFile.h"
#include "TypedCycles.h"
#include "UseWindow.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

namespace quorvex::bench {

namespace {

QString QuoteFileName() {
    return QString::fromUtf8(TemporaryQuoteFile::Name.data(), TemporaryQuoteFile::Name.size());
}

void ChooseQuotes() {
    QWidget const* const chooser = QApplication::activeModalWidget();
    auto* list = chooser->findChild<QListWidget*>(QStringLiteral("lstFiles"));
    list->setCurrentItem(list->findItems(QuoteFileName(), Qt::MatchExactly).value(0));
    chooser->findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
}

void Choose(QWidget& window, char const* item) {
    window.findChild<QAction*>(QString::fromLatin1(item))->trigger();
    QCoreApplication::processEvents();
}

} // namespace

void UseWindow(QWidget& window) {
    QTimer::singleShot(0, ChooseQuotes);
    Choose(window, "mnuFileOpen");
    if (!window.windowTitle().contains(QuoteFileName())) {
        qFatal("The generated quotes are not open.");
    }
    TypeTenCycles(window);
    Choose(window, "mnuRefresh");
}

} // namespace quorvex::bench
