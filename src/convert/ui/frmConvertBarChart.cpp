// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/frmConvertBarChart.h"

#include "platform/pictures/QtTexts.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace quorvex::convert::ui {

namespace {

QRadioButton* MakeButton(BarchartOption const& option, QWidget& frame) {
    auto* button = new QRadioButton(platform::pictures::ToQt(option.Caption), &frame);
    button->setObjectName(QStringLiteral("optFormat_%1").arg(QLatin1Char(option.Letter)));
    button->setAccessibleName(button->text().simplified());
    button->setFont(FixedPitchFont());
    return button;
}

} // namespace

frmConvertBarChart::frmConvertBarChart(QWidget* parent, platform::Files& files, platform::Dialogs& dialogs,
                                       platform::PrintQueue& printing, std::function<void()> showHelp)
    : ConvertWindow(parent, BarchartTexts(), files, dialogs, printing),
      showHelp_(std::move(showHelp)) {
    AddFormats();
    constexpr int UsualWidth = 920;
    TakeWidth(UsualWidth);
}

void frmConvertBarChart::AddFormats() {
    auto* frame = new QGroupBox(QStringLiteral("Select Barchart Source File Format"), this);
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* rows = new QVBoxLayout;
    frame->setLayout(rows);
    std::transform(BarchartOptions().begin(), BarchartOptions().end(), formats_.begin(),
                   [frame](BarchartOption const& option) { return MakeButton(option, *frame); });
    QList<QWidget*> tabStops;
    for (QRadioButton* button : formats_) {
        rows->addWidget(button);
        tabStops.append(button);
    }
    formats_.front()->setChecked(true);
    LayoutFrames().addWidget(frame);
    PutTabStopsFirst(tabStops);
}

std::unique_ptr<SourceLayout> frmConvertBarChart::ReadLayout() {
    std::array<bool, BarchartFormatCount> selected{};
    std::transform(formats_.begin(), formats_.end(), selected.begin(),
                   [](QRadioButton const* button) { return button->isChecked(); });
    return std::make_unique<BarchartLayout>(ChosenFormat(selected));
}

void frmConvertBarChart::ShowHelp() {
    showHelp_();
}

} // namespace quorvex::convert::ui
