// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Sheet.h"

#include <QAbstractTableModel>

namespace quorvex::editor::ui {

// Shows a sheet in Qt's views. Whoever changes the sheet by other ways than this model tells it so; until
// then it keeps to the rows that it has shown.
class SpreadModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    // The sheet must outlive the model.
    explicit SpreadModel(Sheet& sheet) : sheet_(sheet) {}

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;

    // Makes the views show rows, texts and colours anew.
    void ShowSheet();

    // The rows alone.
    void ShowRows();

Q_SIGNALS:
    // A view has put a text into a cell.
    void Typed();

private:
    [[nodiscard]] Cell const& CellAt(QModelIndex const& index) const;

    Sheet& sheet_;
    int rows_ = 0; // that the views know of
};

} // namespace quorvex::editor::ui
