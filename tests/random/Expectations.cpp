// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/Expectations.h"

#include "auxiliary/basProperties.h"
#include "chart/basReading.h"
#include "cycles/ParameterGrid.h"
#include "cycles/basComputation.h"
#include "cycles/basCorrel.h"
#include "cycles/basForecast.h"
#include "platform/PendingMessages.h"
#include "platform/basFiles.h"
#include "platform/basMessages.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/PictureBox.h"
#include "text/RunTimeError.h"
#include "text/basFormats.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QRegularExpression>
#include <QThread>
#include <algorithm>
#include <array>
#include <utility>

namespace quorvex::tests {

namespace {

using platform::pictures::FromQt;
using platform::pictures::ToQt;

constexpr std::array Boxes = {
    std::pair("Pic1", chart::ChartKind::Quotes), std::pair("Pic2", chart::ChartKind::Cycles),
    std::pair("Pic3", chart::ChartKind::Composite), std::pair("Pic4", chart::ChartKind::Residual)};

QString CellName(cycles::Parameter parameter, int cycle) {
    return QStringLiteral("Text%1_%2").arg(static_cast<int>(parameter) + 1).arg(cycle);
}

QStringList TextsOf(cycles::ParameterGrid const& grid) {
    QStringList texts;
    for (cycles::Parameter const parameter : cycles::Parameters) {
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            texts.append(ToQt(grid.Text(parameter, cycle)));
        }
    }
    return texts;
}

// A copy of what the main window shows.
void CopyGrid(QWidget const& main, cycles::TextGrid& grid) {
    for (cycles::Parameter const parameter : cycles::Parameters) {
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            auto const* cell = main.findChild<QLineEdit*>(CellName(parameter, cycle));
            grid.SetText(parameter, cycle, FromQt(cell->text()));
        }
    }
}

void Recompute(app::Program& program) {
    cycles::ComputeCurves(program.Quotes, program.Settings, program.Cycles, program.Curves);
}

QStringList DescriptionsOf(app::Program const& program) {
    QStringList texts;
    for (auto const& [name, kind] : Boxes) {
        chart::ChartReading reading;
        chart::ReadChart(kind, app::ContentsOf(program), chart::NameDays(program.Quotes), reading);
        texts.append(ToQt(reading.Description));
    }
    return texts;
}

QStringList ShownDescriptions(QWidget const& main) {
    QStringList texts;
    for (auto const& [name, kind] : Boxes) {
        texts.append(main.findChild<QWidget*>(QLatin1String(name))->accessibleDescription());
    }
    return texts;
}

QStringList LinesOf(std::vector<std::string> const& lines) {
    QStringList texts;
    for (std::string const& line : lines) {
        texts.append(ToQt(line));
    }
    return texts;
}

QStringList LinesOf(QListWidget const& list) {
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) {
        texts.append(list.item(row)->text());
    }
    return texts;
}

bool AreSameDays(quotes::QuoteSeries const& one, quotes::QuoteSeries const& other) {
    for (std::int16_t day = 1; day <= one.QuoteCount && one.QuoteCount == other.QuoteCount; ++day) {
        if (!(one.Master[day] == other.Master[day])) {
            return false;
        }
    }
    return one.QuoteCount == other.QuoteCount;
}

bool HasSurrogates(QString const& text) {
    return std::ranges::any_of(text, [](QChar character) { return character.isSurrogate(); });
}

} // namespace

Expectations::Expectations(Journal& journal, app::Program const& program, QWidget const& main,
                           platform::Files const& files)
    : journal_(journal),
      program_(program),
      main_(main),
      files_(files),
      editor_(journal, program, files) {}

void Expectations::Check() {
    auto const* editor = main_.findChild<QWidget*>(QStringLiteral("frmEdit"));
    editor_.Check(editor != nullptr && editor->isVisible() ? editor : nullptr);
    QWidget const* const modal = QApplication::activeModalWidget();
    if (modal == nullptr) {
        // A command may still be about to end.
        if (QApplication::activePopupWidget() == nullptr && QThread::currentThread()->loopLevel() == 1) {
            CheckRest();
        }
    } else if (modal->objectName() == QStringLiteral("MessageBox")) {
        CheckBox(*modal);
    } else if (modal->isActiveWindow()) { // which is when it shows what there is now
        CheckWindow(*modal);
    }
}

