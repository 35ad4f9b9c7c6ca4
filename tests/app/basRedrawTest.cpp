// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basRedraw.h"

#include "RunningProgram.h"
#include "chart/ChartColours.h"
#include "cycles/basCurves.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace quorvex::app {
namespace {

using tests::IsClose;
using tests::QuoteLines;

TEST(Redraw, StartsWithZerosInTheGridAndDefaultSettings) {
    RunningProgram running;
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Decay, 10), "0");
    EXPECT_EQ(running.Data->Settings.DataPath, "C:\\Quorvex\\");
    EXPECT_EQ(running.Data->ProgramFolder, "C:\\Quorvex");
    EXPECT_FALSE(running.Data->Quotes.HasQuotes());
}

TEST(Redraw, TakesUpWhatWasTyped) {
    RunningProgram running;
    running.Open("q.txt", tests::GoldenFile("quotes/q060.txt"));
    running.TypeCycle(1, "1", "20.4");
    Redraw(*running.Data, running.Outside);
    cycles::ChartStates const& states = running.Data->Curves.States;
    EXPECT_TRUE(states.Quotes.IsReady() && states.Composite.IsReady() && states.Residual.IsReady());
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "100");
    EXPECT_EQ(running.Data->Cycles.Cycles[1].Period, 20);
    EXPECT_TRUE(IsClose(running.Data->Curves.CompositeCurve[5], 100));
}

TEST(Redraw, WithoutQuotesComputesTheCyclesForAHundredDays) {
    RunningProgram running;
    running.TypeCycle(1, "50", "20");
    Redraw(*running.Data, running.Outside);
    cycles::ChartStates const& states = running.Data->Curves.States;
    EXPECT_EQ(states.Quotes.Missing, cycles::Need::QuoteFile);
    EXPECT_EQ(states.Residual.Missing, cycles::Need::QuoteFile);
    EXPECT_TRUE(states.Cycles.IsReady() && states.Composite.IsReady());
    EXPECT_TRUE(IsClose(running.Data->Curves.CompositeCurve[125], 100 * std::sin(125 * cycles::TwoPi / 20)));
    EXPECT_EQ(running.Data->Curves.MovingAverageCurve[1], 0);
    EXPECT_EQ(running.Data->Curves.ResidualCurve[1], 0);
}

TEST(Redraw, WithoutCyclesComputesTheQuotesAlone) {
    RunningProgram running;
    running.Open("q.txt", QuoteLines(30));
    EXPECT_EQ(running.Data->Curves.MovingAverageCurve[30], 130);
    EXPECT_EQ(running.Data->Curves.ResidualCurve[30], 0);
    EXPECT_GT(running.Data->Curves.PriceScale.PriceScaleHigh, 130);
}

TEST(Redraw, PricesWithoutARangeLeaveTheMovingAverageAsItWas) {
    std::string flat;
    for (int day = 1; day <= 28; ++day) {
        flat += "01/" + std::to_string(day) + "/02, 5, 5, 5, 5, 1, 1\r\n";
    }
    RunningProgram running;
    running.Open("flat.txt", flat);
    running.TypeCycle(1, "50", "20");
    Redraw(*running.Data, running.Outside);
    cycles::ChartStates const& states = running.Data->Curves.States;
    ASSERT_TRUE(states.Quotes.Fault);
    EXPECT_EQ(states.Quotes.Fault->Description(), "Division by zero");
    ASSERT_TRUE(states.Residual.Fault);
    EXPECT_EQ(states.Residual.Fault->Description(), "Division by zero");
    EXPECT_FALSE(states.Cycles.Fault);
    EXPECT_EQ(running.Data->Curves.MovingAverageCurve[1], 0);
    EXPECT_TRUE(IsClose(running.Data->Curves.CompositeCurve[5], 100));
}

TEST(Redraw, AMovingAverageWithoutALengthIsNoFaultOfTheQuotes) {
    RunningProgram running;
    running.Open("q.txt", QuoteLines(30));
    running.Data->Settings.MovingAverageIndex = "99999";
    Redraw(*running.Data, running.Outside);
    cycles::ChartStates const& states = running.Data->Curves.States;
    EXPECT_FALSE(states.Quotes.Fault);
    ASSERT_TRUE(states.MovingAverage.Fault);
    EXPECT_EQ(states.MovingAverage.Fault->Description(), "Overflow");
}

TEST(Redraw, ACycleThatOverflowsIsAFaultOfTheCycles) {
    RunningProgram running;
    running.Data->Cycles.Cycles[1].Weight = 1;
    running.Data->Cycles.Cycles[1].Period = 1e-320;
    Redraw(*running.Data, running.Outside);
    cycles::ChartStates const& states = running.Data->Curves.States;
    ASSERT_TRUE(states.Cycles.Fault);
    EXPECT_EQ(states.Cycles.Fault->Description(), "Overflow");
    EXPECT_EQ(states.Residual.Missing, cycles::Need::QuoteFile);
}

