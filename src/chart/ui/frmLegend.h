// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmLegend;
}

namespace quorvex::chart::ui {

// Names the curves of the four charts beside samples in their colours.
class frmLegend final : public QDialog {
    Q_OBJECT

public:
    explicit frmLegend(QWidget* parent);
    ~frmLegend() override;

    // Shows the window and waits until it is closed.
    void RunModal();

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<Ui::frmLegend> ui_;
};

} // namespace quorvex::chart::ui
