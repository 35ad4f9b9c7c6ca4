// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/ui/TablePreview.h"

#include <QComboBox>
#include <QTableView>
#include <vector>

namespace quorvex::imports::ui {

// A strip above the preview with a box over each column that says what it is, named cboRole_1, cboRole_2 and
// so on. The boxes go along with the columns; one that gets the focus comes into view. They are no children
// of the table: what a table has besides cells is not there for screen readers.
class RoleBoxes final : public QWidget {
    Q_OBJECT

public:
    explicit RoleBoxes(QWidget* parent);

    // REQUIRES: once, before anything else. The table must outlive the boxes, and has a model.
    void Follow(QTableView& table);

    // Gives the boxes the columns of the model and their roles.
    void ShowRoles(TablePreview const& preview);

    // Makes the columns wide enough for the boxes and, within limits, for what stands in them.
    void FitColumns();

    [[nodiscard]] std::vector<QComboBox*> const& Boxes() const { return boxes_; }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    // The user gave the column another role, which is one of RoleChoices.
    void RoleChosen(int column, int choice);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddBox();
    void PlaceBoxes();

    QTableView* table_ = nullptr;
    QWidget* strip_; // as wide as the columns that can be seen
    std::vector<QComboBox*> boxes_;
};

} // namespace quorvex::imports::ui