// How a box was drawn last: the operations from its last clearing on.
std::vector<platform::DrawingOperation> LastDrawing(platform::RecordingCanvas const& box) {
    auto const& all = box.Operations();
    auto const clear = std::find_if(all.rbegin(), all.rend(), [](auto const& operation) {
        return operation.What == platform::DrawingOperation::Kind::Clear;
    });
    return {clear == all.rend() ? all.begin() : clear.base() - 1, all.end()};
}

int CountOf(std::vector<platform::DrawingOperation> const& drawing, platform::Colour colour) {
    return static_cast<int>(std::count_if(drawing.begin(), drawing.end(), [colour](auto const& operation) {
        return operation.Drawn == colour && operation.What != platform::DrawingOperation::Kind::ForeColour;
    }));
}

TEST(Redraw, PreparesDrawsAndTicksTheFourBoxes) {
    RunningProgram running;
    running.Open("q060.txt", tests::GoldenFile("quotes/q060.txt"));
    running.TypeCycle(1, "50", "20");
    running.TypeCycle(2, "50", "30");
    Redraw(*running.Data, running.Outside);
    EXPECT_EQ(CountOf(LastDrawing(running.Pic1), chart::MovingAverageColour), 60);
    EXPECT_EQ(CountOf(LastDrawing(running.Pic2), chart::CycleColour(1)), 61);
    EXPECT_EQ(CountOf(LastDrawing(running.Pic2), chart::CycleColour(2)), 61);
    EXPECT_EQ(CountOf(LastDrawing(running.Pic3), chart::CompositeColour), 61);
    EXPECT_EQ(CountOf(LastDrawing(running.Pic4), chart::ResidualColour), 61);
    for (auto const* box : {&running.Pic1, &running.Pic2, &running.Pic3, &running.Pic4}) {
        auto const drawing = LastDrawing(*box);
        EXPECT_EQ(drawing.back().What, platform::DrawingOperation::Kind::Rectangle) << "a tick comes last";
        EXPECT_EQ(drawing.back().Coordinates[1], box->Height());
    }
}

TEST(Redraw, EndsWithTheFaultOfACycle) {
    RunningProgram running;
    running.Data->Cycles.Cycles[1].Weight = 1;
    running.Data->Cycles.Cycles[1].Period = 1e-320;
    Redraw(*running.Data, running.Outside);
    EXPECT_NE(LastDrawing(running.Pic1).back().What, platform::DrawingOperation::Kind::Rectangle);
}

// Looks at the boxes whenever the redraw asks for something.
class Observer final : public MainWindow, public platform::PendingMessages {
public:
    explicit Observer(RunningProgram const& running) : running_(running) {}

    void SetCaption(std::string_view caption) override { Note("caption " + std::string(caption)); }

    void LayOut() override { Note("layout"); }

    void Process() override { Note("messages"); }

    void Open(SecondaryWindow) override { Note("open"); }

    void End() override { Note("end"); }

    std::vector<std::string> Notes;

private:
    void Note(std::string what) {
        for (auto const* box : {&running_.Pic1, &running_.Pic2, &running_.Pic3, &running_.Pic4}) {
            what += box->Operations().empty() ? " -" : " " + KindsOf(*box);
        }
        Notes.push_back(what);
    }

    // "prepared" while nothing but the reference lines is there.
    static std::string KindsOf(platform::RecordingCanvas const& box) {
        bool const isPrepared =
            std::ranges::all_of(box.Operations(), [](platform::DrawingOperation const& operation) {
                using Kind = platform::DrawingOperation::Kind;
                return operation.What == Kind::Clear || operation.What == Kind::ForeColour ||
                       operation.What == Kind::Line;
            });
        return isPrepared ? "prepared" : "drawn";
    }

    RunningProgram const& running_;
};

TEST(Redraw, SetsTheCaptionLaysOutAndPreparesBeforeItReadsTheGrid) {
    RunningProgram running;
    running.TypeCycle(1, "50", "20");
    Observer observer(running);
    Services services{.System = running.Outside.System,
                      .Grid = running.Grid,
                      .Boxes = running.Outside.Boxes,
                      .Dialogs = running.Dialogs,
                      .Pending = observer,
                      .Window = observer};
    Redraw(*running.Data, services);
    EXPECT_EQ(observer.Notes, (std::vector<std::string>{"caption Quorvex - - - -", "layout - - - -",
                                                        "messages prepared prepared prepared prepared"}));
}

// Notes its name in a log that all boxes share, once for each stretch of drawing.
class LoggingCanvas final : public platform::Canvas {
public:
    LoggingCanvas(std::string name, std::vector<std::string>& log) : name_(std::move(name)), log_(log) {}

    [[nodiscard]] double Width() const override { return 7000; }

    [[nodiscard]] double Height() const override { return 2500; }

    [[nodiscard]] double TextWidth(std::string_view) const override { return 0; }

    [[nodiscard]] double TextHeight() const override { return 0; }

