// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/FileDialogs.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>
#include <algorithm>

namespace quorvex::platform::qt {

namespace {

// What a save replaced is in none of the lists. To Qt, only names with a dot match *.*
#ifdef Q_OS_WIN
constexpr QLatin1StringView AllFiles("*.*"); // the system's own dialog knows no sets of characters
#else
constexpr QLatin1StringView AllFiles("*[!~]");
#endif

QString StartFolder(std::string_view folder) {
    QDir const wanted(pictures::ToQt(folder));
    return wanted.isAbsolute() && wanted.exists() ? wanted.path() : QDir::homePath();
}

// For Qt, which reads the patterns from the last brackets and here shows what stands before them.
QStringList NameFiltersOf(std::string_view filter) {
    QStringList filters;
    QStringList const parts = pictures::ToQt(filter).split(u'|');
    for (qsizetype index = 0; index + 1 < parts.size(); index += 2) {
        QString const pattern = parts[index + 1] == u"*.*" ? QString(AllFiles) : parts[index + 1];
        filters.append(QStringLiteral("%1(%2)").arg(parts[index], pattern));
    }
    return filters;
}

// The ending that files of the filter have, without the point; empty when that is no single one.
QString EndingOf(QString const& filter) {
    static QRegularExpression const pattern(QStringLiteral("\\(\\*\\.([A-Za-z0-9]+)\\)$"));
    return pattern.match(filter).captured(1);
}

void StartAt(QFileDialog& dialog, std::string_view folder, std::string_view filter, std::string_view name) {
    dialog.setDirectory(StartFolder(folder));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(NameFiltersOf(filter));
    dialog.selectFile(pictures::ToQt(name));
}

// The path that the user chose, empty when he did not.
std::string RunFileDialog(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return pictures::FromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

} // namespace

void CompleteByFilter(QFileDialog& dialog, QString const& otherwise) {
    auto const complete = [&dialog, otherwise] {
        QString const ending = EndingOf(dialog.selectedNameFilter());
        dialog.setDefaultSuffix(ending.isEmpty() ? otherwise : ending);
    };
    complete();
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, complete);
}

std::string AskForFile(QWidget& window, FileQuestion const& question) {
    QFileDialog dialog(TopmostOf(window));
    dialog.setObjectName(QStringLiteral("OpenFileDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    StartAt(dialog, question.Folder, question.Filter, question.Name);
    return RunFileDialog(dialog);
}

std::string AskWhereToSave(QWidget& window, SaveQuestion const& question) {
    QFileDialog dialog(TopmostOf(window), pictures::ToQt(question.Title));
    dialog.setObjectName(QStringLiteral("SaveFileDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // Qt's own question takes markup in a name as such
    StartAt(dialog, question.Folder, question.Filter, question.Name);
    CompleteByFilter(dialog, pictures::ToQt(question.Ending));
    return RunFileDialog(dialog);
}

} // namespace quorvex::platform::qt
