// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/FontTable.h"

#include <limits>

namespace quorvex::richtext {

namespace {

// Of a document that names no font.
constexpr char const* StandardFont = "Times New Roman";

// Longer names are cut: no font has one.
constexpr std::size_t LongestName = 128;

} // namespace

FontTable::FontTable() : names_{StandardFont}, pages_{std::nullopt}, indexes_{{0, std::uint16_t{0}}} {}

void FontTable::SetDefault(int number) {
    if (names_.size() == 1) {
        indexes_ = {{number, std::uint16_t{0}}};
    }
}

void FontTable::StartEntry(int number) {
    EndEntry();
    Entry entry;
    entry.Number = number;
    entry_ = std::move(entry);
}

void FontTable::SetCharacterSet(int characterSet) {
    if (entry_) {
        entry_->IsSymbols = characterSet == SymbolCharacterSet;
        entry_->CodePage = CodePageOfCharacterSet(characterSet);
    }
}

void FontTable::SetCodePage(int number) {
    if (entry_) {
        entry_->CodePage = number;
    }
}

void FontTable::TakeCharacter(char32_t character) {
    if (!entry_) {
        return;
    }
    if (character == U';') {
        EndEntry();
    } else if (entry_->Name.size() < LongestName && !(entry_->Name.empty() && character == U' ')) {
        AppendUtf8(entry_->Name, character);
    }
}

void FontTable::EndEntry() {
    if (!entry_) {
        return;
    }
    auto const entry = *std::exchange(entry_, std::nullopt);
    auto const index = FindOrAdd(entry.Number);
    if (!index) {
        return;
    }
    if (!entry.Name.empty()) {
        names_[*index] = entry.Name;
    }
    if (entry.IsSymbols) {
        pages_[*index] = FindSymbolPage(entry.Name);
    } else if (entry.CodePage != 0) {
        pages_[*index] = FindCodePage(entry.CodePage);
    } else {
        pages_[*index] = std::nullopt;
    }
}

std::optional<CodePage> FontTable::EntryPage() const {
    if (!entry_ || entry_->CodePage == 0) {
        return std::nullopt;
    }
    return FindCodePage(entry_->CodePage);
}

std::uint16_t FontTable::IndexOf(int number) const {
    auto const found = indexes_.find(number);
    return found == indexes_.end() ? std::uint16_t{0} : found->second;
}

// Nothing when there are as many fonts as an index can tell apart.
std::optional<std::size_t> FontTable::FindOrAdd(int number) {
    auto const found = indexes_.find(number);
    if (found != indexes_.end()) {
        return found->second;
    }
    if (names_.size() > std::numeric_limits<std::uint16_t>::max()) {
        return std::nullopt;
    }
    auto const index = names_.size();
    indexes_.emplace(number, static_cast<std::uint16_t>(index));
    names_.emplace_back(StandardFont);
    pages_.emplace_back();
    return index;
}

} // namespace quorvex::richtext
