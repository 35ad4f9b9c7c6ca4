// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "prefs/ui/frmPreferences.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/WindowMenu.h"
#include "ui_frmPreferences.h"

#include <QLineEdit>

namespace quorvex::prefs::ui {

namespace {

using platform::pictures::FromQt;
using platform::pictures::ToQt;

void ShowText(QComboBox& list, std::string const& text) {
    list.setCurrentIndex(list.findText(ToQt(text))); // where arrow keys and wheel go on from
    list.setEditText(ToQt(text));
}

template <class Texts>
void Fill(QComboBox& list, Texts const& offered, std::string const& text) {
    list.clear();
    for (auto const& offer : offered) {
        list.addItem(ToQt(offer));
    }
    ShowText(list, text);
}

} // namespace

frmPreferences::frmPreferences(QWidget* parent, settings::Settings& settings, quotes::QuoteSeries& series,
                               platform::Profile& profile, platform::Dialogs& dialogs)
    : QDialog(parent),
      settings_(settings),
      series_(series),
      profile_(profile),
      dialogs_(dialogs),
      ui_(std::make_unique<Ui::frmPreferences>()) {
    ui_->setupUi(this);
    for (QComboBox* list : findChildren<QComboBox*>()) {
        list->lineEdit()->setAccessibleName(list->accessibleName()); // it is what has the focus
    }
    AddMenu();
    ConnectLists();
}

frmPreferences::~frmPreferences() = default;

void frmPreferences::AddMenu() {
    platform::qt::WindowMenu menu(*this);
    menu.Menu("mnuFile", "&File")
        .Item("mnuFileSave", "&Save Settings",
              [this] {
                  ReadBoxes();
                  SaveSettings(fields_, settings_, profile_, dialogs_);
              })
        .Item("mnuFileRestore", "&Restore Defaults",
              [this] {
                  ReadBoxes();
                  RestoreDefaults(fields_, series_);
                  ShowFields();
              })
        .Separator()
        .Item("mnuFileExit", "E&xit", [this] {
            ReadBoxes();
            ExitPreferences(fields_, settings_);
            accept();
        });
    layout()->setMenuBar(&menu.Bar());
}

void frmPreferences::ConnectLists() {
    connect(ui_->cboChartType, &QComboBox::activated, this, [this] {
        ReadBoxes();
        ChooseChartType(fields_, settings_);
    });
    connect(ui_->cboDataSource, &QComboBox::activated, this, [this] {
        ReadBoxes();
        ChooseDataSource(fields_, settings_);
    });
    connect(ui_->cboStartDate, &QComboBox::activated, this, [this] { ChooseDateRange(); });
    connect(ui_->cboEndDate, &QComboBox::activated, this, [this] { ChooseDateRange(); });
}

void frmPreferences::RunModal() {
    fields_ = OpenPreferences(settings_, series_);
    ShowFields();
    adjustSize(); // the dates that are offered may be wider than the last time
    platform::qt::CentreForm(*this);
    ui_->cboDataSource->setFocus();
    exec();
}

void frmPreferences::ShowFields() {
    for (settings::SettingRow const& row : settings::SettingTable()) {
        if (auto* list = findChild<QComboBox*>(QStringLiteral("cbo") + ToQt(row.Key))) {
            Fill(*list, row.Offered, fields_.Boxes.*row.Member);
        }
    }
    ui_->txtDataPath->setText(ToQt(fields_.Boxes.DataPath));
    Fill(*ui_->cboStartDate, fields_.QuoteDates, fields_.Range.Start);
    Fill(*ui_->cboEndDate, fields_.QuoteDates, fields_.Range.End);
    ShowDateRange();
}

void frmPreferences::ShowDateRange() {
    ShowText(*ui_->cboStartDate, fields_.Range.Start);
    ShowText(*ui_->cboEndDate, fields_.Range.End);
    ui_->txtNumQuotes->setText(ToQt(fields_.ShownNumQuotes));
    ui_->lblNumQuotes->setText(ToQt(fields_.WholeNumQuotes));
}

void frmPreferences::ReadBoxes() {
    for (settings::SettingRow const& row : settings::SettingTable()) {
        if (auto const* list = findChild<QComboBox*>(QStringLiteral("cbo") + ToQt(row.Key))) {
            fields_.Boxes.*row.Member = FromQt(list->currentText());
        }
    }
    fields_.Boxes.DataPath = FromQt(ui_->txtDataPath->text());
    fields_.Range = {FromQt(ui_->cboStartDate->currentText()), FromQt(ui_->cboEndDate->currentText())};
}

void frmPreferences::ChooseDateRange() {
    ReadBoxes();
    platform::qt::RunGuarded(*this, [this] { prefs::ChooseDateRange(fields_, series_); });
    ShowDateRange();
}

} // namespace quorvex::prefs::ui