void Expectations::CheckRest() {
    quotes::QuoteSeries const& series = program_.Quotes;
    QString const caption =
        series.HasQuotes()
            ? QStringLiteral("Quorvex - [%1]").arg(ToQt(program_.Settings.DataPath + series.QuoteFileName))
            : QStringLiteral("Quorvex");
    journal_.Expect("the caption names the open file", {main_.windowTitle()}, {caption});
    QStringList left;
    for (QWidget const* window : QApplication::topLevelWidgets()) {
        if (window != &main_ && window->isVisible() && window->windowType() != Qt::ToolTip) {
            left.append(window->objectName());
        }
    }
    journal_.Expect("nothing is left open", left, {});
    journal_.Expect("no hourglass is left",
                    {QApplication::overrideCursor() == nullptr ? QString() : QStringLiteral("there is one")},
                    {QString()});
    if (series.WorkingCount > 0) { // a name alone is what Save As of an empty editor leaves
        journal_.Expect("the dates are those of the days that are analysed",
                        {ToQt(series.FirstQuoteDate), ToQt(series.LastQuoteDate)},
                        {ToQt(series.Working[1].Date), ToQt(series.Working[series.WorkingCount].Date)});
    }
    constexpr int RestsForEachComparison = 8; // which takes its time
    if (series.HasQuotes() && IsDrawn() && ++restCount_ % RestsForEachComparison == 0) {
        CheckCharts();
    }
    if (!AreSameDays(series, *seen_)) {
        *seen_ = series;
        if (series.QuoteCount > 0) {
            CheckLoaded();
        }
    }
}

// Drawn or not since something changed, they show the quotes and the cycles that there are.
void Expectations::CheckCharts() {
    auto const copy = std::make_unique<app::Program>(program_);
    Recompute(*copy);
    journal_.Expect("the charts are those of the quotes and the cycles", ShownDescriptions(main_),
                    DescriptionsOf(*copy));
}

// What is read in a way of its own are files without anything odd.
void Expectations::CheckLoaded() {
    static QRegularExpression const plain(
        QStringLiteral("^[0-9]{2}/[0-9]{2}/[0-9]{2}(, ?[0-9]+(\\.[0-9]+)?){6}$"));
    constexpr int CloseField = 4;
    quotes::QuoteSeries const& series = program_.Quotes;
    std::string const path = program_.Settings.DataPath + series.QuoteFileName;
    QStringList lines = ToQt(platform::ReadWholeFile(files_, path))
                            .split(QRegularExpression(QStringLiteral("\r?\n")), Qt::SkipEmptyParts);
    if (!std::ranges::all_of(lines, [](QString const& line) { return plain.match(line).hasMatch(); })) {
        return;
    }
    text::NumberFormat const format(program_.Settings.CurrencyFormat);
    QStringList expected;
    for (QString const& line : lines.first(std::min<qsizetype>(lines.size(), quotes::MaxQuotes))) {
        QStringList const fields = line.split(u',');
        double const close = format.Round(fields.at(CloseField).toDouble());
        expected.append(fields.at(0) + u' ' + QString::number(close, 'g', 15));
    }
    QStringList loaded;
    for (std::int16_t day = 1; day <= series.QuoteCount; ++day) {
        quotes::QuoteRecord const& record = series.Master[day];
        loaded.append(ToQt(record.Date) + u' ' + QString::number(record.Close, 'g', 15));
    }
    journal_.Expect("the contract has the days of its file", loaded, expected);
}

void Expectations::CheckTyped(QLineEdit const& edit, QString const& text) {
    bool const isOfGrid = edit.window() == &main_ && edit.objectName().startsWith(QStringLiteral("Text"));
    if (isOfGrid && !HasSurrogates(text)) { // whose halves come as keys of their own
        journal_.Expect("a cell of the grid holds what was typed", {edit.text()}, {text});
    }
}

