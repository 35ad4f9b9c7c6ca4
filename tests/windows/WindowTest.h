// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/HostileLocale.h"

#include <QApplication>
#include <QObject>
#include <QTest>

namespace quorvex::tests {

// What every test of windows has in common: a warning of Qt fails the function during which it comes. Each
// function builds its own window.
class WindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
};

// Brings the application to the state in which the program shows windows.
void PrepareApplication();

// The main function of a test program.
template <class Test>
int RunWindowTest(int argc, char** argv) {
    EnterHostileLocale();
    QApplication const application(argc, argv);
    PrepareApplication();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace quorvex::tests
