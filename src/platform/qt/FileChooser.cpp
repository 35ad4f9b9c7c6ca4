// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/FileChooser.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
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
    return ui_->lstFiles->currentItem()->data(Qt::UserRole).toByteArray().toStdString();
}

void FileChooser::ListNames(std::span<std::string const> names) {
    ui_->lstFiles->clear();
    for (std::string const& name : names) {
        auto* item = new QListWidgetItem(pictures::ToQt(name), ui_->lstFiles);
        // A name that is no good Unicode comes back as the bytes that it is.
        item->setData(Qt::UserRole, QByteArray::fromStdString(name));
    }
    // Set to none: left alone, the list would choose its first name when it gets the focus.
    ui_->lstFiles->setCurrentIndex(QModelIndex());
    ShowChosenName();
}

void FileChooser::ShowChosenName() {
    QListWidgetItem const* item = ui_->lstFiles->currentItem();
    ui_->lblFileName->setText(item == nullptr ? QString() : item->text());
    ui_->buttons->button(QDialogButtonBox::Ok)->setEnabled(item != nullptr);
}

} // namespace quorvex::platform::qt
