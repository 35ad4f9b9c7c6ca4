// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisSession.h"

#include "platform/Profile.h"

namespace quorvex::cli {

AnalysisSession::AnalysisSession(AnalysisOptions const& options, MessageSink const& sink)
    : request_(options.Request),
      dialogs_(options.QuotePath, sink),
      parameterDialogs_(options.Request.ParameterPath.value_or(""), sink) {
    // Every run is to give the same, whatever the user prefers in the window.
    app::StartUp(*program_, grid_, platform::NoProfile(), "./");
    TakeAnalysisOptions(options, *program_);
}

std::optional<app::AnalysisResult> AnalysisSession::Analyse() {
    return app::Analyse(*program_, Services(), request_);
}

bool AnalysisSession::OpenQuotes() {
    return app::OpenQuotes(*program_, Services(), request_);
}

bool AnalysisSession::TakeParameters() {
    return app::TakeParameters(*program_, Services(), request_.ParameterPath.value_or(""));
}

app::AnalysisServices AnalysisSession::Services() {
    return {.Grid = grid_, .Files = files_, .Dialogs = dialogs_, .ParameterDialogs = parameterDialogs_};
}

void AnalysisSession::DrawCharts(chart::ChartBoxes const& boxes) const {
    chart::PrepareCharts(boxes, program_->Quotes.WorkingCount);
    chart::DrawCharts(app::ContentsOf(*program_), boxes);
}

ExitStatus AnalysisSession::Status(bool written) const {
    bool const isRefused = dialogs_.HasShown() || parameterDialogs_.HasShown();
    return written && !isRefused ? ExitStatus::Success : ExitStatus::Refused;
}

} // namespace quorvex::cli
