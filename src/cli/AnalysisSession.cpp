// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisSession.h"

#include "app/basRedraw.h"

namespace quorvex::cli {

AnalysisSession::AnalysisSession(AnalysisOptions const& options) : request_(options.Request) {
    // Every run is to give the same, whatever the user prefers in the window.
    app::StartUp(*program_, grid_, platform::NoProfile(), "./");
    TakeAnalysisOptions(options, *program_);
}

std::optional<app::AnalysisResult> AnalysisSession::Analyse() {
    platform::BlankCanvas blank;
    app::Services services{
        grid_,   {blank, blank, blank, blank}, dialogs_, files_, pending_, launcher_, window_, printing_,
        pointer_};
    return app::Analyse(*program_, services, request_);
}

void AnalysisSession::DrawCharts(app::ChartBoxes const& boxes) {
    app::DrawCharts(*program_, boxes);
}

ExitStatus AnalysisSession::Status(bool written) const {
    return written && !dialogs_.HasShown() ? ExitStatus::Success : ExitStatus::Refused;
}

} // namespace quorvex::cli
