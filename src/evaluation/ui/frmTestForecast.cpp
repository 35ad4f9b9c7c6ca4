// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/ui/frmTestForecast.h"

#include "cycles/basCurves.h"
#include "evaluation/basPieces.h"
#include "evaluation/basReport.h"
#include "evaluation/basReportPages.h"
#include "evaluation/basVerdicts.h"
#include "platform/basSaving.h"
#include "platform/pictures/Painting.h"
#include "platform/pictures/QtPictureEncoder.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/WindowMenu.h"
#include "text/RunTimeError.h"
#include "ui_frmTestForecast.h"

#include <QHeaderView>
#include <QPushButton>
#include <QSignalBlocker>
#include <array>
#include <exception>
#include <utility>

namespace quorvex::evaluation::ui {

namespace {

using platform::pictures::ToQt;
using platform::pictures::TwipsPerPixel;

constexpr int RowHeight = 22;

// Bold where the model is better than the last close.
QTableWidgetItem* MakeCell(std::string const& text, bool isBold) {
    auto* cell = new QTableWidgetItem(ToQt(text));
    if (isBold) {
        QFont font = cell->font();
        font.setBold(true);
        cell->setFont(font);
    }
    return cell;
}

} // namespace

frmTestForecast::frmTestForecast(QWidget* parent, quotes::QuoteSeries const& series,
                                 cycles::CycleParameterSet const& set, settings::Settings const& settings,
                                 platform::Files& files, platform::Dialogs& dialogs,
                                 platform::PrintQueue& printer, platform::MousePointer& pointer,
                                 EvaluationRoutine routine)
    : QDialog(parent),
      series_(series),
      set_(set),
      settings_(settings),
      files_(files),
      dialogs_(dialogs),
      printer_(printer),
      pointer_(pointer),
      ui_(std::make_unique<Ui::frmTestForecast>()),
      thread_(
          [this](EvaluationNews const& news) {
              QMetaObject::invokeMethod(
                  this, [this, news] { Take(news); }, Qt::QueuedConnection);
          },
          std::move(routine)) {
    ui_->setupUi(this);
    AddMenu();
    PrepareTables();
    for (ForecastKind const kind : ForecastKinds) {
        ui_->cboKind->addItem(ToQt(KindName(kind)));
    }
    ui_->Pic1->OfferSaving(files, dialogs, ui_->Pic1->accessibleName());
    ui_->Pic1->installEventFilter(this);
    ConnectBoxes();
}

frmTestForecast::~frmTestForecast() = default;

void frmTestForecast::AddMenu() {
    platform::qt::WindowMenu menu(*this);
    menu.Menu("mnuFile", "&File")
        .Item("mnuFilePrint", "&Print", [this] { Print(); })
        .Item("mnuFileSaveAs", "Save &As...", [this] { SaveAs(); })
        .Item("mnuFileExit", "E&xit", [this] { reject(); });
    layout()->setMenuBar(&menu.Bar());
}

void frmTestForecast::PrepareTables() {
    ui_->tblVerdicts->verticalHeader()->hide();
    ui_->tblVerdicts->horizontalHeader()->setHighlightSections(false);
    ui_->tblVerdicts->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    ui_->tblVerdicts->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    ui_->tblVerdicts->verticalHeader()->setMinimumSectionSize(RowHeight);
    ui_->tblVerdicts->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    // All models, each on a line of its own.
    auto const rows = static_cast<int>(StandardModels(true).size());
    ui_->tblVerdicts->setMinimumHeight(rows * RowHeight +
                                       ui_->tblVerdicts->horizontalHeader()->sizeHint().height() +
                                       2 * ui_->tblVerdicts->frameWidth());
    QTableWidget& figures = *ui_->tblFigures;
    TableRow const head = TableHead();
    QStringList labels;
    for (auto const column : TableColumns) {
        labels.append(ToQt(head.*column));
    }
    figures.setColumnCount(static_cast<int>(labels.size()));
    figures.setHorizontalHeaderLabels(labels);
    figures.verticalHeader()->hide();
    figures.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    figures.verticalHeader()->setDefaultSectionSize(RowHeight);
    figures.horizontalHeader()->setHighlightSections(false);
    figures.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void frmTestForecast::ConnectBoxes() {
    connect(ui_->tblVerdicts, &QTableWidget::currentCellChanged, this, [this](int row) { ChooseModel(row); });
    connect(ui_->cboKind, &QComboBox::currentIndexChanged, this, [this](int index) { ChooseKindOf(index); });
}

void frmTestForecast::RunModal() {
    platform::qt::SetCaption(*this, Caption());
    platform::qt::CentreForm(*this);
    StartTest();
    ui_->tabs->setCurrentWidget(ui_->tabChart);
    ui_->tblVerdicts->setFocus();
    exec();
}

std::string frmTestForecast::Caption() const {
    return "Quorvex - Test Forecast - [" + series_.QuoteFileName + "]";
}

EvaluationRequest frmTestForecast::Request() const {
    bool const hasCycles = cycles::HasActiveCycle(set_);
    EvaluationRequest request;
    request.Models = StandardModels(hasCycles);
    request.MovingAverageLength = cycles::MovingAverageLength(settings_.MovingAverageIndex);
    request.Parameters = hasCycles ? &set_ : nullptr;
    request.Jobs = UsualJobs();
    return request;
}

void frmTestForecast::StartTest() {
    result_.reset();
    refusal_.clear();
    ui_->prgTest->setValue(0);
    auto const fault = text::Trap([this] { number_ = thread_.Start(series_, Request()); });
    if (fault) {
        EndTest(ToQt(fault->Description()));
    } else {
        ShowResult();
    }
}

void frmTestForecast::EndTest(QString const& refusal) {
    thread_.Stop();
    number_ = 0;
    refusal_ = refusal;
    ShowResult();
}

void frmTestForecast::Take(EvaluationNews const& news) {
    if (news.Number != number_) {
        return; // of a test that was ended
    }
    if (!news.IsOver) {
        ui_->prgTest->setValue(static_cast<int>(news.Share * ui_->prgTest->maximum()));
        return;
    }
    result_ = news.Result;
    EndTest(ToQt(news.Refusal));
    if (news.Fault) {
        platform::qt::RunGuarded(*this, [&] { std::rethrow_exception(news.Fault); });
    }
}

void frmTestForecast::done(int result) {
    thread_.Stop();
    number_ = 0;
    QDialog::done(result);
}

void frmTestForecast::ShowResult() {
    QString verdict = number_ == 0 ? QString() : QStringLiteral("Testing the forecasts...");
    if (!refusal_.isEmpty()) {
        verdict = refusal_ + u'.';
    }
    ui_->lblVerdict->setText(result_ ? ToQt(VerdictOf(*result_)) : verdict);
    ui_->lblTest->setText(result_ ? ToQt(DescribeTest(*result_)) : QString());
    QString notes;
    if (result_) {
        choice_ = ChooseFan(*result_);
        std::vector<ReportSection> sections = Notes(*result_);
        sections.push_back(KeySection(*result_));
        for (ReportSection const& section : sections) {
            notes += ToQt(section.Head) + u'\n';
            for (std::string const& line : section.Lines) {
                notes += ToQt(line) + u'\n';
            }
            notes += u'\n';
        }
    }
    ui_->txtNotes->setPlainText(notes.trimmed());
    ShowFigures();
    ShowVerdicts();
    ShowButtons();
    Draw();
}

void frmTestForecast::ShowVerdicts() {
    QTableWidget& table = *ui_->tblVerdicts;
    QSignalBlocker const blocker(table);
    QSignalBlocker const kindBlocker(ui_->cboKind);
    table.setRowCount(0);
    ui_->cboKind->setEnabled(result_ != nullptr);
    if (!result_) {
        return;
    }
    table.setRowCount(static_cast<int>(result_->Models.size()));
    int row = 0;
    for (ModelReport const& model : result_->Models) {
        bool const isBetter = HasSkill(model);
        table.setItem(row, 0, MakeCell(ModelName(model.Model), isBetter));
        table.setItem(row, 1, MakeCell(model.Verdict, isBetter));
        ++row;
    }
    table.setCurrentCell(static_cast<int>(choice_.Model), 0);
    ui_->cboKind->setCurrentIndex(static_cast<int>(choice_.Kind));
}

void frmTestForecast::ShowFigures() {
    auto const rows = result_ ? TableRows(*result_) : std::vector<TableRow>();
    QTableWidget& table = *ui_->tblFigures;
    table.setRowCount(static_cast<int>(rows.size()));
    for (int index = 0; index < table.rowCount(); ++index) {
        TableRow const& row = rows.at(static_cast<std::size_t>(index));
        for (int column = 0; column < table.columnCount(); ++column) {
            auto const field = TableColumns.at(static_cast<std::size_t>(column));
            auto* cell = MakeCell(row.*field, row.IsBetter);
            bool const isRight = field == &TableRow::Days;
            cell->setTextAlignment((isRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
            table.setItem(index, column, cell);
        }
    }
}

// While a test runs Enter ends nothing.
void frmTestForecast::ShowButtons() {
    bool const isRunning = number_ != 0;
    QPushButton& cancel = *ui_->buttons->button(QDialogButtonBox::Cancel);
    QPushButton& close = *ui_->buttons->button(QDialogButtonBox::Close);
    cancel.setAutoDefault(false);
    cancel.setVisible(isRunning);
    close.setVisible(!isRunning);
    close.setDefault(!isRunning);
    ui_->prgTest->setVisible(isRunning);
    for (auto const* name : {"mnuFilePrint", "mnuFileSaveAs"}) {
        findChild<QAction*>(QString::fromLatin1(name))->setEnabled(result_ != nullptr);
    }
}

void frmTestForecast::ChooseModel(int row) {
    if (!result_ || row < 0) {
        return;
    }
    choice_.Model = static_cast<std::size_t>(row);
    choice_.Kind = ChooseKind(result_->Models.at(choice_.Model));
    QSignalBlocker const blocker(ui_->cboKind);
    ui_->cboKind->setCurrentIndex(static_cast<int>(choice_.Kind));
    Draw();
}

void frmTestForecast::ChooseKindOf(int index) {
    choice_.Kind = ForecastKinds.at(static_cast<std::size_t>(index));
    Draw();
}

bool frmTestForecast::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->Pic1 && event->type() == QEvent::Resize) {
        platform::qt::RunGuarded(*this, [this] { Draw(); });
    }
    return QDialog::eventFilter(watched, event);
}

void frmTestForecast::Draw() {
    platform::RecordingCanvas& drawing = ui_->Pic1->Drawing();
    drawing.Resize(ui_->Pic1->width() * TwipsPerPixel, ui_->Pic1->height() * TwipsPerPixel);
    if (result_) {
        DrawEvaluation(drawing, *result_, choice_);
    } else {
        drawing.Clear();
    }
    ui_->Pic1->setAccessibleDescription(result_ ? ToQt(DescribePlot(*result_, choice_))
                                                : ui_->lblVerdict->text());
    ui_->Pic1->ShowDrawing();
}

void frmTestForecast::Print() {
    PrintEvaluation(printer_, pointer_, *result_, choice_);
}

void frmTestForecast::SaveAs() {
    std::string const& file = result_->QuoteFileName;
    std::string const path = platform::AskForFileToWrite(
        dialogs_, files_,
        {.Title = "Save Forecast Test",
         .Folder = settings_.DataPath,
         .Name = file.substr(0, file.rfind('.')) + " forecast test.txt",
         .Filter = "Report (*.txt)|*.txt|PNG image (*.png)|*.png|SVG drawing (*.svg)|*.svg|"
                   "PDF document (*.pdf)|*.pdf",
         .Ending = "txt"});
    if (!path.empty()) {
        files_.Overwrite(path, ContentOf(path));
    }
}

std::string frmTestForecast::ContentOf(std::string const& path) const {
    auto const kind = platform::PictureKindOf(path);
    if (!kind) {
        return EvaluationReport(*result_);
    }
    platform::RecordingCanvas canvas(PlotWidth, PlotHeight);
    DrawEvaluation(canvas, *result_, choice_);
    std::array<platform::PlacedDrawing, 1> const placed = {{{0, 0, &canvas}}};
    return platform::pictures::QtPictureEncoder().Encode({canvas.Width(), canvas.Height(), placed}, *kind);
}

} // namespace quorvex::evaluation::ui
