// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/basConversion.h"
#include "import/ui/TableThread.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QPalette>
#include <cstdint>
#include <map>
#include <memory>
#include <set>

namespace quorvex::imports::ui {

// The columns that are shown of a very wide table.
inline constexpr int MostShownColumns = 100;

// The colour behind a column of this role, on which the palette's text can be read, be it light or dark; that
// of the palette for a column that is not used.
[[nodiscard]] QColor RoleColour(Role role, QPalette const& palette);

// The first rows of a table as they stand there, the columns coloured by their roles, the head bold, and rows
// that are left out struck out, with the reason as tool tip and for screen readers.
class TablePreview final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit TablePreview(QObject* parent) : QAbstractTableModel(parent) {}

    // Shows another table.
    void Show(std::shared_ptr<TableLook const> look);

    // Tells what was left out of it.
    void ShowFindings(Conversion const& conversion);

    // The columns, those that are not shown included.
    [[nodiscard]] int ColumnsInAll() const { return columns_; }

    // The role of a column; those behind the plan's are not used.
    [[nodiscard]] Role RoleOf(int column) const;

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] SampleRow const& RowAt(int row) const;
    [[nodiscard]] QVariant WhyLeftOut(SampleRow const& row) const;
    [[nodiscard]] QVariant DescribeRow(SampleRow const& row) const;
    [[nodiscard]] QVariant LineHeader(SampleRow const& row, int role) const;

    std::shared_ptr<TableLook const> look_;
    int columns_ = 0;
    std::set<std::uint64_t> headLines_;
    std::map<std::uint64_t, QString> leftOut_; // why, by line
};

} // namespace quorvex::imports::ui
