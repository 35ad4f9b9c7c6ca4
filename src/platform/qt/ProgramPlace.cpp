// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/ProgramPlace.h"

#include "platform/qt/QtTexts.h"
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
    QTemporaryFile file(folder + QStringLiteral("/.quorvex-XXXXXX.tmp"));
    return file.open();
}

std::string FolderText(QString const& folder) {
    return text::EndWithSeparator(FromQt(QDir::toNativeSeparators(folder)));
}

} // namespace

ProgramPlace FindProgramPlace() {
    QString const dataFolder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return PlaceOf(FromQt(QCoreApplication::applicationFilePath()),
                   FromQt(dataFolder + QStringLiteral("/Quorvex")));
}

ProgramPlace PlaceOf(std::string const& executablePath, std::string const& ownFolder) {
    QFileInfo const executable(ToQt(executablePath));
    ProgramPlace place;
    place.ExecutableName = FromQt(executable.completeBaseName());
    if (CanBeWritten(executable.absolutePath())) {
        place.Folder = FolderText(executable.absolutePath());
        return place;
    }
    QDir const own(ToQt(ownFolder));
    place.IsNew = !own.exists();
    if (place.IsNew && !own.mkpath(QStringLiteral("."))) {
        throw text::RunTimeError(text::Fault::PathNotFound);
    }
    place.Folder = FolderText(own.absolutePath());
    return place;
}

void EnterFolder(std::string const& folder) {
    QDir::setCurrent(ToQt(folder));
}

} // namespace quorvex::platform::qt
