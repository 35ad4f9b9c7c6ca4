// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/FileChooser.h"

#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtTexts.h"
#include "ui_FileChooser.h"

#include <QPushButton>

namespace quorvex::platform::qt {

FileChooser::FileChooser(QWidget* parent, QString const& name, QString const& title)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FileChooser>()) {
    ui_->setupUi(this);
    setObjectName(name);
    setWindowTitle(title);
    ui_->buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    ui_->buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(ui_->lstFiles, &QListWidget::currentRowChanged, this, [this] { ShowChosenName(); });
    connect(ui_->lstFiles, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
}

FileChooser::~FileChooser() = default;

std::optional<std::string> FileChooser::Choose(std::span<std::string const> names) {
    ListNames(names);
    CentreForm(*this);
    ui_->lstFiles->setFocus();
    if (exec() != Accepted) {
        return std::nullopt;
    }
    // By its row: a name that is no good Unicode comes back as the bytes that it is.
    return names[static_cast<std::size_t>(ui_->lstFiles->currentRow())];
}

void FileChooser::ListNames(std::span<std::string const> names) {
    ui_->lstFiles->clear();
    for (std::string const& name : names) {
        ui_->lstFiles->addItem(ToQt(name));
    }
    // Set to none: left alone, the list would choose its first name when it gets the focus.
    ui_->lstFiles->setCurrentIndex(QModelIndex());
    ShowChosenName();
}

void FileChooser::ShowChosenName() {
    QListWidgetItem const* item = ui_->lstFiles->currentItem();
    ui_->lblFileName->setText(item == nullptr ? QString() : item->text());
    ui_->lblFileName->setToolTip(ui_->lblFileName->text());
    ui_->buttons->button(QDialogButtonBox::Ok)->setEnabled(item != nullptr);
}

} // namespace quorvex::platform::qt
