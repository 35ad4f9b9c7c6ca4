// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is the text of a number; its first bytes are taken as a double as well.

#include "Require.h"
#include "text/RunTimeError.h"
#include "text/basNumbers.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace quorvex::fuzz {

namespace {

using text::Fault;

// What a routine made of the text: a number or a fault.
struct Reading {
    std::optional<double> Number;
    std::optional<Fault> Refusal;

    friend bool operator==(Reading const&, Reading const&) = default;
};

template <class Routine>
Reading Read(Routine read, std::string_view text) {
    Reading reading;
    auto const error = text::Trap([&] { reading.Number = read(text); });
    if (error) {
        reading.Refusal = error->Kind();
    }
    return reading;
}

void CheckPlainText(double value) {
    Require(text::StrictNumber(text::PlainNumber(value)) == value);
}

void CheckText(std::string_view text) {
    Reading const leading = Read(text::LeadingNumber, text);
    Reading const strict = Read(text::StrictNumber, text);
    Require(leading.Number || leading.Refusal == Fault::Overflow);
    Require(strict.Number || strict.Refusal == Fault::Overflow || strict.Refusal == Fault::TypeMismatch);
    for (auto const& number : {leading.Number, strict.Number}) {
        if (number) {
            Require(std::isfinite(*number));
            CheckPlainText(*number);
        }
    }
    // A text that is wholly a number starts with that number, thousands commas aside.
    if (strict.Refusal != Fault::TypeMismatch && text.find(',') == std::string_view::npos) {
        Require(strict == leading);
    }
}

void CheckDouble(std::string_view bytes) {
    double value = 0;
    if (bytes.size() >= sizeof value) {
        std::memcpy(&value, bytes.data(), sizeof value);
    }
    if (std::isfinite(value)) {
        CheckPlainText(value);
    }
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    quorvex::fuzz::CheckText(input);
    quorvex::fuzz::CheckDouble(input);
    return 0;
}
