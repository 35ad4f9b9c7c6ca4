// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Program.h"
#include "platform/Files.h"
#include "random/Journal.h"

#include <QAbstractItemView>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace quorvex::tests {

// What the quote editor must show: the days that were read when it comes up, and the rows of the file behind
// a save, as long as its status line tells of it.
class ExpectedEditor {
public:
    // All must outlive the object.
    ExpectedEditor(Journal& journal, app::Program const& program, platform::Files const& files)
        : journal_(journal),
          program_(program),
          files_(files) {}

    // Between two actions; the window is nullptr when there is none.
    void Check(QWidget const* window);

    // Behind Undo and Redo, which must lead back.
    void CheckRedone(QStringList const& before, QStringList const& after);

    // Behind the text having been typed into the cell.
    void CheckTyped(QModelIndex const& cell, QString const& text);

private:
    void CheckOpened(QAbstractItemView const& grid);
    void CheckSaved(QAbstractItemView const& grid, QString const& path);

    Journal& journal_;
    app::Program const& program_;
    platform::Files const& files_;
    bool isOpen_ = false;
};

[[nodiscard]] QAbstractItemView* GridOf(QWidget const& editor);

// All rows, a line each.
[[nodiscard]] QStringList RowsOf(QAbstractItemView const& grid);

} // namespace quorvex::tests
