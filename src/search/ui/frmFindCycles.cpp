// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/ui/frmFindCycles.h"

#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/WindowMenu.h"
#include "platform/qt/WindowPrinting.h"
#include "search/basSearchPlot.h"
#include "search/basSearchReading.h"
#include "text/RunTimeError.h"
#include "ui_frmFindCycles.h"

#include <QHeaderView>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>
#include <exception>
#include <utility>

namespace quorvex::search::ui {

namespace {

using platform::pictures::ToQt;
using platform::pictures::TwipsPerPixel;

} // namespace

frmFindCycles::frmFindCycles(QWidget* parent, quotes::QuoteSeries const& series,
                             cycles::CycleCurves const& curves, settings::Settings const& settings,
                             platform::Files& files, platform::Dialogs& dialogs, SearchRoutine routine)
    : QDialog(parent),
      series_(series),
      curves_(curves),
      settings_(settings),
      dialogs_(dialogs),
      ui_(std::make_unique<Ui::frmFindCycles>()),
      thread_(
          [this](SearchNews const& news) {
              QMetaObject::invokeMethod(
                  this, [this, news] { Take(news); }, Qt::QueuedConnection);
          },
          std::move(routine)) {
    ui_->setupUi(this);
    AddMenu();
    PrepareTable();
    ui_->prgSearch->setMaximum(MostCycles);
    ui_->spnSwing->setMaximum(LargestLeastSwing);
    ui_->spnSwing->setValue(VisibleSwing);
    ui_->Pic1->SetReadings(this);
    ui_->Pic1->OfferSaving(files, dialogs, ui_->Pic1->accessibleName());
    ui_->Pic1->installEventFilter(this);
    ConnectBoxes();
}

frmFindCycles::~frmFindCycles() {
    ui_->Pic1->SetReadings(nullptr);
}

void frmFindCycles::AddMenu() {
    platform::qt::WindowMenu menu(*this);
    menu.Menu("mnuFile", "&File")
        .Item("mnuFilePrint", "&Print", [this] { Print(); })
        .Item("mnuFileExit", "E&xit", [this] { reject(); });
    layout()->setMenuBar(&menu.Bar());
}

void frmFindCycles::PrepareTable() {
    ui_->tblCycles->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ui_->tblCycles->horizontalHeader()->setHighlightSections(false);
    constexpr int RowHeight = 24;
    constexpr int NumberWidth = 28;
    ui_->tblCycles->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui_->tblCycles->verticalHeader()->setDefaultSectionSize(RowHeight);
    ui_->tblCycles->verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    ui_->tblCycles->verticalHeader()->setFixedWidth(NumberWidth);
    // All ten cycles without scrolling.
    ui_->tblCycles->setMinimumHeight(MostCycles * RowHeight +
                                     ui_->tblCycles->horizontalHeader()->sizeHint().height() +
                                     2 * ui_->tblCycles->frameWidth());
}

void frmFindCycles::ConnectBoxes() {
    connect(ui_->spnCycles, &QSpinBox::valueChanged, this, [this] { ShowModels(); });
    connect(ui_->spnShortest, &QSpinBox::valueChanged, this, [this] { StartSearch(); });
    connect(ui_->spnLongest, &QSpinBox::valueChanged, this, [this](int days) {
        isLongestChosen_ = days != series_.WorkingCount / 2;
        StartSearch();
    });
    connect(ui_->spnSwing, &QSpinBox::valueChanged, this, [this] { StartSearch(); });
    connect(ui_->chkDetrend, &QCheckBox::toggled, this, [this] { StartSearch(); });
}

std::optional<CycleModel> frmFindCycles::RunModal() {
    platform::qt::SetCaption(*this, Caption());
    platform::qt::CentreForm(*this);
    SuggestLongest();
    StartSearch();
    ui_->spnCycles->setFocus();
    ui_->spnCycles->selectAll();
    CycleModel const* const model = exec() == Accepted ? ChosenModel() : nullptr;
    return model == nullptr ? std::nullopt : std::optional(*model);
}

std::string frmFindCycles::Caption() const {
    return "Quorvex - Find Best Cycles - [" + series_.QuoteFileName + "]";
}

void frmFindCycles::SuggestLongest() {
    if (!isLongestChosen_) {
        QSignalBlocker const blocker(ui_->spnLongest);
        ui_->spnLongest->setValue(series_.WorkingCount / 2);
    }
}

SearchRequest frmFindCycles::Request() const {
    return {.CycleCount = MostCycles,
            .MinPeriod = ui_->spnShortest->value(),
            .MaxPeriod = ui_->spnLongest->value(),
            .HowHard = Effort::Thorough,
            .LeastSwing = ui_->spnSwing->value(),
            .Detrend = ui_->chkDetrend->isChecked()};
}

void frmFindCycles::StartSearch() {
    models_.clear();
    refusal_.clear();
    auto series = MovingAverageSeries(curves_, series_.WorkingCount);
    if (series.empty()) {
        EndSearch(QStringLiteral("No quotes lie within the range of dates"));
        return;
    }
    number_ = thread_.Start(std::move(series), Request());
    ShowModels();
}

void frmFindCycles::EndSearch(QString const& refusal) {
    thread_.Stop();
    number_ = 0;
    refusal_ = refusal;
    ShowModels();
}

void frmFindCycles::Take(SearchNews const& news) {
    if (news.Number != number_) {
        return; // of a search that was ended
    }
    if (news.Found) {
        models_.push_back(*news.Found);
    }
    if (news.IsOver) {
        EndSearch(ToQt(news.Refusal));
    } else {
        ShowModels();
    }
    if (news.Fault) {
        platform::qt::RunGuarded(*this, [&] { std::rethrow_exception(news.Fault); });
    }
}

void frmFindCycles::done(int result) {
    thread_.Stop();
    number_ = 0;
    QDialog::done(result);
}

int frmFindCycles::ChosenCount() const {
    return ui_->spnCycles->value();
}

CycleModel const* frmFindCycles::ChosenModel() const {
    auto const index = static_cast<std::size_t>(ChosenCount() - 1);
    return index < models_.size() ? &models_[index] : nullptr;
}

void frmFindCycles::ShowModels() {
    CycleModel const* const model = ChosenModel();
    ShowTable(model);
    ui_->fraCorrelation->setTitle(ui_->chkDetrend->isChecked()
                                      ? QStringLiteral("Correlation with the Moving Average less its Trend")
                                      : QStringLiteral("Correlation with the Moving Average"));
    ui_->lblResult->setText(ResultText(model));
    ui_->buttons->button(QDialogButtonBox::Ok)->setEnabled(model != nullptr);
    ui_->prgSearch->setValue(static_cast<int>(models_.size()));
    ui_->prgSearch->setVisible(number_ != 0);
    Draw();
}

void frmFindCycles::ShowTable(CycleModel const* model) {
    QTableWidget& table = *ui_->tblCycles;
    auto const rows = model == nullptr ? std::vector<CycleRow>() : ModelRows(*model);
    table.setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column) {
            auto const& text = rows.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
            auto* item = new QTableWidgetItem(ToQt(text));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table.setItem(row, column, item);
        }
    }
}

