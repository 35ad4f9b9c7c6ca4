// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/ui/ShownTest.h"

#include "cycles/basCurves.h"
#include "support/QuoteTexts.h"

#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <chrono>
#include <thread>
#include <utility>

namespace quorvex::tests {

evaluation::EvaluationRoutine StagedTest::Routine() {
    return [this](quotes::QuoteSeries const& series, evaluation::EvaluationRequest const& request,
                  evaluation::Watch const& watch) {
        {
            std::scoped_lock const lock(mutex_);
            requests_.push_back(request);
        }
        ++runningCount_;
        bool goesOn = true;
        while (isHeld_ && goesOn) {
            constexpr double Half = 0.5;
            goesOn = watch(Half);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        auto outcome = goesOn ? Test(series, request, watch) : evaluation::EvaluationOutcome();
        --runningCount_;
        return outcome;
    };
}

std::vector<evaluation::EvaluationRequest> StagedTest::Requests() const {
    std::scoped_lock const lock(mutex_);
    return requests_;
}

evaluation::EvaluationOutcome StagedTest::Test(quotes::QuoteSeries const& series,
                                               evaluation::EvaluationRequest request,
                                               evaluation::Watch const& watch) {
    request.Every = 10;
    request.SampleCount = 20;
    request.SurrogateCount = 3;
    request.Jobs = 2;
    return evaluation::Evaluate(series, request, watch);
}

ShownTest::ShownTest(std::string const& file, evaluation::EvaluationRoutine routine)
    : Series(GoldenSeries(file, "####0.00")) {
    Cycles->Cycles[1].Weight = 100;
    Cycles->Cycles[1].Period = 40;
    Window = std::make_unique<evaluation::ui::frmTestForecast>(
        nullptr, *Series, *Cycles, Settings, Files, Dialogs, Printing, Printing, std::move(routine));
}

void ShownTest::Run(std::function<void()> const& deeds) {
    Answers.Next([&](QWidget& window) {
        deeds();
        if (window.isVisible()) {
            window.close();
        }
    });
    Window->RunModal();
}

evaluation::Evaluation ShownTest::Expected() const {
    evaluation::EvaluationRequest request;
    request.Models = evaluation::StandardModels(true);
    request.MovingAverageLength = cycles::MovingAverageLength(Settings.MovingAverageIndex);
    request.Parameters = Cycles.get();
    return StagedTest::Test(*Series, request, [](double) { return true; }).Result.value();
}

QString ShownTest::Verdict() const {
    return Find<QLabel>("lblVerdict").text();
}

QStringList ShownTest::Rows(char const* table) const {
    auto const& cells = Find<QTableWidget>(table);
    QStringList rows;
    for (int row = 0; row < cells.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < cells.columnCount(); ++column) {
            texts.append(cells.item(row, column)->text());
        }
        rows.append(texts.join(u'|'));
    }
    return rows;
}

QPushButton& ShownTest::Button(QDialogButtonBox::StandardButton button) const {
    return *Find<QDialogButtonBox>("buttons").button(button);
}

bool ShownTest::IsTesting() const {
    return Find<QProgressBar>("prgTest").isVisible();
}

bool ShownTest::WaitForEnd() const {
    constexpr int Patience = 60'000; // milliseconds
    return QTest::qWaitFor([this] { return !IsTesting(); }, Patience);
}

void ShownTest::Choose(char const* item) const {
    Find<QAction>(item).trigger();
}

void ShownTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QWidget* focus = Window->focusWidget();
    QTest::keyClick(focus == nullptr ? Window.get() : focus, key, modifiers);
}

} // namespace quorvex::tests
