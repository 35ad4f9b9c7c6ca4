// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/HostileLocale.h"

#include <QApplication>
#include <QObject>
#include <QTest>
#include <map>
#include <string>

namespace quorvex::tests {

// Of names of files, what Qt would take for markup and for its mark of changes. Windows forbids "<", ">" and
// "*" in names. The entity is markup to Qt as well; of the mark the brackets are left, which mean nothing.
#ifdef Q_OS_WIN
inline constexpr char const* MarkupInName = "&lt;b";
inline constexpr char const* ChangesInName = "[]";
#else
inline constexpr char const* MarkupInName = "<b>";
inline constexpr char const* ChangesInName = "[*]";
#endif

// What every test of windows has in common: a warning of Qt fails the function during which it comes. Each
// function builds its own window.
class WindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
};

// Brings the application to the state in which the program shows windows.
void PrepareApplication();

// Runs the functions of one class, under an application of their own. A class with a ScaleFactor has a screen
// with so many pixels, across and down, to a logical one; Wine passes on no variable of this name from
// outside.
template <class Test>
int RunWindowTest(int argc, char** argv) {
    EnterHostileLocale();
    if constexpr (requires { Test::ScaleFactor; }) {
        qputenv("QT_SCALE_FACTOR", Test::ScaleFactor);
    }
    QApplication const application(argc, argv);
    PrepareApplication();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

using WindowTestRun = int (*)(int argc, char** argv);

// The classes of tests of this program by name.
[[nodiscard]] std::map<std::string, WindowTestRun>& ListedWindowTests();

// To be instantiated for each class of tests: lists it under its name without namespaces. The first argument
// of the program is the one that runs.
template <class Test>
struct ListedWindowTest {
    static inline bool const IsListed = [] {
        std::string const name = Test::staticMetaObject.className();
        return ListedWindowTests().emplace(name.substr(name.rfind(':') + 1), &RunWindowTest<Test>).second;
    }();
};

} // namespace quorvex::tests