QString frmFindCycles::ResultText(CycleModel const* model) const {
    if (!refusal_.isEmpty()) {
        return refusal_ + u'.';
    }
    if (model == nullptr) {
        return number_ == 0 ? QString() : QStringLiteral("Searching...");
    }
    GridComposite inGrid;
    static_cast<void>(text::Trap([&] { inGrid = CompositeInGrid(*model, curves_, series_.WorkingCount); }));
    return ToQt(DescribeModel(*model, ChosenCount(), ui_->chkDetrend->isChecked(), inGrid));
}

bool frmFindCycles::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->Pic1 && event->type() == QEvent::Resize) {
        platform::qt::RunGuarded(*this, [this] { Draw(); });
    }
    return QDialog::eventFilter(watched, event);
}

void frmFindCycles::Draw() {
    platform::RecordingCanvas& drawing = ui_->Pic1->Drawing();
    drawing.Resize(ui_->Pic1->width() * TwipsPerPixel, ui_->Pic1->height() * TwipsPerPixel);
    DrawSearchPlot(drawing, models_, ChosenCount());
    ui_->Pic1->setAccessibleDescription(ToQt(DescribeSearch(models_, ChosenCount())));
    ui_->Pic1->ShowDrawing();
}

void frmFindCycles::Print() {
    platform::qt::PrintWindow(*this, Caption(), settings_.DataPath, dialogs_);
}

int frmFindCycles::Columns() const {
    return static_cast<int>(models_.size());
}

int frmFindCycles::ColumnAt(double place) const {
    int const count = CountAtPlace(ui_->Pic1->Drawing().Width(), place);
    return count <= Columns() ? count : 0;
}

double frmFindCycles::PlaceOf(int column) const {
    return PlaceOfCount(ui_->Pic1->Drawing().Width(), column);
}

std::string frmFindCycles::Describe(int column) const {
    return DescribeCount(models_, column);
}

} // namespace quorvex::search::ui
