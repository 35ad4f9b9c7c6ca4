// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/ui/frmAbout.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/CarriedImage.h"
#include "platform/qt/QtDialogs.h"
#include "ui_frmAbout.h"

#include <QIcon>
#include <utility>

namespace quorvex::auxiliary::ui {

frmAbout::frmAbout(QWidget* parent, std::string_view version, std::function<void()> startSysInfo)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmAbout>()) {
    constexpr int IconSize = 64;
    ui_->setupUi(this);
    ui_->picIcon->setPixmap(platform::qt::CarriedImage(QStringLiteral("Quorvex"))
                                .pixmap(QSize(IconSize, IconSize), devicePixelRatioF()));
    ui_->lblTitle->setText(QStringLiteral("Quorvex"));
    ui_->lblVersion->setText(QStringLiteral("Version ") + platform::pictures::ToQt(version));
    ui_->lblDisclaimer->setText(QStringLiteral(
        "Quorvex is free software under the MIT licence and comes without warranty of any kind. "
        "Its cycles and forecasts describe past prices; they are no advice to buy or to sell. "
        "Trading commodity futures can lose more than what was paid in."));
    connect(ui_->cmdSysInfo, &QPushButton::clicked, this, [start = std::move(startSysInfo)] { start(); });
}

frmAbout::~frmAbout() = default;

void frmAbout::RunModal() {
    platform::qt::CentreForm(*this);
    exec();
}

} // namespace quorvex::auxiliary::ui