    void Clear() override { Note("clear"); }

    void SetForeColour(platform::Colour) override {}

    void Point(double, double, platform::Colour) override { Note("draw"); }

    void Line(double, double, double, double, platform::Colour) override {}

    void LineTo(double, double, platform::Colour) override { Note("draw"); }

    // What stands on the lower edge is a tick.
    void Rectangle(double, double y, double, double, platform::Colour, platform::Fill) override {
        Note(y == Height() ? "ticks" : "draw");
    }

    void SetTextPosition(double, double) override {}

    void SetFont(std::string_view, int, bool) override {}

    void Print(std::string_view) override { Note("labels"); }

private:
    void Note(std::string const& what) {
        std::string const note = name_ + " " + what;
        if (log_.empty() || log_.back() != note) {
            log_.push_back(note);
        }
    }

    std::string name_;
    std::vector<std::string>& log_;
};

TEST(Redraw, DrawsTheBoxesInTheirOrder) {
    RunningProgram running;
    running.Open("q.txt", tests::GoldenFile("quotes/q060.txt"));
    running.TypeCycle(1, "50", "20");
    std::vector<std::string> log;
    LoggingCanvas one("1", log);
    LoggingCanvas two("2", log);
    LoggingCanvas three("3", log);
    LoggingCanvas four("4", log);
    Services services{.System = running.Outside.System,
                      .Grid = running.Grid,
                      .Boxes = {one, two, three, four},
                      .Dialogs = running.Dialogs,
                      .Pending = running.Pending,
                      .Window = running.Window};
    Redraw(*running.Data, services);
    EXPECT_EQ(log, (std::vector<std::string>{"1 clear", "2 clear", "3 clear", "4 clear", //
                                             "1 clear", "1 draw", "1 labels", "2 draw", "3 draw", "4 draw",
                                             "1 ticks", "2 ticks", "3 ticks", "4 ticks"}));
}

TEST(Redraw, TheProgramKeepsItsFaults) {
    RunningProgram running;
    running.Open("q.txt", QuoteLines(30));
    cycles::ChartState const& state = running.Data->Curves.States.MovingAverage;
    EXPECT_TRUE(state.IsReady());
    running.Data->Settings.MovingAverageIndex = "999";
    Redraw(*running.Data, running.Outside);
    ASSERT_TRUE(state.Fault);
    EXPECT_EQ(state.Fault->Description(), "Subscript out of range");
}

TEST(Redraw, ASeriesOfNoDaysHasEmptyBoxesWithTicks) {
    RunningProgram running;
    running.Data->Quotes.QuoteFileName = "none.txt";
    running.TypeCycle(1, "50", "20");
    Redraw(*running.Data, running.Outside);
    for (auto const* box : {&running.Pic1, &running.Pic4}) {
        auto const drawing = LastDrawing(*box);
        EXPECT_EQ(std::ranges::count(drawing, platform::DrawingOperation::Kind::Rectangle,
                                     &platform::DrawingOperation::What),
                  100)
            << "ticks";
        EXPECT_EQ(std::ranges::count(drawing, platform::DrawingOperation::Kind::Point,
                                     &platform::DrawingOperation::What),
                  0);
        EXPECT_EQ(std::ranges::count(drawing, platform::DrawingOperation::Kind::Print,
                                     &platform::DrawingOperation::What),
                  0);
    }
    EXPECT_EQ(CountOf(LastDrawing(running.Pic3), chart::CompositeColour), 101);
    EXPECT_EQ(running.Data->Curves.States.Quotes.Missing, cycles::Need::Quotes);
    EXPECT_EQ(running.Data->Curves.States.Residual.Missing, cycles::Need::Quotes);
}

TEST(Redraw, TheCyclesStayWhenTheCompositeFails) {
    RunningProgram running;
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        running.Data->Cycles.Cycles[cycle].Weight = 1e302; // which no grid holds
        running.Data->Cycles.Cycles[cycle].Period = 20;
    }
    Redraw(*running.Data, running.Outside);
    EXPECT_EQ(CountOf(LastDrawing(running.Pic2), chart::CycleColour(10)), 101);
    EXPECT_EQ(CountOf(LastDrawing(running.Pic3), chart::CompositeColour), 0);
    EXPECT_TRUE(running.Data->Curves.States.Cycles.IsReady());
    ASSERT_TRUE(running.Data->Curves.States.Composite.Fault);
    EXPECT_EQ(running.Data->Curves.States.Composite.Fault->Description(), "Overflow");
}

TEST(Redraw, TheCaptionNamesFolderAndFile) {
    auto const program = std::make_unique<Program>();
    program->Settings.DataPath = "/home/ann/quotes/";
    EXPECT_EQ(Caption(*program), "Quorvex");
    program->Quotes.QuoteFileName = "corn.txt";
    EXPECT_EQ(Caption(*program), "Quorvex - [/home/ann/quotes/corn.txt]");
}

} // namespace
} // namespace quorvex::app
