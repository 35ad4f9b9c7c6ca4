// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cycles/CycleParameterSet.h"
#include "evaluation/EvaluationThread.h"
#include "evaluation/basEvaluationPlot.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/MousePointer.h"
#include "platform/Printer.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmTestForecast;
}

namespace quorvex::evaluation::ui {

// Tests by walking forward whether the cycles forecast: those of the grid, if there are any, and the fits and
// searches beside them. It tests anew on every call, and not longer than it is open.
class frmTestForecast final : public QDialog {
    Q_OBJECT

public:
    // All must outlive the window. The routine tests.
    frmTestForecast(QWidget* parent, quotes::QuoteSeries const& series, cycles::CycleParameterSet const& set,
                    settings::Settings const& settings, platform::Files& files, platform::Dialogs& dialogs,
                    platform::PrintQueue& printer, platform::MousePointer& pointer,
                    EvaluationRoutine routine = Evaluate);
    ~frmTestForecast() override;

    // Shows the window and waits until it is closed.
    void RunModal();

    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddMenu();
    void PrepareTables();
    void ConnectBoxes();
    [[nodiscard]] std::string Caption() const;

    [[nodiscard]] EvaluationRequest Request() const;
    void StartTest();
    void EndTest(QString const& refusal);
    void Take(EvaluationNews const& news);

    void ShowResult();
    void ShowVerdicts();
    void ShowFigures();
    void ShowButtons();
    void ChooseModel(int row);
    void ChooseKindOf(int index);
    void Draw();
    void Print();
    void SaveAs();
    // What is written into a file of this name: a picture by its ending, else the report.
    [[nodiscard]] std::string ContentOf(std::string const& path) const;

    quotes::QuoteSeries const& series_;
    cycles::CycleParameterSet const& set_;
    settings::Settings const& settings_;
    platform::Files& files_;
    platform::Dialogs& dialogs_;
    platform::PrintQueue& printer_;
    platform::MousePointer& pointer_;
    std::shared_ptr<Evaluation const> result_; // none while a test runs and after a refusal
    FanChoice choice_;                         // what is drawn of it
    int number_ = 0;                           // of the test whose news count, 0 when none does
    QString refusal_;
    std::unique_ptr<Ui::frmTestForecast> ui_;
    EvaluationThread thread_; // the last member: it reports to the others
};

} // namespace quorvex::evaluation::ui
