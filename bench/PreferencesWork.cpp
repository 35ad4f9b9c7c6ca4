// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "PreferencesWork.h"

#include "GeneratedQuotes.h"
#include "ShownDialog.h"
#include "platform/disk/DiskFiles.h"
#include "prefs/ui/frmPreferences.h"
#include "quotes/basDisk.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>

namespace quorvex::bench {

PreferencesWork::PreferencesWork()
    : file_(GeneratedQuoteText()),
      settings_(settings::DefaultSettings(file_.Folder())) {
    series_->QuoteFileName = TemporaryQuoteFile::Name;
    platform::disk::DiskFiles const files;
    quotes::LoadQuoteFile(*series_, settings_, files, dialogs_);
    prefs::ui::frmPreferences window(nullptr, settings_, *series_, profile_, dialogs_);
    CloseWhenShown(window, [&] {
        for (QComboBox const* list : window.findChildren<QComboBox*>()) {
            QStringList& items = lists_.emplaceBack();
            for (int item = 0; item < list->count(); ++item) {
                items.append(list->itemText(item));
            }
        }
    });
    window.RunModal();
}

void PreferencesWork::OpenPreferences() {
    prefs::ui::frmPreferences window(nullptr, settings_, *series_, profile_, dialogs_);
    CloseWhenShown(window);
    window.RunModal();
}

void PreferencesWork::OpenLists() const {
    QDialog dialog;
    auto* form = new QFormLayout(&dialog);
    for (QStringList const& items : lists_) {
        auto* list = new QComboBox;
        list->setEditable(true);
        list->addItems(items);
        form->addRow(QStringLiteral("List"), list);
    }
    form->addRow(QStringLiteral("Folder"), new QLineEdit);
    form->addRow(QStringLiteral("Count"), new QLineEdit);
    CloseWhenShown(dialog);
    dialog.exec();
}

} // namespace quorvex::bench
