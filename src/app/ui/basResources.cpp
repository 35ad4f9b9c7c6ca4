// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/basResources.h"

#include "platform/pictures/QtTexts.h"

#include <QDir>
#include <QFile>

// Outside of every namespace, as the resource compiler wants it.
static void InitialiseResources() {
    Q_INIT_RESOURCE(Images);
    Q_INIT_RESOURCE(Quorvex);
}

namespace quorvex::app::ui {

void LoadResources() {
    InitialiseResources();
}

void FillProgramFolder(std::string const& folder, platform::Files& files) {
    for (QDir const carried : {QStringLiteral(":/samples"), QStringLiteral(":/help")}) {
        for (QString const& name : carried.entryList(QDir::Files)) {
            QFile file(carried.filePath(name));
            file.open(QIODevice::ReadOnly); // it is a part of the executable
            files.Overwrite(folder + platform::pictures::FromQt(name), file.readAll().toStdString());
        }
    }
}

} // namespace quorvex::app::ui
