// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/layout/basLayout.h"
#include "cycles/ParameterGrid.h"

#include <QFrame>
#include <QLineEdit>
#include <array>

namespace quorvex::app::ui {

// The parameter grid of the main window: the control arrays Text0 (headers) and Text1 to Text4 with their row
// captions in front, on Frame1, with the outline Shape1 over them. Up, Down and Enter move between rows.
class GridPanel final : public QObject, public cycles::ParameterGrid {
    Q_OBJECT

public:
    explicit GridPanel(QWidget& client);

    void Place(layout::GridLayout const& layout);

    [[nodiscard]] std::string Text(cycles::Parameter parameter, int cycle) const override;
    void SetText(cycles::Parameter parameter, int cycle, std::string_view text) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Slot 0 holds the caption of the row.
    using Row = text::SlotArray<QLineEdit*, cycles::CycleCount>;

    [[nodiscard]] QLineEdit& CellOf(cycles::Parameter parameter, int cycle) const;
    bool MoveFocus(QObject const& from, int rows);

    QFrame* frame1_;
    // What no cell covers: above the row captions, and right of the last cycle.
    QWidget* corner_;
    QWidget* rest_;
    QFrame* shape1_;
    std::array<Row, layout::GridRows> rows_{};
};

} // namespace quorvex::app::ui
