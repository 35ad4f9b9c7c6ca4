// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The lines that the sub-command "batch" writes.
#pragma once

#include "app/basAnalysis.h"
#include "batch/Results.h"
#include "cli/AnalysisSession.h"
#include "evaluation/Evaluation.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::cli {

// What the analysis of one file has left.
struct AnalysedFile {
    batch::BatchFile File;
    std::shared_ptr<std::vector<std::string>> Messages = // one line each; the session adds to them, too
        std::make_shared<std::vector<std::string>>();
    std::unique_ptr<AnalysisSession> Session;           // of a file
    std::optional<app::AnalysisResult> Result;          // none when the quotes were refused
    std::optional<evaluation::Evaluation> ForecastTest; // none when there was no test, or it was refused
};

// All of them in one line; empty when there is none.
[[nodiscard]] std::string JoinedMessages(AnalysedFile const& analysed);

class BatchLines : public batch::ResultFormat {
public:
    [[nodiscard]] virtual batch::FileResult ResultOf(AnalysedFile const& analysed) const = 0;
};

// Whether a file with these first bytes may be what an earlier run has written, in whatever format and with
// whatever options: nothing else is written over.
[[nodiscard]] bool MayBeBatchLines(std::string_view bytes);

} // namespace quorvex::cli
