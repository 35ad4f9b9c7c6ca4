// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "auxiliary/basProperties.h"
#include "platform/Dialogs.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <QDialog>
#include <memory>
#include <vector>

namespace Ui {
class frmProperties;
}

namespace quorvex::auxiliary::ui {

// The summary of the quotes that are analysed, read anew whenever the window is activated.
class frmProperties final : public QDialog {
    Q_OBJECT

public:
    // All must outlive the window.
    frmProperties(QWidget* parent, quotes::QuoteSeries const& series, settings::Settings const& settings,
                  platform::Dialogs& dialogs);
    ~frmProperties() override;

    // Shows the window and waits until it is closed.
    void RunModal();

protected:
    bool event(QEvent* event) override;

private:
    void ShowFigures();

    quotes::QuoteSeries const& series_;
    settings::Settings const& settings_;
    platform::Dialogs& dialogs_;
    std::vector<PropertyCaption> shown_;
    bool isFaultShown_ = false;
    std::unique_ptr<Ui::frmProperties> ui_;
};

} // namespace quorvex::auxiliary::ui
