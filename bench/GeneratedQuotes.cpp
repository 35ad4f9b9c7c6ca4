// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "GeneratedQuotes.h"

#include "quotes/QuoteSeries.h"
#include "text/basDates.h"

#include <algorithm>
#include <chrono>
#include <random>

namespace quorvex::bench {

namespace {

constexpr int Middle = 45'000; // cents

// Throws the same numbers in every run. The library's distributions differ between compilers; its engine does
// not.
class Dice {
public:
    int Between(int least, int most) {
        return least + static_cast<int>(engine_() % static_cast<unsigned>(most - least + 1));
    }

private:
    std::mt19937 engine_{20171108}; // NOLINT(cert-msc32-c,cert-msc51-cpp)
};

text::CalendarDay NextWeekday(text::CalendarDay day) {
    using namespace std::chrono;
    do {
        day += days{1};
    } while (weekday{day} == Saturday || weekday{day} == Sunday);
    return day;
}

std::string Price(int cents) {
    std::string const decimals = std::to_string(cents % 100);
    return std::to_string(cents / 100) + (decimals.size() < 2 ? ".0" : ".") + decimals;
}

} // namespace

std::string GeneratedQuoteText() {
    using namespace std::chrono_literals;
    Dice dice;
    std::string text;
    text::CalendarDay day = std::chrono::sys_days{2017y / 11 / 7};
    int close = Middle;
    for (int count = 0; count < quotes::MaxQuotes; ++count) {
        day = NextWeekday(day);
        int const open = close + dice.Between(-200, 200);
        // Drawn back to the middle, so that prices stay there.
        close = open + dice.Between(-600, 600) + (Middle - open) / 20;
        int const high = std::max(open, close) + dice.Between(0, 300);
        int const low = std::min(open, close) - dice.Between(0, 300);
        text += text::FormatDate(day);
        for (int const price : {open, high, low, close}) {
            text += ", " + Price(price);
        }
        for (int const contracts : {dice.Between(20'000, 150'000), dice.Between(80'000, 400'000)}) {
            text += ", " + std::to_string(contracts);
        }
        text += "\r\n";
    }
    return text;
}

} // namespace quorvex::bench
