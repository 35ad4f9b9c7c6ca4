// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is the text of a date.

#include "Require.h"
#include "text/RunTimeError.h"
#include "text/basDates.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorvex::fuzz {

namespace {

void CheckDay(text::CalendarDay day) {
    constexpr std::chrono::year FirstYear{100};
    constexpr std::chrono::year LastYear{9999};
    std::chrono::year_month_day const date{day};
    Require(date.ok() && date.year() >= FirstYear && date.year() <= LastYear);

    std::string const written = text::FormatDate(day);
    auto const again = text::ParseDate(written);
    Require(again.has_value());
    Require(text::FormatDate(*again) == written);
}

void CheckDate(std::string_view text) {
    auto const day = text::ParseDate(text);
    auto const error = text::Trap([&] { Require(text::RequireDate(text) == day); });
    Require(error.has_value() == !day.has_value());
    if (day) {
        CheckDay(*day);
    } else {
        Require(error->Kind() == text::Fault::TypeMismatch);
    }
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    quorvex::fuzz::CheckDate(input);
    return 0;
}
