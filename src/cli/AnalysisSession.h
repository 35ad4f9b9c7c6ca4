// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Program.h"
#include "app/basAnalysis.h"
#include "chart/basCharts.h"
#include "cli/AnalysisOptions.h"
#include "cli/ConsoleDialogs.h"
#include "cli/ExitStatus.h"
#include "platform/disk/DiskFiles.h"

#include <memory>
#include <optional>

namespace quorvex::cli {

// A started program with the outside that it needs to run in a console.
class AnalysisSession {
public:
    explicit AnalysisSession(AnalysisOptions const& options, MessageSink const& sink = Complain);

    // Runs the analysis of the options; nothing comes back when the quote file was refused.
    [[nodiscard]] std::optional<app::AnalysisResult> Analyse();

    // The first step of the analysis alone, and the cycles of the options' parameter file; both return
    // whether there is what was asked for.
    [[nodiscard]] bool OpenQuotes();
    [[nodiscard]] bool TakeParameters();

    // Draws what the analysis left on these boxes.
    void DrawCharts(chart::ChartBoxes const& boxes) const;

    [[nodiscard]] app::Program const& Program() const { return *program_; }

    [[nodiscard]] cycles::ParameterGrid const& Grid() const { return grid_; }

    // What the run ends with once its results were written, or not: any message means that data were refused.
    [[nodiscard]] ExitStatus Status(bool written) const;

private:
    [[nodiscard]] app::AnalysisServices Services();

    app::AnalysisRequest request_;
    std::unique_ptr<app::Program> program_ = std::make_unique<app::Program>();
    cycles::TextGrid grid_;
    ConsoleDialogs dialogs_;
    ConsoleDialogs parameterDialogs_;
    platform::disk::DiskFiles files_;
};

} // namespace quorvex::cli
