// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"
#include "platform/Profile.h"
#include "prefs/basPreferences.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <QDialog>
#include <memory>

class QComboBox;

namespace Ui {
class frmPreferences;
}

namespace quorvex::prefs::ui {

// Edits the settings and narrows the days that are analysed. File > Exit takes its texts over for this run,
// and only Save Settings writes them to the INI file. Closed by other means, the window changes no setting
// but what was chosen as chart type or data source, which counts at once.
class frmPreferences final : public QDialog {
    Q_OBJECT

public:
    // All must outlive the window.
    frmPreferences(QWidget* parent, settings::Settings& settings, quotes::QuoteSeries& series,
                   platform::Profile& profile, platform::Dialogs& dialogs);
    ~frmPreferences() override;

    // Shows the window and waits until it is closed.
    void RunModal();

private:
    void AddMenu();
    void ConnectLists();
    void ShowFields();
    void ShowDateRange();
    void ReadBoxes();
    void ChooseDateRange();

    settings::Settings& settings_;
    quotes::QuoteSeries& series_;
    platform::Profile& profile_;
    platform::Dialogs& dialogs_;
    PreferencesFields fields_;
    std::unique_ptr<Ui::frmPreferences> ui_;
};

} // namespace quorvex::prefs::ui
