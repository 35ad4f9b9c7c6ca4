// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/RunningWindow.h"

#include "app/ui/basResources.h"
#include "support/Golden.h"

#include <QTest>
#include <stdexcept>

namespace quorvex::tests {

namespace {

// A control that is missing ends the test program: there is nothing to go on with.
template <class Control>
Control& Find(QObject const& window, QString const& name) {
    auto* control = window.findChild<Control*>(name);
    if (control == nullptr) {
        throw std::logic_error("There is no control " + name.toStdString());
    }
    return *control;
}

} // namespace

RunningWindow::RunningWindow() {
    app::ui::LoadResources();
    Window = std::make_unique<app::ui::frmMain>(
        *Data, Folder.Text(), app::Host{Profile, Files, Launcher, Registry, Printing, Printing});
    Window->show();
    Window->activateWindow();
    if (!QTest::qWaitForWindowActive(Window.get())) {
        throw std::logic_error("The main window does not come up");
    }
}

void RunningWindow::OpenQuotes(std::string const& name) {
    OpenQuotes(name, GoldenFile("quotes/" + name));
}

void RunningWindow::OpenQuotes(std::string const& name, std::string const& content) {
    Folder.Write(name, content);
    Answers.Choose(QString::fromStdString(name));
    Choose("mnuFileOpen");
    static_cast<void>(Answers.TakeShown());
}

void RunningWindow::Choose(char const* menuItem) const {
    Item(QString::fromLatin1(menuItem)).trigger();
    QCoreApplication::processEvents();
}

QAction& RunningWindow::Item(QString const& name) const {
    return Find<QAction>(*Window, name);
}

QLineEdit& RunningWindow::Cell(int row, int cycle) const {
    return Find<QLineEdit>(*Window, QStringLiteral("Text%1_%2").arg(row).arg(cycle));
}

void RunningWindow::TypeInto(int row, int cycle, QString const& text) const {
    QLineEdit& cell = Cell(row, cycle);
    cell.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&cell, text);
}

QString RunningWindow::RowTexts(int row) const {
    QStringList texts;
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        texts.append(Cell(row, cycle).text());
    }
    return texts.join(u' ');
}

platform::qt::PictureBox& RunningWindow::Box(int number) const {
    return Find<platform::qt::PictureBox>(*Window, QStringLiteral("Pic%1").arg(number));
}

} // namespace quorvex::tests
