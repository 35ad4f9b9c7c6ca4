// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The first rows of a table, from which the plan is made and which a preview shows.
#pragma once

#include "import/Choices.h"
#include "import/Decoding.h"
#include "text/basFields.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::imports {

// A vendor's table as text: its first part, to be looked at, and the whole of it, to be read once.
class TableText {
public:
    // Reads the first part. The bytes must outlive the text. Raises the faults of the source.
    TableText(text::ByteSource& bytes, std::optional<Encoding> encoding);

    [[nodiscard]] Encoding Is() const { return encoding_; }

    // Some hundred rows, as UTF-8.
    [[nodiscard]] std::string const& FirstPart() const { return firstPart_; }

    [[nodiscard]] bool IsWhole() const { return isWhole_; }

    // All of it from the start, once.
    [[nodiscard]] text::ByteSource& Whole() { return whole_; }

private:
    std::string start_;
    Encoding encoding_;
    StartedSource bytes_;
    DecodedSource decoded_;
    std::string firstPart_;
    bool isWhole_;
    StartedSource whole_;
};

inline constexpr std::size_t SampleRows = 500;

// Of a row of quotes: a day and four prices.
inline constexpr std::size_t FewestCells = 5;

struct SampleRow {
    std::uint64_t Line = 0;
    std::vector<std::string> Cells;
};

struct Sample {
    Separator SeparatedBy = Separator::Comma;
    std::vector<SampleRow> Rows; // at most SampleRows
    std::optional<Refusal> Refused;
};

// Splits the first part of a table, by the separator that makes the most rows of quotes unless one is chosen.
[[nodiscard]] Sample ReadSample(std::string_view firstPart, bool isWhole, std::optional<Separator> chosen);

// Whether a row has a day and four numbers besides.
[[nodiscard]] bool LooksLikeQuotes(SampleRow const& row);

// Whether a cell can be a number under either decimal mark, be it a fraction that is not settled yet.
[[nodiscard]] bool LooksLikeNumber(std::string_view cell);

} // namespace quorvex::imports
