// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/frmMain.h"

#include "app/basRedraw.h"
#include "app/layout/basLayout.h"
#include "app/ui/MenuBar.h"
#include "app/ui/basPlacing.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/NominalFrame.h"
#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QScreen>
#include <utility>

namespace quorvex::app::ui {

namespace {

using platform::pictures::ToQt;

constexpr QSize InitialSize(1100, 800);

struct BoxRow {
    chart::ChartKind Kind;
    char const* Name;
    char const* AccessibleName;
};

constexpr std::array<BoxRow, 4> BoxTable = {{
    {chart::ChartKind::Quotes, "Pic1", "Daily quotes chart"},
    {chart::ChartKind::Cycles, "Pic2", "Component cycles chart"},
    {chart::ChartKind::Composite, "Pic3", "Composite estimate cycle chart"},
    {chart::ChartKind::Residual, "Pic4", "Residual chart"},
}};

} // namespace

frmMain::frmMain(Program& program, std::string_view programFolder, Host const& host)
    : program_(program),
      files_(host.Files),
      client_(new QWidget(this)),
      dialogs_(*this),
      windows_(*this, program, dialogs_, host) {
    setObjectName(QStringLiteral("frmMain"));
    auto const run = [this](MenuRow const& row) { Run(row); };
    FillMenuBar(*menuBar(), run);
    redrawAfterEvent_.setSingleShot(true);
    redrawAfterEvent_.setInterval(0);
    connect(&redrawAfterEvent_, &QTimer::timeout, this, &frmMain::RedrawWhenFree);
    client_->installEventFilter(this);
    setCentralWidget(client_);
    toolStrip_ = MakeToolStrip(*client_, run);
    grid_ = std::make_unique<GridPanel>(*client_);
    AddBoxes();
    services_ = std::make_unique<Services>(Services{.System = host,
                                                    .Grid = *grid_,
                                                    .Boxes = Boxes(),
                                                    .Dialogs = dialogs_,
                                                    .Pending = pending_,
                                                    .Window = *this});
    resize(InitialSize.boundedTo(screen()->availableSize()));
    platform::qt::CentreForm(*this);
    StartUp(program, *grid_, host.Profile, programFolder);
}

frmMain::~frmMain() {
    for (platform::qt::PictureBox* box : boxes_) {
        box->SetReadings(nullptr); // which go before the boxes do
    }
}

void frmMain::AddBoxes() {
    for (std::size_t index = 0; index < BoxCount; ++index) {
        BoxRow const& row = BoxTable.at(index);
        auto* box = new platform::qt::PictureBox(client_);
        box->setObjectName(QString::fromLatin1(row.Name));
        box->setAccessibleName(QString::fromLatin1(row.AccessibleName));
        box->OfferSaving(files_, dialogs_, box->accessibleName());
        boxes_.at(index) = box;
        readings_.at(index) = std::make_unique<ChartReadings>(box->Drawing());
        box->SetReadings(readings_.at(index).get());
    }
}

chart::ChartBoxes frmMain::Boxes() {
    return {boxes_[0]->Drawing(), boxes_[1]->Drawing(), boxes_[2]->Drawing(), boxes_[3]->Drawing()};
}

void frmMain::Run(MenuRow const& row) {
    platform::qt::CloseMenus();
    // Keys and mouse do not come through while a dialog is open or a command runs; assistive technology does.
    if (!isBusy_ && QApplication::activeModalWidget() == nullptr) {
        RunUndisturbed([&] { row.Run(program_, *services_); });
    }
}

void frmMain::RunUndisturbed(std::function<void()> const& routine) {
    {
        auto const busy = BeBusy(true);
        platform::qt::RunGuarded(*this, [&] {
            auto const shown = qScopeGuard([this] { ShowDrawings(); });
            routine();
        });
    }
    RedrawWhenFree();
}

frmMain::BusyMark frmMain::BeBusy(bool isBusy) {
    bool const wasBusy = std::exchange(isBusy_, isBusy);
    return BusyMark([this, wasBusy] { isBusy_ = wasBusy; });
}

void frmMain::RequestRedraw() {
    isRedrawWanted_ = true;
    RedrawWhenFree();
}

void frmMain::FollowSize() {
    if (!isBusy_ && isVisible()) {
        LayOut();
    }
    isRedrawWanted_ = true;
    redrawAfterEvent_.start();
}

void frmMain::RedrawWhenFree() {
    while (isRedrawWanted_ && !isBusy_ && isVisible()) {
        isRedrawWanted_ = false;
        auto const busy = BeBusy(true);
        // The boxes have their new places before they have their new pictures.
        SetBoxUpdates(false);
        auto const updates = qScopeGuard([this] { SetBoxUpdates(true); });
        isBroken_ = !platform::qt::RunGuarded(*this, !isBroken_, [&] {
            Redraw(program_, *services_);
            ShowDrawings();
        });
    }
}

void frmMain::SetBoxUpdates(bool isEnabled) {
    for (platform::qt::PictureBox* box : boxes_) {
        box->setUpdatesEnabled(isEnabled);
    }
}

void frmMain::ShowDrawings() {
    for (std::size_t index = 0; index < BoxCount; ++index) {
        platform::qt::PictureBox& box = *boxes_.at(index);
        if (box.ShowDrawing()) {
            auto reading = chart::ReadChart(BoxTable.at(index).Kind, ContentsOf(program_));
            box.setAccessibleDescription(ToQt(reading.Description));
            readings_.at(index)->Take(std::move(reading));
        }
    }
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        RequestRedraw();
    }
    return QMainWindow::event(event);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == client_ && event->type() == QEvent::Resize) {
        FollowSize();
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    End();
}

void frmMain::SetCaption(std::string_view caption) {
    platform::qt::SetCaption(*this, caption);
}

void frmMain::LayOut() {
    auto const layout =
        layout::LayoutMainWindow(platform::qt::OuterWidth(client_->size()),
                                 platform::qt::OuterHeight(client_->size()), layout::IconStripHeight);
    toolStrip_->setGeometry(PixelsOf({0, 0, layout.IconStripWidth, layout::IconStripHeight}));
    grid_->Place(layout.Grid);
    for (std::size_t index = 0; index < BoxCount; ++index) {
        layout::Rectangle const& place = layout.Charts.at(index);
        boxes_.at(index)->setGeometry(PixelsOf(place));
        boxes_.at(index)->Drawing().Resize(place.Width, place.Height);
    }
}

void frmMain::Open(platform::SecondaryWindow window) {
    ShowDrawings();
    // The window stays open as long as the user likes; meanwhile this one may change its size.
    auto const free = BeBusy(false);
    windows_.RunModal(window);
}

void frmMain::End() {
    QCoreApplication::exit();
}

} // namespace quorvex::app::ui
