// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "evaluation/ui/frmTestForecast.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/RecordingPrinter.h"
#include "platform/fake/ScriptedDialogs.h"
#include "platform/qt/PictureBox.h"
#include "windows/ModalAnswers.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTableWidget>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace quorvex::tests {

// Quick tests of forecasts, which wait half-way as long as they are told to.
class StagedTest {
public:
    void Hold() { isHeld_ = true; }

    void Release() { isHeld_ = false; }

    // The routine of a window, which must not outlive this.
    [[nodiscard]] evaluation::EvaluationRoutine Routine();

    [[nodiscard]] std::vector<evaluation::EvaluationRequest> Requests() const;

    [[nodiscard]] int RunningCount() const { return runningCount_; }

    // What it finds.
    [[nodiscard]] static evaluation::EvaluationOutcome Test(quotes::QuoteSeries const& series,
                                                            evaluation::EvaluationRequest request,
                                                            evaluation::Watch const& watch);

private:
    mutable std::mutex mutex_;
    std::vector<evaluation::EvaluationRequest> requests_;
    std::atomic<bool> isHeld_ = false;
    std::atomic<int> runningCount_ = 0;
};

// The window that tests forecasts, over the quotes of a series and one cycle.
class ShownTest {
public:
    // Over a file of the reference vectors.
    explicit ShownTest(std::string const& file, evaluation::EvaluationRoutine routine = evaluation::Evaluate);

    // Opens the window, does this in it, and comes back when it is closed, which it is at the end.
    void Run(std::function<void()> const& deeds);

    // What a quick test finds in the series.
    [[nodiscard]] evaluation::Evaluation Expected() const;

    template <class Control>
    [[nodiscard]] Control& Find(char const* name) const {
        return *Window->findChild<Control*>(QString::fromLatin1(name));
    }

    [[nodiscard]] QString Verdict() const;

    // The rows of a table, its cells joined by "|".
    [[nodiscard]] QStringList Rows(char const* table) const;

    [[nodiscard]] QPushButton& Button(QDialogButtonBox::StandardButton button) const;
    [[nodiscard]] bool IsTesting() const;

    // Whether the test under way is over, which it is after a while.
    [[nodiscard]] bool WaitForEnd() const;

    // Chooses an item of the File menu.
    void Choose(char const* item) const;

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

    platform::fake::MemoryFiles Files;
    platform::fake::ScriptedDialogs Dialogs;
    platform::fake::RecordingPrintQueue Printing;
    settings::Settings Settings = settings::DefaultSettings("C:\\Data\\");
    std::unique_ptr<quotes::QuoteSeries> Series;
    std::unique_ptr<cycles::CycleParameterSet> Cycles = std::make_unique<cycles::CycleParameterSet>();
    ModalAnswers Answers;
    std::unique_ptr<evaluation::ui::frmTestForecast> Window;
};

} // namespace quorvex::tests
