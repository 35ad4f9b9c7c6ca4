// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/ui/frmLegend.h"

#include "chart/basLegend.h"
#include "platform/pictures/Painting.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/WindowMenu.h"
#include "ui_frmLegend.h"

namespace quorvex::chart::ui {

namespace {

void DrawSample(platform::qt::PictureBox& box, chart::LegendSample sample) {
    using platform::pictures::TwipsPerPixel;
    box.Drawing().Resize(box.width() * TwipsPerPixel, box.height() * TwipsPerPixel);
    chart::DrawLegendSample(box.Drawing(), sample);
    box.ShowDrawing();
}

} // namespace

frmLegend::frmLegend(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmLegend>()) {
    ui_->setupUi(this);
    platform::qt::WindowMenu menu(*this);
    menu.Item("mnuExit", "E&xit", [this] { accept(); });
    layout()->setMenuBar(&menu.Bar());
}

frmLegend::~frmLegend() = default;

void frmLegend::RunModal() {
    platform::qt::CentreForm(*this);
    exec();
}

// Only now the boxes have their size.
void frmLegend::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    DrawSample(*ui_->picQuotes, chart::LegendSample::Quotes);
    DrawSample(*ui_->picMovingAverage, chart::LegendSample::MovingAverage);
    DrawSample(*ui_->picCycles, chart::LegendSample::Cycles);
    DrawSample(*ui_->picComposite, chart::LegendSample::Composite);
    DrawSample(*ui_->picResidual, chart::LegendSample::Residual);
}

} // namespace quorvex::chart::ui
