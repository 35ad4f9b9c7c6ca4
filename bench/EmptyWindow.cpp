// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The least program with a window, which the start of the real one is compared with.

#include "UseWindow.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication const application(argc, argv);
    QMainWindow window;
    window.resize(1100, 800); // as large as the program's
    window.show();
    return QApplication::exec();
}

namespace quorvex::bench {

void UseWindow(QWidget&) {}

} // namespace quorvex::bench
