// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The least program with such a window, which the start of the real one is compared with: the same menus and
// as many line edits as the grid has, in rows above one white area.

#include "UseWindow.h"
#include "app/MenuTable.h"

#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <map>
#include <string_view>

namespace quorvex::bench {

namespace {

QString TextOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void AddMenus(QMenuBar& bar) {
    bar.setNativeMenuBar(false);
    std::map<std::string_view, QMenu*> menus;
    for (app::MenuRow const& row : app::MenuTable()) {
        QMenu* const parent = menus[row.Parent];
        if (row.Caption == app::SeparatorCaption) {
            parent->addSeparator();
        } else if (row.Run != nullptr) {
            parent == nullptr ? bar.addAction(TextOf(row.Caption)) : parent->addAction(TextOf(row.Caption));
        } else {
            menus[row.Name] =
                parent == nullptr ? bar.addMenu(TextOf(row.Caption)) : parent->addMenu(TextOf(row.Caption));
        }
    }
}

void AddLineEdits(QWidget& client) {
    constexpr int Edits = 54;
    constexpr int Columns = 11;
    auto* grid = new QGridLayout(&client);
    for (int index = 0; index < Edits; ++index) {
        grid->addWidget(new QLineEdit, index / Columns, index % Columns);
    }
    grid->setRowStretch(Edits / Columns + 1, 1);
}

} // namespace

void UseWindow(QWidget&) {}

} // namespace quorvex::bench

int main(int argc, char** argv) {
    QApplication const application(argc, argv);
    QMainWindow window;
    quorvex::bench::AddMenus(*window.menuBar());
    auto* client = new QWidget;
    quorvex::bench::AddLineEdits(*client);
    window.setCentralWidget(client);
    window.resize(1100, 800); // as large as the program's
    window.show();
    return QApplication::exec();
}
