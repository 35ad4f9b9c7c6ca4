// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/ui/frmForecast.h"

#include "chart/basForecastPlot.h"
#include "chart/basForecastReading.h"
#include "chart/basForecastScale.h"
#include "platform/basMessages.h"
#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/WindowMenu.h"
#include "platform/qt/WindowPrinting.h"
#include "ui_frmForecast.h"

#include <QFont>
#include <span>
#include <utility>

namespace quorvex::chart::ui {

namespace {

using platform::pictures::ToQt;
using platform::pictures::TwipsPerPixel;

void Fill(QListWidget& list, std::span<std::string const> lines) {
    list.clear();
    for (std::string const& line : lines) {
        list.addItem(ToQt(line));
    }
}

// The lines are made of columns.
void UseColumnFont(QListWidget& list) {
    constexpr int PointSize = 9;
    list.setFont(QFont(QStringLiteral("Courier New"), PointSize));
}

} // namespace

frmForecast::frmForecast(QWidget* parent, quotes::QuoteSeries const& series,
                         cycles::CycleParameterSet const& set, settings::Settings const& settings,
                         platform::Files& files, platform::Dialogs& dialogs,
                         std::vector<platform::qt::PictureCommand> commands)
    : QDialog(parent),
      series_(series),
      set_(set),
      settings_(settings),
      dialogs_(dialogs),
      ui_(std::make_unique<Ui::frmForecast>()) {
    ui_->setupUi(this);
    AddMenu();
    UseColumnFont(*ui_->List1);
    UseColumnFont(*ui_->List2);
    ui_->Pic1->SetReadings(this);
    ui_->Pic1->OfferSaving(files, dialogs, ui_->Pic1->accessibleName());
    ui_->Pic1->OfferCommands(std::move(commands));
    ui_->Pic1->installEventFilter(this);
}

frmForecast::~frmForecast() {
    ui_->Pic1->SetReadings(nullptr);
}

void frmForecast::AddMenu() {
    platform::qt::WindowMenu menu(*this);
    menu.Menu("mnuFile", "&File")
        .Item("mnuFilePrint", "&Print", [this] { Print(); })
        .Item("mnuFileExit", "E&xit", [this] { accept(); });
    layout()->setMenuBar(&menu.Bar());
}

void frmForecast::RunModal() {
    platform::qt::CentreForm(*this);
    ui_->List1->setFocus();
    isFaultShown_ = false;
    exec();
}

bool frmForecast::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        platform::qt::RunGuarded(*this, [this] { Compute(); });
    }
    return QDialog::event(event);
}

bool frmForecast::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->Pic1 && event->type() == QEvent::Resize) {
        platform::qt::RunGuarded(*this, [this] { Draw(); });
    }
    return QDialog::eventFilter(watched, event);
}

void frmForecast::Compute() {
    platform::qt::SetCaption(*this, Caption());
    auto const fault = text::Trap([this] {
        values_ = cycles::ComputeForecast(set_, series_);
        dates_ = cycles::ComputeForecastDates(series_.LastQuoteDate);
    });
    isComputed_ = !fault;
    FillLists();
    if (fault) {
        ui_->Pic1->setAccessibleDescription(ToQt(fault->Description()));
    }
    Draw();
    // Closing the message activates this window once more: once is enough.
    if (fault && !std::exchange(isFaultShown_, true)) {
        platform::ShowError(dialogs_, *fault);
    }
}

std::string frmForecast::Caption() const {
    return "Quorvex Forecast - [" + series_.QuoteFileName + "]";
}

void frmForecast::FillLists() {
    ui_->List1->clear();
    ui_->List2->clear();
    if (isComputed_) {
        Fill(*ui_->List1, cycles::PreviousCloseLines(series_));
        Fill(*ui_->List2, cycles::EstimatedValueLines(values_, dates_));
    }
}

void frmForecast::Draw() {
    platform::RecordingCanvas& drawing = ui_->Pic1->Drawing();
    drawing.Resize(ui_->Pic1->width() * TwipsPerPixel, ui_->Pic1->height() * TwipsPerPixel);
    drawing.Clear();
    if (isComputed_) {
        auto const fault = chart::DrawForecast(drawing, series_, values_, dates_);
        ui_->Pic1->setAccessibleDescription(
            fault ? ToQt(fault->Description())
                  : ToQt(chart::DescribeForecast({series_, values_, dates_, settings_.CurrencyFormat})));
    }
    ui_->Pic1->ShowDrawing();
}

void frmForecast::Print() {
    platform::qt::PrintWindow(*this, Caption(), settings_.DataPath, dialogs_);
}

int frmForecast::Columns() const {
    return isComputed_ ? chart::LastForecastColumn : 0;
}

int frmForecast::ColumnAt(double place) const {
    return chart::ForecastColumnAt(ui_->Pic1->Drawing().Width(), place).value_or(0);
}

double frmForecast::PlaceOf(int column) const {
    return chart::ComputeForecastSpan(ui_->Pic1->Drawing().Width()).X(column);
}

std::string frmForecast::Describe(int column) const {
    return chart::DescribeForecastDay({series_, values_, dates_, settings_.CurrencyFormat}, column);
}

} // namespace quorvex::chart::ui
