// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/QtLauncher.h"

#include "platform/pictures/QtTexts.h"

#include <QProcess>
#include <QStandardPaths>
#include <vector>

namespace quorvex::platform::qt {

namespace {

struct ProgramCall {
    QString Program;
    QStringList Arguments;
};

// What stands for the program on this system, the best first.
std::vector<ProgramCall> CallsOf(std::string_view program) {
#if defined(Q_OS_WIN)
    return {{pictures::ToQt(program), {}}};
#elif defined(Q_OS_MACOS)
    if (program == ControlPanel) {
        return {{QStringLiteral("open"),
                 {QStringLiteral("x-apple.systempreferences:com.apple.Print-Scan-Settings.extension")}}};
    }
#else
    if (program == ControlPanel) {
        return {{QStringLiteral("gnome-control-center"), {QStringLiteral("printers")}},
                {QStringLiteral("systemsettings"), {QStringLiteral("kcm_printer_manager")}},
                {QStringLiteral("systemsettings5"), {QStringLiteral("kcm_printer_manager")}},
                {QStringLiteral("system-config-printer"), {}}};
    }
#endif
    return {{pictures::ToQt(program), {}}};
}

} // namespace

void QtLauncher::Start(std::string_view program) {
    for (ProgramCall const& call : CallsOf(program)) {
        QString const path = QStandardPaths::findExecutable(call.Program);
        if (!path.isEmpty() && QProcess::startDetached(path, call.Arguments)) {
            return;
        }
    }
    throw text::RunTimeError(text::Fault::FileNotFound);
}

} // namespace quorvex::platform::qt
