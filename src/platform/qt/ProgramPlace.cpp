// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/ProgramPlace.h"

#include "platform/pictures/QtTexts.h"
#include "text/RunTimeError.h"
#include "text/basFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace quorvex::platform::qt {

namespace {

// Permissions alone do not tell on every system; a file does.
bool CanBeWritten(QString const& folder) {
    QTemporaryFile file(folder + QStringLiteral("/.quorvex-probe"));
    return file.open();
}

// What is installed beside the folder of the programs alone.
bool IsOfInstallation(QString const& folder) {
    return QFileInfo::exists(folder + QStringLiteral("/../share/applications/Quorvex.desktop"));
}

std::string FolderText(QString const& folder) {
    return text::EndWithSeparator(pictures::FromQt(QDir::toNativeSeparators(folder)));
}

ProgramPlace PlaceOf(QFileInfo const& executable) {
    bool const hasExtension = executable.suffix().compare(QStringLiteral("exe"), Qt::CaseInsensitive) == 0;
    return {FolderText(executable.absolutePath()),
            pictures::FromQt(hasExtension ? executable.completeBaseName() : executable.fileName())};
}

void Require(bool isDone) {
    if (!isDone) {
        throw text::RunTimeError(text::Fault::PathNotFound);
    }
}

// Under another name until it is complete, so that a start that fails half-way is no first start.
void MakeFolder(QString const& folder, FillFolder const& fill) {
    QDir staged(folder + QStringLiteral(".new"));
    Require(!staged.exists() || staged.removeRecursively());
    Require(staged.mkpath(QStringLiteral(".")));
    fill(FolderText(staged.absolutePath()));
    Require(QDir().rename(staged.absolutePath(), folder));
}

} // namespace

ProgramPlace ExecutablePlace() {
    return PlaceOf(QFileInfo(QCoreApplication::applicationFilePath()));
}

ProgramPlace FindProgramPlace(FillFolder const& fill) {
    QString const dataFolder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return PlaceOf(pictures::FromQt(QCoreApplication::applicationFilePath()),
                   pictures::FromQt(dataFolder + QStringLiteral("/Quorvex")), fill);
}

ProgramPlace PlaceOf(std::string const& executablePath, std::string const& ownFolder,
                     FillFolder const& fill) {
    QFileInfo const executable(pictures::ToQt(executablePath));
    ProgramPlace place = PlaceOf(executable);
    QString const folder = executable.absolutePath();
    if (IsOfInstallation(folder) || !CanBeWritten(folder)) {
        QDir const own(pictures::ToQt(ownFolder));
        if (!own.exists()) {
            MakeFolder(own.absolutePath(), fill);
        }
        place.Folder = FolderText(own.absolutePath());
    }
    return place;
}

} // namespace quorvex::platform::qt
