// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/frmMain.h"

#include "app/basImportCommands.h"
#include "app/basRedraw.h"
#include "app/layout/basLayout.h"
#include "app/ui/MenuBar.h"
#include "app/ui/Tables.h"
#include "app/ui/basPlacing.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/NominalFrame.h"
#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDropEvent>
#include <QScreen>
#include <QShortcut>
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
                                                    .Pending = *this,
                                                    .Window = *this});
    setAcceptDrops(true);
    auto* paste = new QShortcut(QKeySequence::Paste, this);
    connect(paste, &QShortcut::activated, this,
            [this] { TakeTables(QApplication::clipboard()->mimeData()); });
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
        box->OfferCommands(CommandsOf(row.Name));
        boxes_.at(index) = box;
        readings_.at(index) = std::make_unique<ChartReadings>(box->Drawing());
        box->SetReadings(readings_.at(index).get());
    }
}

std::vector<platform::qt::PictureCommand> frmMain::CommandsOf(std::string_view boxName) {
    std::vector<platform::qt::PictureCommand> commands;
    for (MenuRow const& row : ChartMenuTable()) {
        if (row.Parent == boxName) {
            commands.push_back({ToQt(row.Name), ToQt(row.Caption), [this, &row] { Run(row); }});
        }
    }
    return commands;
}

chart::ChartBoxes frmMain::Boxes() {
    return {boxes_[0]->Drawing(), boxes_[1]->Drawing(), boxes_[2]->Drawing(), boxes_[3]->Drawing()};
}

void frmMain::Run(MenuRow const& row) {
    platform::qt::CloseMenus();
    // Keys and mouse do not come through while a dialog is open or a command runs; assistive technology does.
    if (!IsOccupied()) {
        RunUndisturbed([&] { row.Run(program_, *services_); });
    }
}

void frmMain::RunUndisturbed(std::function<void()> const& routine) {
    {
        auto const running = Raise(isCommandRunning_);
        platform::qt::RunGuarded(*this, [&] {
            auto const shown = qScopeGuard([this] { ShowDrawings(program_); });
            routine();
        });
    }
    RedrawWhenFree();
}

frmMain::Flag frmMain::Raise(bool& flag) {
    bool const was = std::exchange(flag, true);
    return Flag([&flag, was] { flag = was; });
}

bool frmMain::IsOccupied() const {
    return isCommandRunning_ || isRedrawing_ || QApplication::activeModalWidget() != nullptr;
}

void frmMain::FollowActivation(bool isActive) {
    // What a command or a dialog does with the focus is a part of it.
    if (isCommandRunning_ || QApplication::activeModalWidget() != nullptr) {
        return;
    }
    bool const wasAway = std::exchange(isAway_, !isActive);
    isRedrawWanted_ = isRedrawWanted_ || (isActive && wasAway);
    if (isActive) {
        RedrawWhenFree();
    }
}

void frmMain::FollowSize() {
    if (!isRedrawing_ && isVisible()) {
        PlaceControls();
        if (IsOccupied()) {
            Repaint();
        }
    }
    isRedrawWanted_ = true;
    redrawAfterEvent_.start();
}

void frmMain::Repaint() {
    platform::qt::RunGuarded(*this, false, [&] {
        // What is at work keeps its data as they are, such as the moving average that cycles are fitted to.
        auto const copy = std::make_unique<Program>(program_);
        app::Repaint(*copy, services_->Boxes);
        ShowDrawings(*copy);
    });
}

void frmMain::RedrawWhenFree() {
    while (isRedrawWanted_ && !IsOccupied() && isVisible()) {
        auto const redrawing = Raise(isRedrawing_);
        // The boxes have their new places before they have their new pictures.
        SetBoxUpdates(false);
        auto const updates = qScopeGuard([this] { SetBoxUpdates(true); });
        isRedrawWanted_ = false;
        isBroken_ = !platform::qt::RunGuarded(*this, !isBroken_, [&] {
            Redraw(program_, *services_);
            ShowDrawings(program_);
        });
    }
}

void frmMain::SetBoxUpdates(bool isEnabled) {
    for (platform::qt::PictureBox* box : boxes_) {
        box->setUpdatesEnabled(isEnabled);
    }
}

void frmMain::ShowDrawings(Program const& program) {
    chart::DayNames days;
    for (std::size_t index = 0; index < BoxCount; ++index) {
        platform::qt::PictureBox& box = *boxes_.at(index);
        if (box.ShowDrawing()) {
            chart::ChartReading& reading = readings_.at(index)->Reading();
            days = days == nullptr ? chart::NameDays(program.Quotes) : days;
            chart::ReadChart(BoxTable.at(index).Kind, ContentsOf(program), days, reading);
            box.setAccessibleDescription(ToQt(reading.Description));
        }
    }
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        FollowActivation(event->type() == QEvent::WindowActivate);
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

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (!IsOccupied() && HoldsTables(event->mimeData())) {
        event->setDropAction(Qt::CopyAction); // the file stays where it is
        event->accept();
    }
}

void frmMain::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    TakeTables(event->mimeData());
}

void frmMain::TakeTables(QMimeData const* mimeData) {
    auto tables = TablesIn(mimeData);
    if (tables.IsNone()) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, tables = std::move(tables)] {
            if (IsOccupied()) {
                return; // somebody was quicker
            }
            RunUndisturbed([&] {
                if (tables.Paths.empty()) {
                    TakeTable(tables.Text, program_, *services_);
                } else {
                    TakeFiles(tables.Paths, program_, *services_);
                }
            });
        },
        Qt::QueuedConnection);
}

void frmMain::SetCaption(std::string_view caption) {
    platform::qt::SetCaption(*this, caption);
}

void frmMain::LayOut() {
    isRedrawWanted_ = false; // one has begun, with the size as it is now
    PlaceControls();
}

void frmMain::Process() {
    auto const redrawing = Raise(isRedrawing_);
    pending_.Process();
}

void frmMain::PlaceControls() {
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

void frmMain::Open(SecondaryWindow window) {
    ShowDrawings(program_);
    windows_.RunModal(window);
}

void frmMain::End() {
    QCoreApplication::exit();
}

} // namespace quorvex::app::ui
