// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/KeptSets.h"

#include "platform/basFiles.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace quorvex::editor {

namespace {

std::string NumberedPath(std::string const& name, int number) {
    return number == 1 ? name : name + '.' + std::to_string(number);
}

std::optional<int> NumberOfEnd(std::string_view end) {
    constexpr int Most = 1'000'000;
    int number = 0;
    auto const [behind, error] = std::from_chars(end.data(), end.data() + end.size(), number);
    bool const isNumber = error == std::errc() && behind == end.data() + end.size();
    return isNumber && number > 1 && number < Most ? std::optional(number) : std::nullopt;
}

// The numbers of the files that are there, the highest first. The system may spell the name in another case.
std::vector<int> FindNumbers(platform::Files const& files, std::string const& name) {
    std::string const bare = std::string(platform::BareName(name)) + '.';
    std::vector<int> numbers;
    for (std::string const& found : files.List(name.substr(0, name.size() + 1 - bare.size()), bare + '*')) {
        bool const isLonger = found.size() > bare.size();
        auto const number =
            isLonger ? NumberOfEnd(std::string_view(found).substr(bare.size())) : std::nullopt;
        if (number && platform::IsThere(files, NumberedPath(name, *number))) {
            numbers.push_back(*number);
        }
    }
    if (platform::IsThere(files, name)) {
        numbers.push_back(1);
    }
    std::ranges::sort(numbers, std::greater<>());
    return numbers;
}

bool HasLength(platform::Files const& files, std::string const& path) {
    return !text::Trap([&] { static_cast<void>(files.Length(path)); });
}

} // namespace

KeptSets ReadKeptSets(platform::Files const& files, std::string const& name) {
    KeptSets kept;
    for (int const number : FindNumbers(files, name)) {
        std::string const path = NumberedPath(name, number);
        std::optional<std::string> text;
        auto const fault = text::Trap([&] { text = platform::ReadFileIfThere(files, path); });
        if (!kept.Fault) {
            kept.Fault = fault;
        }
        if (auto edits = text ? ReadKeptEdits(*text) : std::nullopt) {
            kept.Sets.push_back({path, std::move(*text), std::move(*edits)});
        }
    }
    return kept;
}

std::string NextKeptPath(platform::Files const& files, std::string const& name) {
    auto const numbers = FindNumbers(files, name);
    int number = numbers.empty() ? 1 : numbers.front() + 1;
    while (HasLength(files, NumberedPath(name, number))) {
        ++number; // a folder that cannot be listed hides what is in it
    }
    return NumberedPath(name, number);
}

bool HoldsMark(platform::Files const& files, std::string const& path, std::string const& mark) {
    if (mark.empty() || !platform::IsThere(files, path)) {
        return false;
    }
    auto const content = platform::ReadFileIfThere(files, path);
    return content && MarkOf(*content) == mark;
}

MarkedFile MarkedFileOf(KeptSet const& set) {
    return {set.Path, MarkOf(set.Text)};
}

void RemoveMarked(platform::Files& files, MarkedFile const& file) {
    if (!HoldsMark(files, file.Path, file.Mark)) {
        return;
    }
    auto const fault = text::Trap([&] { files.Remove(file.Path); });
    if (fault && fault->Kind() != text::Fault::FileNotFound) { // else somebody else has deleted it
        throw text::RunTimeError(fault->Kind());
    }
}

} // namespace quorvex::editor
