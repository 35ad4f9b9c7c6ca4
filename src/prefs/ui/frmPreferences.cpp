// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "prefs/ui/frmPreferences.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "ui_frmPreferences.h"

#include <QLineEdit>
#include <QMenuBar>

namespace quorvex::prefs::ui {

namespace {

using platform::pictures::FromQt;
using platform::pictures::ToQt;

template <class Texts>
void Fill(QComboBox& list, Texts const& offered, std::string const& text) {
    list.clear();
    for (auto const& offer : offered) {
        list.addItem(ToQt(offer));
    }
    list.setCurrentIndex(list.findText(ToQt(text))); // where the arrow keys go on from
    list.setEditText(ToQt(text));
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
    auto* bar = new QMenuBar(this);
    bar->setNativeMenuBar(false);
    QMenu* menu = bar->addMenu(QStringLiteral("&File"));
    menu->setObjectName(QStringLiteral("mnuFile"));
    auto const add = [&](char const* name, char const* caption, auto command) {
        QAction* action = menu->addAction(QString::fromLatin1(caption));
        action->setObjectName(QString::fromLatin1(name));
        action->setMenuRole(QAction::NoRole);
        connect(action, &QAction::triggered, this, [this, command] {
            platform::qt::CloseMenus();
            platform::qt::RunGuarded(*this, command);
        });
    };
    add("mnuFileSave", "&Save Settings", [this] {
        ReadBoxes();
        SaveSettings(fields_, settings_, profile_, dialogs_);
    });
    add("mnuFileRestore", "&Restore Defaults", [this] {
        ReadBoxes();
        RestoreDefaults(fields_, series_);
        ShowFields();
    });
    menu->addSeparator();
    add("mnuFileExit", "E&xit", [this] { accept(); });
    layout()->setMenuBar(bar);
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

void frmPreferences::done(int result) {
    ReadBoxes();
    ExitPreferences(fields_, settings_);
    QDialog::done(result);
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
    ui_->cboStartDate->setCurrentText(ToQt(fields_.Range.Start));
    ui_->cboEndDate->setCurrentText(ToQt(fields_.Range.End));
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
