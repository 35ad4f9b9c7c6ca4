// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RecordingPdfQueue.h"
#include "RunCompanion.h"
#include "cli/SubCommands.h"
#include "support/Golden.h"
#include "support/TemporaryFolder.h"
#include "text/basTexts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvex::tests {
namespace {

// The one page that these arguments print.
platform::fake::PrintedPage PrintedPageOf(std::vector<std::string> arguments) {
    TemporaryFolder const folder;
    RecordingPdfQueue queue;
    CLI::App app;
    app.allow_windows_style_options(false);
    auto status = cli::ExitStatus::Usage;
    cli::AddPrint(app, &queue, status);
    arguments.insert(arguments.begin(), {"print", "-o", folder.File("page.pdf")});
    std::ranges::reverse(arguments);
    app.parse(arguments);
    EXPECT_EQ(status, cli::ExitStatus::Success);
    EXPECT_EQ(queue.Recorded.Documents.at(0).Pages.size(), 1U);
    return queue.Recorded.Documents.at(0).Pages.at(0);
}

auto CountOf(platform::fake::PrintedPage const& page, platform::DrawingOperation::Kind kind) {
    return std::ranges::count(page.Shapes, kind, &platform::DrawingOperation::What);
}

TEST(Print, TakesTheFormatTheStyleAndTheDates) {
    std::string const file = GoldenPath("quotes/q250.txt");
    using Kind = platform::DrawingOperation::Kind;
    auto const bars = PrintedPageOf({file});
    auto const candles = PrintedPageOf({file, "--chart-type", "Candlestick Chart"});
    auto const line = PrintedPageOf({file, "--chart-type", "Line Chart", "--format", "####0.000"});
    // The ticks and the middle division, then three rectangles a day. Of candlesticks only some bodies are
    // filled.
    EXPECT_EQ(CountOf(bars, Kind::Rectangle), 250 + 1 + 3 * 250);
    EXPECT_EQ(CountOf(candles, Kind::Rectangle), 250 + 1 + 3 * 250);
    EXPECT_NE(std::ranges::count(candles.Shapes, true, &platform::DrawingOperation::Flag),
              std::ranges::count(bars.Shapes, true, &platform::DrawingOperation::Flag));
    EXPECT_EQ(CountOf(line, Kind::Rectangle), 250 + 1);
    auto const decimals = [](std::string const& label) {
        std::string_view const price = text::Trim(label);
        return price.size() - price.find('.') - 1;
    };
    EXPECT_EQ(decimals(bars.Texts.back().Text), 2U);
    EXPECT_EQ(decimals(line.Texts.back().Text), 3U);
    std::string const dates = bars.Texts.at(1).Text; // first to last
    auto const narrowed =
        PrintedPageOf({file, "--end", dates.substr(dates.size() - 8), "--start", dates.substr(0, 8)});
    EXPECT_EQ(narrowed.Texts.at(1).Text, dates);
}

#ifdef QUORVEX_PICTURES

bool IsWholePdf(std::string const& bytes) {
    return bytes.starts_with("%PDF-") && bytes.ends_with("%%EOF\n");
}

TEST(Print, WritesTheChartPage) {
    TemporaryFolder const folder;
    auto const run = RunCompanion({"print", GoldenPath("quotes/q060.txt"), "-o", folder.File("page.PDF")});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_EQ(run.Output + run.Errors, "");
    std::string const pdf = folder.Read("page.PDF");
    EXPECT_TRUE(IsWholePdf(pdf));
    EXPECT_NE(pdf.find("/Count 1"), std::string::npos) << "one page";
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(Print, GoesToStandardOutput) {
    auto const run = RunCompanion({"print", GoldenPath("quotes/q060.txt"), "-o", "-"});
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_TRUE(IsWholePdf(run.Output));
}

TEST(Print, TakesTheOptionsOfAnAnalysis) {
    TemporaryFolder const folder;
    auto const run = RunCompanion({"print", GoldenPath("quotes/q250.txt"), "--automate", "1",
                                   "--moving-average", "5", "--format", "####0.000", "--chart-type",
                                   "Candlestick Chart", "-o", folder.File("page.pdf")});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_TRUE(IsWholePdf(folder.Read("page.pdf")));
}

TEST(Print, ReplacesAnExistingFile) {
    TemporaryFolder const folder;
    folder.Write("page.pdf", "old");
    EXPECT_EQ(
        RunCompanion({"print", GoldenPath("quotes/q060.txt"), "-o", folder.File("page.pdf")}).ExitStatus, 0);
    EXPECT_TRUE(IsWholePdf(folder.Read("page.pdf")));
}

TEST(Print, OfARefusedFileWritesNothing) {
    TemporaryFolder const folder;
    auto const run = RunCompanion({"print", GoldenPath("quotes/few24.txt"), "-o", folder.File("page.pdf")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_NE(run.Errors, "");
    EXPECT_EQ(folder.EntryCount(), 0);
}

TEST(Print, ReportsAFileThatCannotBeWritten) {
    TemporaryFolder const folder;
    auto const run =
        RunCompanion({"print", GoldenPath("quotes/q060.txt"), "-o", folder.File("nowhere/page.pdf")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + folder.File("nowhere/page.pdf") + ": Path not found\n");
}

TEST(Print, PricesWithoutARangeAreRefused) {
    TemporaryFolder const folder;
    std::string quotes;
    for (int day = 1; day <= 25; ++day) {
        quotes +=
            "01/" + std::string(day < 10 ? "0" : "") + std::to_string(day) + "/01, 5, 5, 5, 5, 1, 1\r\n";
    }
    folder.Write("flat.txt", quotes);
    auto const run = RunCompanion({"print", folder.File("flat.txt"), "-o", folder.File("page.pdf")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_TRUE(run.Errors.ends_with("Division by zero\n")) << run.Errors;
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(Print, RefusesOtherFiles) {
    auto const file = GoldenPath("quotes/q060.txt");
    EXPECT_EQ(RunCompanion({"print", file}).ExitStatus, 2);
    auto const run = RunCompanion({"print", file, "-o", "page.png"});
    EXPECT_EQ(run.ExitStatus, 2);
    EXPECT_NE(run.Errors.find("page.png does not end with .pdf"), std::string::npos) << run.Errors;
}

#else

TEST(Print, PrintsNothingWithoutQt) {
    auto const run = RunCompanion({"print", GoldenPath("quotes/q060.txt"), "-o", "page.pdf"});
    EXPECT_EQ(run.ExitStatus, 2);
    EXPECT_NE(run.Errors.find("built without Qt"), std::string::npos) << run.Errors;
}

#endif

} // namespace
} // namespace quorvex::tests
