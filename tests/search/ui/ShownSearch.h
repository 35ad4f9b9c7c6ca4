// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "platform/qt/PictureBox.h"
#include "search/ui/frmFindCycles.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"

#include <QSpinBox>
#include <QTableWidget>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::tests {

// A search that finds one model after the other, that of 1, 2 .. cycles, and stays at a stage as long as it
// is told to.
class StagedSearch {
public:
    // Models of so many cycles wait for the release, or for the end of their search.
    void HoldBehind(int cycleCount) { last_ = cycleCount; }

    void Release() { last_ = search::MostCycles; }

    // The routine of a search window, which must not outlive this.
    [[nodiscard]] search::SearchRoutine Routine();

    [[nodiscard]] std::vector<search::SearchRequest> Requests() const;

    [[nodiscard]] int RunningCount() const { return runningCount_; }

    // The model that it finds.
    [[nodiscard]] static search::CycleModel ModelOf(int cycleCount);

private:
    mutable std::mutex mutex_;
    std::vector<search::SearchRequest> requests_;
    std::atomic<int> last_ = search::MostCycles;
    std::atomic<int> runningCount_ = 0;
};

// The window that looks for the best cycles, over the quotes of a series and its moving average.
class ShownSearch {
public:
    // Over a file of the reference vectors.
    explicit ShownSearch(std::string const& file, search::SearchRoutine routine = search::SearchSeries);

    // Opens the window, does this in it, and comes back when it is closed, which it is at the end.
    std::optional<search::CycleModel> Run(std::function<void()> const& deeds);

    // Takes the moving average of the settings up.
    void RefreshMovingAverage();

    template <class Control>
    [[nodiscard]] Control& Find(char const* name) const {
        return *Window->findChild<Control*>(QString::fromLatin1(name));
    }

    [[nodiscard]] QSpinBox& Spin(char const* name) const { return Find<QSpinBox>(name); }

    void TypeInto(char const* spin, QString const& text) const;

    [[nodiscard]] QString Result() const;
    [[nodiscard]] QStringList TableRows() const;
    [[nodiscard]] bool MayAccept() const;
    [[nodiscard]] bool IsSearching() const;

    // Whether the search under way is over, which it is after a while.
    [[nodiscard]] bool WaitForEnd() const;

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

    TemporaryFolder Folder;
    platform::fake::MemoryFiles Files;
    platform::fake::ScriptedDialogs Dialogs;
    settings::Settings Settings = settings::DefaultSettings(Folder.Text());
    std::unique_ptr<quotes::QuoteSeries> Series;
    std::unique_ptr<cycles::CycleCurves> Curves = std::make_unique<cycles::CycleCurves>();
    ModalAnswers Answers;
    std::unique_ptr<search::ui::frmFindCycles> Window;
};

} // namespace quorvex::tests
