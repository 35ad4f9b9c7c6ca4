// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is the value of a setting on a line of its own and behind it an INI file.

#include "Require.h"
#include "platform/basProfileTexts.h"
#include "platform/disk/basIniText.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::fuzz {

namespace {

using platform::BareProfileText;
using platform::disk::FindIniValue;
using platform::disk::SetIniValue;

constexpr std::string_view Section = "Globals";
constexpr std::string_view Key = "DataPath";

std::optional<std::string> ValueIn(std::string_view file, std::string_view section, std::string_view key) {
    auto const value = FindIniValue(file, section, key);
    return value ? std::optional<std::string>(*value) : std::nullopt;
}

// How many bytes both begin with and, behind those, both end with.
std::size_t CommonBytes(std::string_view left, std::string_view right) {
    std::size_t const most = std::min(left.size(), right.size());
    std::size_t front = 0;
    while (front < most && left[front] == right[front]) {
        ++front;
    }
    std::size_t back = 0;
    while (back < most - front && left[left.size() - 1 - back] == right[right.size() - 1 - back]) {
        ++back;
    }
    return front + back;
}

void CheckTexts(std::string_view value) {
    Require(BareProfileText(platform::QuoteProfileText(value)) == value);
    std::string_view const cut = platform::CutProfileText(value);
    Require(cut.size() <= platform::MaxProfileText && value.starts_with(cut));
    Require(cut.size() == std::min(value.size(), platform::MaxProfileText) ||
            cut.size() + 3 >= platform::MaxProfileText);
}

void CheckProfileFile(std::string_view value, std::string_view file) {
    CheckTexts(value);
    auto const old = FindIniValue(file, Section, Key);
    Require(!old || (old->data() >= file.data() && old->data() + old->size() <= file.data() + file.size()));

    std::string changed(file);
    if (text::Trap([&] { SetIniValue(changed, Section, Key, value); })) {
        Require(changed == file);
        return;
    }
    auto const fresh = ValueIn(changed, Section, Key);
    Require(fresh && BareProfileText(*fresh) == BareProfileText(value));
    Require(CommonBytes(file, changed) + (old ? old->size() : 0) >= file.size());
    Require(ValueIn(changed, Section, "ChartType") == ValueIn(file, Section, "ChartType"));
    Require(ValueIn(changed, "Other", Key) == ValueIn(file, "Other", Key));

    std::string again = changed;
    SetIniValue(again, Section, Key, value);
    Require(again == changed);
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    std::size_t const valueEnd = std::min(input.find_first_of(std::string_view("\r\n\0", 3)), size);
    quorvex::fuzz::CheckProfileFile(input.substr(0, valueEnd), input.substr(std::min(valueEnd + 1, size)));
    return 0;
}
