// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basReportPages.h"

#include "MadeSeries.h"
#include "evaluation/basEvaluation.h"
#include "evaluation/basReport.h"
#include "evaluation/basVerdicts.h"
#include "platform/fake/RecordingPrinter.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvex::evaluation {
namespace {

using platform::fake::PrintedDocument;
using platform::fake::PrintedPage;
using PaperText = platform::fake::PrintedText;

Evaluation AllModels() {
    EvaluationRequest request;
    request.MovingAverageLength = 5;
    request.Every = 25;
    request.SampleCount = 20;
    request.SurrogateCount = 3;
    return Evaluate(*tests::SeriesOfCloses(tests::WalkingCloses(200, 1)), request,
                    [](double) { return true; })
        .Result.value();
}

PrintedDocument Print(Evaluation const& evaluation, platform::fake::RecordingPrintQueue& queue) {
    PrintEvaluation(queue, queue, evaluation, ChooseFan(evaluation));
    return queue.Documents.at(0);
}

std::string TextOf(PrintedPage const& page) {
    std::string text;
    for (PaperText const& one : page.Texts) {
        text += (text.empty() ? "" : " ") + one.Text;
    }
    return text;
}

// By what is nominal of a font.
double HeightOf(PaperText const& text) {
    return platform::NominalFont{text.Size}.Height();
}

TEST(PrintEvaluation, HasVerdictPlotAndModelsOnTheFirstPage) {
    platform::fake::RecordingPrintQueue queue;
    Evaluation const evaluation = AllModels();
    auto const document = Print(evaluation, queue);
    EXPECT_TRUE(document.IsEnded);
    EXPECT_EQ(document.Name, "made forecast test");
    std::string const text = TextOf(document.Pages.at(0));
    EXPECT_TRUE(text.starts_with("Test of forecasts: made.txt " + VerdictOf(evaluation) + ' ')) << text;
    EXPECT_NE(text.find(DescribeTest(evaluation)), std::string::npos) << text;
    EXPECT_NE(text.find("10 days ahead"), std::string::npos);
    EXPECT_NE(text.find("Fit of 1 cycle " + evaluation.Models.front().Verdict), std::string::npos);
    EXPECT_TRUE(
        text.ends_with("Quick search of 5 cycles " + evaluation.Models.back().Verdict + " made.txt, page 1"))
        << text;
    EXPECT_GT(document.Pages.at(0).Shapes.size(), 200U);
}

TEST(PrintEvaluation, HasTheTableAndTheNotesOnThePagesBehind) {
    platform::fake::RecordingPrintQueue queue;
    Evaluation const evaluation = AllModels();
    auto const document = Print(evaluation, queue);
    ASSERT_EQ(document.Pages.size(), 3U);
    std::string all;
    for (std::size_t page = 1; page < document.Pages.size(); ++page) {
        std::string const text = TextOf(document.Pages[page]);
        EXPECT_TRUE(text.starts_with("Model Forecast Days Error Right direction Correlation p "));
        EXPECT_TRUE(text.ends_with("made.txt, page " + std::to_string(page + 1)));
        all += text + ' ';
    }
    std::size_t place = 0;
    for (TableRow const& row : TableRows(evaluation)) {
        place = all.find(row.Days + ' ' + row.Error + ' ' + row.Right + ' ' + row.Correlation, place);
        ASSERT_NE(place, std::string::npos) << row.Model << ' ' << row.Kind << ' ' << row.Days;
    }
    std::vector<ReportSection> sections = Notes(evaluation);
    sections.push_back(KeySection(evaluation));
    for (ReportSection const& section : sections) {
        place = all.find(section.Head);
        ASSERT_NE(place, std::string::npos) << section.Head;
        for (std::string const& line : section.Lines) {
            EXPECT_NE(all.find(line, place), std::string::npos) << line;
        }
    }
}

TEST(PrintEvaluation, HasAllTextsOnThePaperAndApart) {
    for (auto const& [width, height] : {std::pair{12240.0, 15840.0}, {11906.0, 16838.0}}) {
        platform::fake::RecordingPrintQueue queue;
        queue.Sheet.Width = width;
        queue.Sheet.Height = height;
        for (PrintedPage const& page : Print(AllModels(), queue).Pages) {
            for (std::size_t index = 0; index < page.Texts.size(); ++index) {
                PaperText const& text = page.Texts[index];
                EXPECT_GE(text.X, 0) << text.Text;
                EXPECT_GE(text.Y, 0) << text.Text;
                EXPECT_LE(text.X + text.Width, width) << text.Text;
                EXPECT_LE(text.Y + HeightOf(text), height) << text.Text;
                for (std::size_t other = 0; other < index; ++other) {
                    PaperText const& before = page.Texts[other];
                    bool const isApart =
                        text.X >= before.X + before.Width || before.X >= text.X + text.Width ||
                        text.Y >= before.Y + HeightOf(before) - 1 || before.Y >= text.Y + HeightOf(text) - 1;
                    EXPECT_TRUE(isApart) << text.Text << " on " << before.Text;
                }
            }
        }
    }
}

TEST(PrintEvaluation, LongVerdictsTakeSeveralLines) {
    platform::fake::RecordingPrintQueue queue;
    Evaluation evaluation = AllModels();
    for (int word = 1; word <= 60; ++word) {
        evaluation.Models.front().Verdict += " word" + std::to_string(word);
    }
    auto const page = Print(evaluation, queue).Pages.at(0);
    double bottom = 0;
    for (PaperText const& text : page.Texts) {
        EXPECT_LE(text.X + text.Width, queue.Sheet.Width);
        bottom = std::max(bottom, text.Y + HeightOf(text));
    }
    EXPECT_LE(bottom, queue.Sheet.Height);
    EXPECT_NE(TextOf(page).find("word59 word60 Fit of 2 cycles"), std::string::npos);
}

TEST(PrintEvaluation, TheFaultOfAPrinterEndsItUnprinted) {
    Evaluation const evaluation = AllModels();
    for (int const text : {1, 40, 120}) {
        platform::fake::RecordingPrintQueue queue;
        queue.Sheet.FailingText = text;
        auto const fault =
            text::Trap([&] { PrintEvaluation(queue, queue, evaluation, ChooseFan(evaluation)); });
        ASSERT_TRUE(fault);
        EXPECT_EQ(fault->Description(), "Printer error");
        EXPECT_FALSE(queue.Documents.at(0).IsEnded);
        EXPECT_EQ(queue.HourglassCount, 0);
    }
    platform::fake::RecordingPrintQueue queue;
    static_cast<void>(Print(evaluation, queue));
    EXPECT_EQ(queue.HourglassAtStart, std::vector<int>{1});
}

} // namespace
} // namespace quorvex::evaluation
