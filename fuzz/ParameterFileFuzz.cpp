// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is a parameter file.

#include "Require.h"
#include "cycles/CycleParameterSet.h"
#include "cycles/basParameters.h"
#include "text/RunTimeError.h"
#include "text/basFields.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace quorvex::fuzz {

namespace {

using cycles::CycleCount;
using text::Fault;

constexpr int NumbersInACycle = 4;
constexpr double Untouched = 0.123;

int FieldCount(std::string_view file) {
    text::TextSource source(file);
    text::FieldReader fields(source);
    int count = 0;
    for (; !fields.AtEnd(); ++count) {
        static_cast<void>(fields.Take());
    }
    return count;
}

// How the reading of so many fields ends when all their numbers are in range.
std::optional<Fault> ExpectedFault(int fieldCount) {
    if (fieldCount >= (CycleCount + 1) * NumbersInACycle) {
        return Fault::SubscriptOutOfRange;
    }
    if (fieldCount % NumbersInACycle != 0) {
        return Fault::InputPastEnd;
    }
    return std::nullopt;
}

void CheckParameters(std::string_view file) {
    auto const set = std::make_unique<cycles::CycleParameterSet>();
    for (int row = 1; row <= CycleCount; ++row) {
        set->Cycles[row].Weight = Untouched;
    }
    text::TextSource source(file);
    auto const error = text::Trap([&] { cycles::ReadParameters(source, *set); });

    int const fieldCount = FieldCount(file);
    if (!error || error->Kind() != Fault::Overflow) {
        auto const expected = ExpectedFault(fieldCount);
        Require(error.has_value() == expected.has_value());
        Require(!error || error->Kind() == *expected);
    }
    for (int row = 1; row <= CycleCount; ++row) {
        auto const& cycle = set->Cycles[row];
        Require(std::isfinite(cycle.Weight) && std::isfinite(cycle.Period));
        Require(std::isfinite(cycle.Shift) && std::isfinite(cycle.Decay));
        Require(row <= fieldCount / NumbersInACycle || cycle.Weight == Untouched);
    }
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    quorvex::fuzz::CheckParameters(input);
    return 0;
}
