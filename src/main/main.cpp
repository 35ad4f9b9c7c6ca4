// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The window of Quorvex.

#include "app/Program.h"
#include "app/ui/basResources.h"
#include "app/ui/frmMain.h"
#include "platform/Registry.h"
#include "platform/basMessages.h"
#include "platform/disk/DiskFiles.h"
#include "platform/qt/CarriedImage.h"
#include "platform/qt/ProgramPlace.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtLauncher.h"
#include "platform/qt/QtMousePointer.h"
#include "platform/qt/QtPrintQueue.h"
#include "settings/basProfiles.h"
#ifdef _WIN32
#include "platform/windows/WindowsProfile.h"
#include "platform/windows/WindowsRegistry.h"
#else
#include "platform/disk/DiskProfile.h"
#endif

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <memory>

#ifdef _WIN32
using HostProfile = quorvex::platform::windows::WindowsProfile;
using HostRegistry = quorvex::platform::windows::WindowsRegistry;
#else
using HostProfile = quorvex::platform::disk::DiskProfile;
using HostRegistry = quorvex::platform::NoRegistry;
#endif

int main(int argc, char** argv) {
    namespace qt = quorvex::platform::qt;
    QApplication application(argc, argv);
    quorvex::app::ui::LoadResources();
    QApplication::setApplicationName(QStringLiteral("Quorvex"));
    QApplication::setWindowIcon(qt::CarriedImage(QStringLiteral("Quorvex")));
    qt::SetProgramFont();

    quorvex::platform::disk::DiskFiles files;
    qt::QtLauncher launcher;
    HostRegistry const registry;
    auto const program = std::make_unique<quorvex::app::Program>();
    qt::ProgramPlace place = qt::ExecutablePlace();
    QWidget desktop;
    QWidget* front = &desktop; // what messages stand over as long as there is no window
    qt::RunGuarded(desktop, [&] {
        place = qt::FindProgramPlace(
            [&](std::string const& folder) { quorvex::app::ui::FillProgramFolder(folder, files); });
        files.EnterFolder(place.Folder);
    });

    HostProfile profile(quorvex::settings::ProfileFileName(place.Folder, place.ExecutableName), files);
    qt::QtPrintQueue printing([&] { return program->Settings.DataPath; },
                              [&](auto const& message) { qt::ShowMessageBox(*front, message); });
    qt::QtMousePointer pointer;
    quorvex::app::ui::frmMain window(*program, place.Folder,
                                     {profile, files, launcher, registry, printing, pointer});
    front = &window;
    window.show();
    return QApplication::exec();
}
