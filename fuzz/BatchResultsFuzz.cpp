// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The first byte says whether there is a head and whether line ends are quoted; the rest is what an earlier
// run of three files has left. Its whole lines stay, the same ones however the bytes arrive, and a run that
// goes on behind them finds them as they are.

#include "ChunkSource.h"
#include "Require.h"
#include "batch/basResume.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace {

using namespace quorvex;
using batch::BatchFile;
using batch::EarlierRun;
using fuzz::Require;

constexpr std::uint64_t FileCount = 3;

// "a: text", where a refusal begins with "!".
class FuzzedLines final : public batch::ResultFormat {
public:
    FuzzedLines(bool hasHead, bool quotesLineEnds) : hasHead_(hasHead), quotesLineEnds_(quotesLineEnds) {}

    [[nodiscard]] std::string Head() const override { return hasHead_ ? "head\n" : ""; }

    [[nodiscard]] std::string StartOf(BatchFile const& file) const override { return file.Path + ": "; }

    [[nodiscard]] bool TellsRefusal(std::string_view line, BatchFile const& file) const override {
        return line.substr(StartOf(file).size()).starts_with('!');
    }

    [[nodiscard]] bool QuotesLineEnds() const override { return quotesLineEnds_; }

private:
    bool hasHead_;
    bool quotesLineEnds_;
};

EarlierRun Read(std::string_view text, batch::ResultFormat const& format, std::size_t chunk) {
    fuzz::ChunkSource source(text, chunk);
    auto const next = [paths = batch::PathsOf({"a", "b", "c"})]() -> std::optional<BatchFile> {
        auto const path = paths();
        return path ? std::optional(BatchFile{*path, {}}) : std::nullopt;
    };
    return batch::ReadEarlierRun(source, format, next,
                                 [](BatchFile const& file) { return file.Path + ": done\n"; });
}

bool AreSame(EarlierRun const& one, EarlierRun const& other) {
    return one.Length == other.Length && one.FileCount == other.FileCount &&
           one.RefusedCount == other.RefusedCount && one.LastLine == other.LastLine &&
           one.Refusal == other.Refusal;
}

void CheckGoingOn(EarlierRun const& run, std::string_view text, batch::ResultFormat const& format) {
    Require(run.Length <= text.size() && run.FileCount <= FileCount && run.RefusedCount <= run.FileCount);
    Require(run.Length == 0 || text[run.Length - 1] == '\n');
    std::string const stays = std::string(text.substr(0, run.Length)) + run.LastLine;
    EarlierRun const again = Read(stays, format, stays.size() + 1);
    Require(again.Refusal.empty() && again.LastLine.empty());
    Require(again.Length == stays.size() && again.FileCount == run.FileCount &&
            again.RefusedCount == run.RefusedCount);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    FuzzedLines const format((data[0] & 1U) != 0, (data[0] & 2U) != 0);
    std::string_view const text(reinterpret_cast<char const*>(data) + 1, size - 1);
    EarlierRun const run = Read(text, format, size);
    for (std::size_t const chunk : {1 + size / 100, 7 + size / 50}) {
        Require(AreSame(Read(text, format, chunk), run));
    }
    if (run.Refusal.empty()) {
        CheckGoingOn(run, text, format);
    }
    return 0;
}
