// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/SearchThread.h"

#include "support/ShortestOf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <future>
#include <memory>
#include <stdexcept>

namespace quorvex::search {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// Until a thread that was told to stop has ended, at most.
constexpr auto StopTime = tests::Patience * 200ms;

// Keeps the news in order, for another thread to wait for.
class NewsBox {
public:
    void Put(SearchNews const& news) {
        std::scoped_lock const lock(mutex_);
        news_.push_back(news);
        came_.notify_all();
    }

    // All news, once one of them satisfies the condition.
    template <class Condition>
    std::vector<SearchNews> WaitFor(Condition condition) {
        std::unique_lock lock(mutex_);
        auto const isThere = [&] { return std::any_of(news_.begin(), news_.end(), condition); };
        if (!came_.wait_for(lock, 60s, isThere)) {
            ADD_FAILURE() << "the news do not come";
        }
        return news_;
    }

    std::vector<SearchNews> WaitForEnd(int number) {
        return WaitFor([number](SearchNews const& news) { return news.IsOver && news.Number == number; });
    }

private:
    std::mutex mutex_;
    std::condition_variable came_;
    std::vector<SearchNews> news_;
};

SearchRequest RequestOf(int cycleCount, int minPeriod = DefaultMinPeriod, std::optional<int> maxPeriod = {}) {
    SearchRequest request;
    request.CycleCount = cycleCount;
    request.MinPeriod = minPeriod;
    request.MaxPeriod = maxPeriod;
    return request;
}

// So many days that many waves make up.
std::vector<double> Restless(int days) {
    std::vector<double> series;
    for (int day = 1; day <= days; ++day) {
        series.push_back(100 + 9 * std::sin(day / 31.0) + 5 * std::sin(day / 7.3) + day % 13);
    }
    return series;
}

TEST(SearchThread, TellsTheModelsOfTheSearchAndThenItsEnd) {
    NewsBox box;
    SearchThread thread([&](SearchNews const& news) { box.Put(news); });
    SearchRequest const request = RequestOf(4);
    auto const series = Restless(200);
    int const number = thread.Start(series, request);
    auto const news = box.WaitForEnd(number);
    auto const expected = SearchSeries(series, request, [] { return true; });
    ASSERT_EQ(expected.Models.size(), 4U);
    ASSERT_EQ(news.size(), 5U);
    for (std::size_t index = 0; index < 4; ++index) {
        ASSERT_TRUE(news[index].Found);
        EXPECT_EQ(news[index].Found->Cycles, expected.Models[index].Cycles);
        EXPECT_EQ(news[index].Found->Correlation, expected.Models[index].Correlation);
        EXPECT_EQ(news[index].Number, number);
        EXPECT_FALSE(news[index].IsOver);
    }
    EXPECT_FALSE(news[4].Found);
    EXPECT_TRUE(news[4].Refusal.empty());
    EXPECT_EQ(news[4].Fault, nullptr);
}

TEST(SearchThread, TellsARefusal) {
    NewsBox box;
    SearchThread thread([&](SearchNews const& news) { box.Put(news); });
    int const number = thread.Start(Restless(100), RequestOf(3, 50, 20));
    auto const news = box.WaitForEnd(number);
    ASSERT_EQ(news.size(), 1U);
    EXPECT_EQ(news[0].Refusal, "No period lies between 50 and 20 days");
}

TEST(SearchThread, TellsAFaultAndGoesOn) {
    NewsBox box;
    bool isBroken = true;
    SearchThread thread([&](SearchNews const& news) { box.Put(news); },
                        [&](auto const&...) -> SearchOutcome {
                            if (isBroken) {
                                throw std::runtime_error("broken");
                            }
                            return {};
                        });
    int const first = thread.Start({1, 2}, {});
    auto const news = box.WaitForEnd(first);
    ASSERT_EQ(news.size(), 1U);
    EXPECT_THROW(std::rethrow_exception(news[0].Fault), std::runtime_error);
    isBroken = false;
    int const second = thread.Start({1, 2}, {});
    EXPECT_NE(second, first);
    EXPECT_EQ(box.WaitForEnd(second).back().Fault, nullptr);
}

TEST(SearchThread, AnotherSearchEndsTheOneUnderWay) {
    NewsBox box;
    std::promise<void> hasBegun;
    SearchThread thread(
        [&](SearchNews const& news) { box.Put(news); },
        [&](auto, SearchRequest const& request, GoOn const& goOn, auto const&) -> SearchOutcome {
            if (request.CycleCount == 1) {
                hasBegun.set_value();
                while (goOn()) {
                    std::this_thread::sleep_for(1ms);
                }
            }
            return {};
        });
    int const first = thread.Start({1, 2}, RequestOf(1));
    hasBegun.get_future().wait();
    int const second = thread.Start({1, 2}, RequestOf(2));
    auto const news = box.WaitForEnd(second);
    ASSERT_EQ(news.size(), 2U);
    EXPECT_EQ(news[0].Number, first);
    EXPECT_TRUE(news[0].IsOver);
}

TEST(SearchThread, WaitingSearchesButTheLastAreForgotten) {
    NewsBox box;
    std::atomic<int> searched = 0;
    std::promise<void> mayEnd;
    auto const end = mayEnd.get_future().share();
    SearchThread thread([&](SearchNews const& news) { box.Put(news); },
                        [&](auto const&...) -> SearchOutcome {
                            if (++searched == 1) {
                                end.wait();
                            }
                            return {};
                        });
    static_cast<void>(thread.Start({1}, {}));
    while (searched == 0) {
        std::this_thread::yield();
    }
    for (int count = 0; count < 5; ++count) {
        static_cast<void>(thread.Start({1}, {}));
    }
    int const last = thread.Start({1}, {});
    mayEnd.set_value();
    box.WaitForEnd(last);
    EXPECT_EQ(searched, 2);
}

// The longest search that there is, ended at any time.
TEST(SearchThread, AStoppedSearchEndsWithinAFifthOfASecond) {
    auto const series = Restless(500);
    for (auto const delay : {0ms, 5ms, 20ms, 60ms, 120ms}) {
        auto const stop = [&series, delay] {
            NewsBox box;
            SearchThread thread([&](SearchNews const& news) { box.Put(news); });
            int const number = thread.Start(series, RequestOf(10, 2, 500));
            box.WaitFor([](SearchNews const& news) { return news.Found.has_value(); });
            std::this_thread::sleep_for(delay);
            auto const before = Clock::now();
            thread.Stop();
            box.WaitForEnd(number);
            return Clock::now() - before;
        };
        EXPECT_LT(tests::ShortestOf(3, StopTime, stop), StopTime);
    }
}

TEST(SearchThread, GoesWithASearchUnderWay) {
    NewsBox box;
    std::promise<void> hasBegun;
    auto thread = std::make_unique<SearchThread>([&](SearchNews const& news) { box.Put(news); },
                                                 [&](auto, auto const&, GoOn const& goOn, auto const&) {
                                                     hasBegun.set_value();
                                                     while (goOn()) {
                                                         std::this_thread::sleep_for(1ms);
                                                     }
                                                     return SearchOutcome();
                                                 });
    int const number = thread->Start({1, 2}, {});
    hasBegun.get_future().wait();
    thread.reset();
    EXPECT_EQ(box.WaitForEnd(number).size(), 1U);
}

TEST(SearchThread, WithoutASearchThereIsNoNews) {
    int count = 0;
    {
        SearchThread thread([&](SearchNews const&) { ++count; });
        thread.Stop();
    }
    EXPECT_EQ(count, 0);
}

} // namespace
} // namespace quorvex::search
