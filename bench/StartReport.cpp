// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Linked with a main routine that knows nothing of it: when the window is painted and nothing is left to do,
// notes the time, uses the window, and ends the process with a report on standard output: the time, in
// nanoseconds of the steady clock, and the most memory that the process ever had, in kilobytes, or 0.

#include "UseWindow.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>

namespace quorvex::bench {

namespace {

// Linux alone tells it in this way.
std::uint64_t PeakKilobytes() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (std::uint64_t kilobytes = 0; word == "VmHWM:" && status >> kilobytes) {
            return kilobytes;
        }
    }
    return 0;
}

QWidget& ShownWindow() {
    QWidgetList const windows = QApplication::topLevelWidgets();
    return **std::find_if(windows.begin(), windows.end(),
                          [](QWidget* window) { return window->isVisible(); });
}

class StartReport final : public QObject {
public:
    StartReport() : QObject(QCoreApplication::instance()) {
        idle_.setInterval(0); // fires when no event is left
        idle_.setSingleShot(true);
        idle_.callOnTimeout([this] { Finish(); });
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            idle_.start(); // again, when more is painted
        }
        return false;
    }

private:
    void Finish() {
        QCoreApplication::instance()->removeEventFilter(this);
        auto const painted = std::chrono::steady_clock::now().time_since_epoch();
        UseWindow(ShownWindow());
        std::cout << std::chrono::nanoseconds(painted).count() << ' ' << PeakKilobytes() << std::endl;
        QCoreApplication::exit();
    }

    QTimer idle_;
};

void WatchStart() {
    QCoreApplication::instance()->installEventFilter(new StartReport); // belongs to the application
}

// Runs in the application's constructor.
Q_COREAPP_STARTUP_FUNCTION(WatchStart)

} // namespace

} // namespace quorvex::bench
