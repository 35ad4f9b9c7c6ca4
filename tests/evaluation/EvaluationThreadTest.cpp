// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/EvaluationThread.h"

#include "MadeSeries.h"
#include "evaluation/basReport.h"
#include "support/ShortestOf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

namespace quorvex::evaluation {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// Until a thread that was told to stop has ended, at most.
constexpr auto StopTime = tests::Patience * 200ms;

// Keeps the news in order, for another thread to wait for.
class EvaluationNewsBox {
public:
    void Put(EvaluationNews const& news) {
        std::scoped_lock const lock(mutex_);
        news_.push_back(news);
        came_.notify_all();
    }

    template <class Condition>
    std::vector<EvaluationNews> WaitFor(Condition condition) {
        std::unique_lock lock(mutex_);
        auto const isThere = [&] { return std::any_of(news_.begin(), news_.end(), condition); };
        if (!came_.wait_for(lock, 120s, isThere)) {
            ADD_FAILURE() << "the news do not come";
        }
        return news_;
    }

    EvaluationNews WaitForEnd(int number) {
        return WaitFor([number](EvaluationNews const& news) { return news.IsOver && news.Number == number; })
            .back();
    }

private:
    std::mutex mutex_;
    std::condition_variable came_;
    std::vector<EvaluationNews> news_;
};

EvaluationRequest QuickRequest() {
    EvaluationRequest request;
    request.Models = {{Method::Search, 1}};
    request.MovingAverageLength = 5;
    request.Every = 10;
    request.SampleCount = 50;
    request.SurrogateCount = 5;
    return request;
}

// One that takes minutes.
EvaluationRequest LongRequest() {
    EvaluationRequest request;
    request.MovingAverageLength = 5;
    request.Every = 1;
    request.Jobs = 2;
    return request;
}

TEST(EvaluationThread, TellsHowMuchIsDoneAndThenTheResult) {
    EvaluationNewsBox box;
    EvaluationThread thread([&](EvaluationNews const& news) { box.Put(news); });
    auto const series = tests::SeriesOfCloses(tests::CyclicCloses(200, 1));
    int const number = thread.Start(*series, QuickRequest());
    auto const news = box.WaitFor([](EvaluationNews const& one) { return one.IsOver; });
    ASSERT_GE(news.size(), 2U);
    double share = 0;
    for (std::size_t index = 0; index + 1 < news.size(); ++index) {
        EXPECT_EQ(news[index].Number, number);
        EXPECT_GE(news[index].Share, share);
        EXPECT_EQ(news[index].Result, nullptr);
        share = news[index].Share;
    }
    EXPECT_EQ(share, 1);
    ASSERT_NE(news.back().Result, nullptr);
    auto const expected = Evaluate(*series, QuickRequest(), [](double) { return true; });
    EXPECT_EQ(EvaluationReport(*news.back().Result), EvaluationReport(*expected.Result));
}

TEST(EvaluationThread, WorksOnCopies) {
    EvaluationNewsBox box;
    EvaluationThread thread([&](EvaluationNews const& news) { box.Put(news); });
    auto const series = tests::SeriesOfCloses(tests::CyclicCloses(200, 1));
    auto const parameters = std::make_unique<cycles::CycleParameterSet>();
    parameters->Cycles[1].Weight = 100;
    parameters->Cycles[1].Period = 20;
    EvaluationRequest request = QuickRequest();
    request.Models = {{Method::Parameters, 0}};
    request.SurrogateCount = 0;
    request.Parameters = parameters.get();
    auto const expected = Evaluate(*series, request, [](double) { return true; });
    int const number = thread.Start(*series, request);
    *parameters = {};
    *series = {};
    auto const end = box.WaitForEnd(number);
    ASSERT_NE(end.Result, nullptr);
    EXPECT_EQ(EvaluationReport(*end.Result), EvaluationReport(*expected.Result));
}

TEST(EvaluationThread, TellsARefusal) {
    EvaluationNewsBox box;
    EvaluationThread thread([&](EvaluationNews const& news) { box.Put(news); });
    int const number = thread.Start(*tests::SeriesOfCloses(tests::WalkingCloses(124, 1)), QuickRequest());
    auto const end = box.WaitForEnd(number);
    EXPECT_EQ(end.Refusal, "Forecasts are tested on 125 days at least; there are 124");
    EXPECT_EQ(end.Result, nullptr);
    EXPECT_EQ(end.Fault, nullptr);
}

TEST(EvaluationThread, TellsAFaultAndGoesOn) {
    EvaluationNewsBox box;
    bool isBroken = true;
    EvaluationThread thread([&](EvaluationNews const& news) { box.Put(news); },
                            [&](auto const&...) -> EvaluationOutcome {
                                if (isBroken) {
                                    throw std::runtime_error("broken");
                                }
                                return {{}, "well"};
                            });
    auto const series = std::make_unique<quotes::QuoteSeries>();
    int const first = thread.Start(*series, {});
    EXPECT_THROW(std::rethrow_exception(box.WaitForEnd(first).Fault), std::runtime_error);
    isBroken = false;
    int const second = thread.Start(*series, {});
    auto const end = box.WaitForEnd(second);
    EXPECT_EQ(end.Fault, nullptr);
    EXPECT_EQ(end.Refusal, "well");
}

// The largest test that there is, ended at any time.
TEST(EvaluationThread, AStoppedTestEndsWithinAFifthOfASecond) {
    auto const series = tests::SeriesOfCloses(tests::WalkingCloses(500, 1));
    for (auto const delay : {0ms, 15ms, 70ms, 300ms}) {
        auto const stop = [&series, delay] {
            EvaluationNewsBox box;
            EvaluationThread thread([&](EvaluationNews const& news) { box.Put(news); });
            int const number = thread.Start(*series, LongRequest());
            box.WaitFor([](EvaluationNews const& news) { return !news.IsOver; });
            std::this_thread::sleep_for(delay);
            auto const before = Clock::now();
            thread.Stop();
            auto const end = box.WaitForEnd(number);
            auto const duration = Clock::now() - before;
            EXPECT_EQ(end.Result, nullptr);
            EXPECT_EQ(end.Refusal, "");
            return duration;
        };
        EXPECT_LT(tests::ShortestOf(3, StopTime, stop), StopTime);
    }
}

TEST(EvaluationThread, AnotherTestEndsTheOneUnderWay) {
    EvaluationNewsBox box;
    EvaluationThread thread([&](EvaluationNews const& news) { box.Put(news); });
    auto const series = tests::SeriesOfCloses(tests::WalkingCloses(500, 2));
    int const first = thread.Start(*series, LongRequest());
    box.WaitFor([](EvaluationNews const& news) { return !news.IsOver; });
    int const second = thread.Start(*tests::SeriesOfCloses(tests::CyclicCloses(200, 1)), QuickRequest());
    EXPECT_NE(first, second);
    EXPECT_NE(box.WaitForEnd(second).Result, nullptr);
    for (auto const& news : box.WaitFor([](EvaluationNews const& one) { return one.IsOver; })) {
        EXPECT_TRUE(news.Number == second || news.Result == nullptr);
    }
}

TEST(EvaluationThread, GoesWithATestUnderWay) {
    auto const series = tests::SeriesOfCloses(tests::WalkingCloses(500, 3));
    auto const go = [&series] {
        EvaluationNewsBox box;
        auto thread = std::make_unique<EvaluationThread>([&](EvaluationNews const& news) { box.Put(news); });
        int const number = thread->Start(*series, LongRequest());
        box.WaitFor([](EvaluationNews const& news) { return !news.IsOver; });
        auto const before = Clock::now();
        thread.reset();
        auto const duration = Clock::now() - before;
        EXPECT_EQ(box.WaitForEnd(number).Result, nullptr);
        return duration;
    };
    EXPECT_LT(tests::ShortestOf(3, StopTime, go), StopTime);
}

} // namespace
} // namespace quorvex::evaluation
