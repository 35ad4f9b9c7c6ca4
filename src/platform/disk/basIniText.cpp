// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/basIniText.h"

#include "platform/basProfileTexts.h"
#include "text/Characters.h"
#include "text/RunTimeError.h"
#include "text/basTexts.h"

#include <algorithm>
#include <cstddef>

namespace quorvex::platform::disk {

namespace {

constexpr std::string_view LineEnd = "\r\n";

// Where something stands in a file.
struct IniPlaces {
    std::optional<std::string_view> Value;
    std::optional<std::size_t>
        NewEntry; // where a new key of the section belongs; nothing without the section
};

bool IsSameName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return text::UpperCase(a) == text::UpperCase(b); });
}

std::size_t ContentStart(std::string_view file) {
    return file.starts_with(text::ByteOrderMark) ? text::ByteOrderMark.size() : 0;
}

// Where the line behind the one with this end begins.
std::size_t NextLine(std::string_view file, std::size_t lineEnd) {
    std::string_view const end = file.substr(lineEnd, LineEnd.size());
    return lineEnd + (end == LineEnd ? end.size() : std::min<std::size_t>(end.size(), 1));
}

// The name in a line such as "[Globals]"; what stands behind the bracket is a remark.
std::optional<std::string_view> SectionName(std::string_view line) {
    auto const end = line.find(']');
    if (!line.starts_with('[') || end == std::string_view::npos) {
        return std::nullopt;
    }
    return text::TrimBlanksAndTabs(line.substr(1, end - 1));
}

std::optional<std::string_view> ValueOfKey(std::string_view line, std::string_view key) {
    auto const equals = line.find('=');
    if (equals == std::string_view::npos ||
        !IsSameName(text::TrimBlanksAndTabs(line.substr(0, equals)), key)) {
        return std::nullopt;
    }
    return text::TrimBlanksAndTabs(line.substr(equals + 1));
}

bool IsEntry(std::string_view line) {
    return !line.empty() && line.front() != ';' && line.front() != '#';
}

IniPlaces Locate(std::string_view file, std::string_view section, std::string_view key) {
    IniPlaces places;
    for (std::size_t at = ContentStart(file); at < file.size() && !places.Value;) {
        std::size_t const end = std::min(file.find_first_of(LineEnd, at), file.size());
        auto const line = text::TrimBlanksAndTabs(file.substr(at, end - at));
        at = NextLine(file, end);
        if (auto const name = SectionName(line)) {
            if (places.NewEntry) {
                break;
            }
            if (IsSameName(*name, section)) {
                places.NewEntry = at;
            }
        } else if (places.NewEntry && IsEntry(line)) {
            places.Value = ValueOfKey(line, key);
            places.NewEntry = at;
        }
    }
    return places;
}

void InsertLines(std::string& file, std::size_t at, std::string_view lines) {
    bool const isInsideLine = at > ContentStart(file) && LineEnd.find(file[at - 1]) == std::string_view::npos;
    file.insert(at, lines);
    if (isInsideLine) {
        file.insert(at, LineEnd);
    }
}

} // namespace

std::optional<std::string_view> FindIniValue(std::string_view file, std::string_view section,
                                             std::string_view key) {
    return Locate(file, section, key).Value;
}

void SetIniValue(std::string& file, std::string_view section, std::string_view key, std::string_view value) {
    if (file.starts_with("\xFF\xFE") || file.starts_with("\xFE\xFF")) {
        throw text::RunTimeError(text::Fault::TypeMismatch);
    }
    IniPlaces const places = Locate(file, section, key);
    if (places.Value) {
        if (BareProfileText(*places.Value) != BareProfileText(value)) {
            file.replace(static_cast<std::size_t>(places.Value->data() - file.data()), places.Value->size(),
                         value);
        }
        return;
    }
    std::string lines;
    if (!places.NewEntry) {
        lines.append("[").append(section).append("]").append(LineEnd);
    }
    lines.append(key).append("=").append(value).append(LineEnd);
    InsertLines(file, places.NewEntry.value_or(file.size()), lines);
}

} // namespace quorvex::platform::disk
