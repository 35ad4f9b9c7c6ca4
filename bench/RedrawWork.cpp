// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RedrawWork.h"

#include "GeneratedQuotes.h"
#include "SilentDialogs.h"
#include "TypedCycles.h"
#include "app/MenuTable.h"
#include "quotes/basDisk.h"

#include <QCoreApplication>
#include <algorithm>
#include <stdexcept>

namespace quorvex::bench {

namespace {

bool AreReady(cycles::ChartStates const& states) {
    return states.Quotes.IsReady() && states.MovingAverage.IsReady() && states.Cycles.IsReady() &&
           states.Composite.IsReady() && states.Residual.IsReady();
}

bool AreAllActive(cycles::CycleParameterSet const& set) {
    return std::all_of(&set.Cycles[1], &set.Cycles[cycles::CycleCount] + 1,
                       [](cycles::CycleRecord const& cycle) { return cycle.IsActive(); });
}

} // namespace

RedrawWork::RedrawWork(QSize size, QScreen& screen)
    : file_(GeneratedQuoteText()),
      window_(*program_, file_.Folder(), {profile_, files_, launcher_, registry_, printing_, pointer_}) {
    FindBoxes();
    window_.setScreen(&screen);
    window_.move(screen.geometry().topLeft());
    window_.resize(size);
    window_.show();
    QCoreApplication::processEvents();
    LoadQuotes();
    TypeTenCycles(window_);
    // The pictures are not copied to the screen: neither here nor in what the redraw is compared with.
    window_.setUpdatesEnabled(false);
    Redraw();
    RequireFourCharts();
    if (window_.size() != size || window_.devicePixelRatioF() != screen.devicePixelRatio()) {
        throw std::runtime_error("The window is not as large and as dense as it should be.");
    }
}

void RedrawWork::FindBoxes() {
    for (std::size_t index = 0; index < boxes_.size(); ++index) {
        boxes_.at(index) =
            window_.findChild<platform::qt::PictureBox*>(QStringLiteral("Pic%1").arg(index + 1));
    }
}

void RedrawWork::LoadQuotes() {
    SilentDialogs dialogs;
    program_->Quotes.QuoteFileName = TemporaryQuoteFile::Name;
    static_cast<void>(quotes::LoadQuoteFile(program_->Quotes, program_->Settings, files_, dialogs));
}

void RedrawWork::ShowChartType(std::string_view chartType) {
    program_->Settings.ChartType = chartType;
    Redraw();
}

void RedrawWork::Redraw() {
    window_.Run(app::MenuRowNamed("mnuRefresh"));
}

void RedrawWork::RequireFourCharts() const {
    if (program_->Quotes.WorkingCount != quotes::MaxQuotes || !AreAllActive(program_->Cycles) ||
        !AreReady(program_->Curves.States)) {
        throw std::runtime_error("The window does not show all four charts of the generated quotes.");
    }
}

} // namespace quorvex::bench
