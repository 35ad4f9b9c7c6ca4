// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/BatchLines.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::cli {

// The lines of a table in CSV, which docs/formats/batch.md describes.
class BatchTable final : public BatchLines {
public:
    // The columns that are always there.
    static constexpr std::string_view Start =
        "File,Message,QuoteCount,WorkingCount,FirstQuoteDate,LastQuoteDate,LastClose,Correlation,";

    // With the columns of so many cycles, 0..10, and perhaps those of a test of forecasts.
    BatchTable(int cycleCount, bool hasTest);

    [[nodiscard]] std::string Head() const override;
    [[nodiscard]] std::string StartOf(batch::BatchFile const& file) const override;
    [[nodiscard]] bool TellsRefusal(std::string_view line, batch::BatchFile const& file) const override;

    [[nodiscard]] bool QuotesLineEnds() const override { return true; }

    [[nodiscard]] batch::FileResult ResultOf(AnalysedFile const& analysed) const override;

private:
    // Behind file and message. The text of what does not exist is empty.
    struct Column {
        std::string Name;
        std::function<std::string(AnalysedFile const&)> Text; // of a file that was not refused
    };

    void AddQuotes();
    void AddCycle(int cycle);
    void AddForecast();
    void AddTest();

    std::vector<Column> columns_;
};

} // namespace quorvex::cli
