// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/basCodePages.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quorvex::richtext {

// The fonts of a document by the numbers that the document gives them. The default font is there from the
// start, with index 0.
class FontTable {
public:
    FontTable();

    // Which number the default font has. Counts only in front of the table.
    void SetDefault(int number);

    // Starts the entry of the font with this number; what was said of it before is forgotten.
    void StartEntry(int number);
    void SetCharacterSet(int characterSet);
    void SetCodePage(int number);

    // Takes the next character of the name. A semicolon ends the entry.
    void TakeCharacter(char32_t character);
    void EndEntry();

    // The code page that the name of the current entry is written in; empty: that of the document.
    [[nodiscard]] std::optional<CodePage> EntryPage() const;

    // The index of the font with this number; that of the default font when the table has no such font.
    [[nodiscard]] std::uint16_t IndexOf(int number) const;

    // The code page of text in the font; empty: that of the document.
    [[nodiscard]] std::optional<CodePage> PageOf(std::uint16_t index) const { return pages_[index]; }

    // The names by index. The table is of no use afterwards.
    [[nodiscard]] std::vector<std::string> ReleaseNames() { return std::move(names_); }

private:
    struct Entry {
        int Number = 0;
        int CodePage = 0; // 0: that of the document
        bool IsSymbols = false;
        std::string Name;
    };

    [[nodiscard]] std::optional<std::size_t> FindOrAdd(int number);

    std::vector<std::string> names_;
    std::vector<std::optional<CodePage>> pages_;
    std::map<int, std::uint16_t> indexes_;
    std::optional<Entry> entry_;
};

} // namespace quorvex::richtext
