// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/HeadlessApplication.h"

#include <QFont>
#include <QStandardPaths>
#include <array>
#include <iostream>

namespace quorvex::platform::pictures {

namespace {

// A program without windows has no use for the folder that Qt misses here.
void IgnoreMissingRuntimeFolder(QtMsgType type, QMessageLogContext const& context, QString const& text) {
    if (!text.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR"))) {
        std::cerr << qPrintable(qFormatLogMessage(type, context, text)) << '\n';
    }
}

} // namespace

std::unique_ptr<QGuiApplication> StartApplicationWithoutDisplay() {
    if (QCoreApplication::instance() != nullptr) {
        return nullptr;
    }
    qInstallMessageHandler(IgnoreMissingRuntimeFolder);
    qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef Q_OS_WIN
    // There this platform looks for fonts beside Qt alone.
    if (qEnvironmentVariableIsEmpty("QT_QPA_FONTDIR")) {
        qputenv("QT_QPA_FONTDIR",
                QStandardPaths::writableLocation(QStandardPaths::FontsLocation).toLocal8Bit());
    }
#endif
    static int count = 1; // the application keeps references
    static std::array<char, 8> name = {"quorvex"};
    static std::array<char*, 2> arguments = {name.data(), nullptr};
    auto application = std::make_unique<QGuiApplication>(count, arguments.data());
    UseStandInFonts();
    return application;
}

void UseStandInFonts() {
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif"));
}

} // namespace quorvex::platform::pictures
