// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/OpenFileDialog.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <algorithm>

namespace quorvex::platform::qt {

namespace {

QString StartFolder(std::string_view folder) {
    QDir const wanted(pictures::ToQt(folder));
    return wanted.isAbsolute() && wanted.exists() ? wanted.path() : QDir::homePath();
}

// Qt reads the patterns from the descriptions, which name them.
QStringList DescriptionsOf(std::string_view filter) {
    QStringList descriptions;
    QStringList const parts = pictures::ToQt(filter).split(u'|');
    for (qsizetype index = 0; index < parts.size(); index += 2) {
        descriptions.append(parts[index]);
    }
    return descriptions;
}

} // namespace

std::string AskForFile(QWidget& window, FileQuestion const& question) {
    QFileDialog dialog(TopmostOf(window));
    dialog.setObjectName(QStringLiteral("OpenFileDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setDirectory(StartFolder(question.Folder));
    dialog.setNameFilters(DescriptionsOf(question.Filter));
    dialog.selectFile(pictures::ToQt(question.Name));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return pictures::FromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

} // namespace quorvex::platform::qt