// A fault, which is told, leaves cycles that are not drawn yet.
bool Expectations::IsDrawn() const {
    return RedrawCount() != redrawsAtFault_;
}

int Expectations::RedrawCount() const {
    return main_.findChild<platform::qt::PictureBox*>(QStringLiteral("Pic1"))->Drawing().ClearCount();
}

std::vector<QStringList> Expectations::PossibleAfterRefresh() const {
    constexpr int MostReadings = 3;
    auto const copy = std::make_unique<app::Program>(program_);
    cycles::TextGrid grid;
    CopyGrid(main_, grid);
    std::vector<QStringList> possible;
    for (int reading = 1; reading <= MostReadings; ++reading) {
        platform::NoPendingMessages pending;
        cycles::ReadGrid(grid, copy->Cycles, pending);
        Recompute(*copy);
        possible.push_back(TextsOf(grid) + DescriptionsOf(*copy));
    }
    return possible;
}

void Expectations::CheckRefreshed(std::vector<QStringList> const& possible) {
    cycles::TextGrid grid;
    CopyGrid(main_, grid);
    QStringList const texts = TextsOf(grid) + ShownDescriptions(main_);
    auto const found = std::ranges::find(possible, texts);
    journal_.Expect("a redraw shows the grid and its curves", texts,
                    found == possible.end() ? possible.front() : *found);
}

// The curves that the coefficient is of are those of the last redraw.
void Expectations::CheckBox(QWidget const& box) {
    auto const* message = qobject_cast<QMessageBox const*>(&box);
    if (message == nullptr) {
        return;
    }
    if (message->windowTitle() == ToQt(platform::ApplicationTitle)) {
        redrawsAtFault_ = RedrawCount();
    }
    if (message->windowTitle() != ToQt(cycles::CorrelationMessage(0.0).Title) || !IsDrawn()) {
        return;
    }
    auto const copy = std::make_unique<app::Program>(program_);
    Recompute(*copy);
    auto const coefficient = cycles::CoefficientOfCorrelation(copy->Curves, copy->Quotes.WorkingCount);
    journal_.Expect("the correlation is that of composite and moving average", {message->text()},
                    {ToQt(cycles::CorrelationMessage(coefficient).Text)});
}

void Expectations::CheckWindow(QWidget const& window) {
    if (window.objectName() == QStringLiteral("frmProperties")) {
        CheckProperties(window);
    } else if (window.objectName() == QStringLiteral("frmForecast")) {
        CheckForecast(window);
    }
}

// Without figures there are none of other quotes either.
void Expectations::CheckProperties(QWidget const& window) {
    std::vector<auxiliary::PropertyCaption> properties = {{"lblQuoteFileName", "", ""}};
    static_cast<void>(text::Trap(
        [&] { properties = auxiliary::DescribeQuotes(program_.Quotes, program_.Settings.CurrencyFormat); }));
    QStringList shown;
    QStringList expected;
    for (auto const& property : properties) {
        shown.append(window.findChild<QLabel*>(ToQt(property.Label))->text());
        expected.append(ToQt(property.Caption));
    }
    journal_.Expect("the properties are those of the quotes", shown, expected);
}

void Expectations::CheckForecast(QWidget const& window) {
    auto const& closes = *window.findChild<QListWidget*>(QStringLiteral("List1"));
    if (closes.count() == 0) {
        return; // it could not be computed
    }
    auto const values = cycles::ComputeForecast(program_.Cycles, program_.Quotes);
    auto const dates = cycles::ComputeForecastDates(program_.Quotes.LastQuoteDate);
    journal_.Expect("the forecast is that of the cycles",
                    LinesOf(closes) + LinesOf(*window.findChild<QListWidget*>(QStringLiteral("List2"))),
                    LinesOf(cycles::PreviousCloseLines(program_.Quotes)) +
                        LinesOf(cycles::EstimatedValueLines(values, dates)));
}

} // namespace quorvex::tests
