// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/WindowTest.h"

#include "platform/qt/QtDialogs.h"

#include <QRegularExpression>

namespace quorvex::tests {

void WindowTest::init() {
    // The offscreen platform tells what it cannot do, which says nothing about the windows.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
}

void PrepareApplication() {
    QApplication::setApplicationName(QStringLiteral("Quorvex"));
    // The dialogs of a desktop are other processes, which no test can drive.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    platform::qt::SetProgramFont();
}

std::map<std::string, WindowTestRun>& ListedWindowTests() {
    static std::map<std::string, WindowTestRun> tests;
    return tests;
}

} // namespace quorvex::tests
