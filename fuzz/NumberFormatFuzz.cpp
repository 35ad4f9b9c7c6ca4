// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is a double and behind it the text of a number format.

#include "Require.h"
#include "text/RunTimeError.h"
#include "text/basFormats.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::fuzz {

namespace {

// The slow way round: through the printed text.
double ThroughText(std::string const& printed) {
    return printed.empty() || printed == "." ? 0 : text::StrictNumber(printed);
}

bool IsPlace(char c) {
    return c == '0' || c == '#';
}

// To some number of decimals up to the most.
bool IsRounded(double rounded, double value, std::ptrdiff_t most) {
    std::string format = "0.";
    for (std::ptrdiff_t decimals = 0; decimals <= most; ++decimals) {
        if (text::NumberFormat(format).Round(value) == rounded) {
            return true;
        }
        format += '0';
    }
    return false;
}

void CheckFormat(double value, std::string_view formatText) {
    text::NumberFormat const format(formatText);
    std::string const printed = format.Format(value);

    std::string appended = "x";
    format.AppendTo(appended, value);
    Require(appended == 'x' + printed);
    Require(text::FormatNumber(value, formatText) == printed);

    double rounded = 0;
    double expected = 0;
    auto const error = text::Trap([&] { rounded = format.Round(value); });
    auto const expectedError = text::Trap([&] { expected = ThroughText(printed); });
    Require(std::isfinite(rounded));
    Require(error.has_value() == expectedError.has_value());
    Require(!error || error->Kind() == expectedError->Kind());
    Require(rounded == expected);

    // What such a format has rounded stays as it is, or is a zero that the format has no number for.
    if (!error && format.RoundsOnly()) {
        Require(rounded == value ||
                IsRounded(rounded, value, std::count_if(formatText.begin(), formatText.end(), IsPlace)));
        auto const raised = text::Trap([&] { Require(format.Round(rounded) == rounded); });
        Require(!raised || rounded == 0);
    }
    bool const isNothingButPlaces = formatText.find_first_not_of("#0.") == std::string_view::npos;
    Require(!isNothingButPlaces || std::count(formatText.begin(), formatText.end(), '.') > 1 ||
            format.RoundsOnly());
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    double value = 0;
    if (input.size() < sizeof value) {
        return 0;
    }
    std::memcpy(&value, input.data(), sizeof value);
    if (std::isfinite(value)) {
        quorvex::fuzz::CheckFormat(value, input.substr(sizeof value));
    }
    return 0;
}
