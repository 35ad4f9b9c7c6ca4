// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/ui/ShownSearch.h"

#include "cycles/basComputation.h"
#include "support/QuoteTexts.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <chrono>
#include <thread>
#include <utility>

namespace quorvex::tests {

search::SearchRoutine StagedSearch::Routine() {
    return [this](auto, search::SearchRequest const& request, search::GoOn const& goOn,
                  search::TakeModel const& take) {
        {
            std::scoped_lock const lock(mutex_);
            requests_.push_back(request);
        }
        ++runningCount_;
        for (int count = 1; count <= request.CycleCount && goOn(); ++count) {
            while (count > last_ && goOn()) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
            if (goOn()) {
                take(ModelOf(count));
            }
        }
        --runningCount_;
        return search::SearchOutcome();
    };
}

std::vector<search::SearchRequest> StagedSearch::Requests() const {
    std::scoped_lock const lock(mutex_);
    return requests_;
}

search::CycleModel StagedSearch::ModelOf(int cycleCount) {
    search::CycleModel model;
    for (int cycle = 1; cycle <= cycleCount; ++cycle) {
        model.Cycles.push_back({100 / cycleCount, 10 * cycleCount + cycle, cycle, 0.01 * cycle});
    }
    model.Correlation = 0.5 + 0.04 * cycleCount;
    return model;
}

ShownSearch::ShownSearch(std::string const& file, search::SearchRoutine routine)
    : Series(GoldenSeries(file, "####0.00")) {
    RefreshMovingAverage();
    Window = std::make_unique<search::ui::frmFindCycles>(nullptr, *Series, *Curves, Settings, Files, Dialogs,
                                                         std::move(routine));
}

void ShownSearch::RefreshMovingAverage() {
    cycles::RefreshMovingAverage(*Series, Settings, *Curves);
}

std::optional<search::CycleModel> ShownSearch::Run(std::function<void()> const& deeds) {
    Answers.Next([&](QWidget& window) {
        deeds();
        if (window.isVisible()) {
            window.close();
        }
    });
    return Window->RunModal();
}

void ShownSearch::TypeInto(char const* spin, QString const& text) const {
    QSpinBox& box = Spin(spin);
    box.setFocus(Qt::TabFocusReason);
    box.selectAll();
    QTest::keyClicks(&box, text);
}

QString ShownSearch::Result() const {
    return Find<QLabel>("lblResult").text();
}

QStringList ShownSearch::TableRows() const {
    auto const& table = Find<QTableWidget>("tblCycles");
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < table.columnCount(); ++column) {
            texts.append(table.item(row, column)->text());
        }
        rows.append(texts.join(u' '));
    }
    return rows;
}

bool ShownSearch::MayAccept() const {
    return Find<QDialogButtonBox>("buttons").button(QDialogButtonBox::Ok)->isEnabled();
}

bool ShownSearch::IsSearching() const {
    return Find<QProgressBar>("prgSearch").isVisible();
}

bool ShownSearch::WaitForEnd() const {
    constexpr int Patience = 30'000; // milliseconds
    return QTest::qWaitFor([this] { return !IsSearching(); }, Patience);
}

void ShownSearch::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QWidget* focus = Window->focusWidget();
    QTest::keyClick(focus == nullptr ? Window.get() : focus, key, modifiers);
}

} // namespace quorvex::tests
