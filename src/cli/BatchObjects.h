// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/BatchLines.h"

#include <string>
#include <string_view>

namespace quorvex::cli {

// Lines of JSON: of each file the object of "analyse --json", with a test of forecasts that of "evaluate
// --json" as its last member. docs/formats/batch.md describes them.
class BatchObjects final : public BatchLines {
public:
    static constexpr std::string_view Start = R"({"QuoteFileName":")";

    explicit BatchObjects(bool hasTest) : hasTest_(hasTest) {}

    [[nodiscard]] std::string Head() const override { return {}; }

    [[nodiscard]] std::string StartOf(batch::BatchFile const& file) const override;
    [[nodiscard]] bool TellsRefusal(std::string_view line, batch::BatchFile const& file) const override;

    [[nodiscard]] bool QuotesLineEnds() const override { return false; }

    [[nodiscard]] batch::FileResult ResultOf(AnalysedFile const& analysed) const override;

private:
    bool hasTest_;
};

} // namespace quorvex::cli
