// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/ui/frmProperties.h"

#include "auxiliary/basProperties.h"
#include "platform/basMessages.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "ui_frmProperties.h"

#include <QEvent>
#include <utility>

namespace quorvex::auxiliary::ui {

frmProperties::frmProperties(QWidget* parent, quotes::QuoteSeries const& series,
                             settings::Settings const& settings, platform::Dialogs& dialogs)
    : QDialog(parent),
      series_(series),
      settings_(settings),
      dialogs_(dialogs),
      ui_(std::make_unique<Ui::frmProperties>()) {
    ui_->setupUi(this);
}

frmProperties::~frmProperties() = default;

void frmProperties::RunModal() {
    isFaultShown_ = false;
    platform::qt::CentreForm(*this);
    exec();
}

bool frmProperties::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        platform::qt::RunGuarded(*this, [this] { ShowFigures(); });
    }
    return QDialog::event(event);
}

void frmProperties::ShowFigures() {
    std::vector<PropertyCaption> captions;
    auto const fault = text::Trap([&] { captions = DescribeQuotes(series_, settings_.CurrencyFormat); });
    if (fault) {
        for (PropertyCaption& caption : shown_) {
            caption.Caption.clear(); // those of other quotes
        }
    } else {
        shown_ = std::move(captions);
    }
    for (PropertyCaption const& caption : shown_) {
        findChild<QLabel*>(platform::pictures::ToQt(caption.Label))
            ->setText(platform::pictures::ToQt(caption.Caption));
    }
    // Closing the message activates this window once more: once is enough.
    if (fault && !std::exchange(isFaultShown_, true)) {
        platform::ShowError(dialogs_, *fault);
    }
}

} // namespace quorvex::auxiliary::ui
