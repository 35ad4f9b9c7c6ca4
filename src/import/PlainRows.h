// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Rows of nothing but a date and plain numbers, read in one pass over their bytes: as nearly all rows of long
// tables are. Whatever else a row has is left to the readers of records, dates and figures, which give the
// same for the rows that are read here.
#pragma once

#include "import/basConversion.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvex::imports {

struct PlainRow {
    DayQuote Quote;         // its line is not known here
    std::string_view Date;  // as it stands
    std::size_t Length = 0; // of the line with its end
};

class PlainRowReader {
public:
    PlainRowReader(Plan const& plan, DateOrder order, DecimalMark mark);

    // Reads the row at the start of the text. Returns false when it is no such row, or its line does not end
    // in the text. REQUIRES: a LF stands behind the text, as behind what a RecordReader has ahead.
    [[nodiscard]] bool Read(std::string_view text, PlainRow& row) const;

private:
    [[nodiscard]] bool TakeDate(char const*& at, char const* end, PlainRow& row) const;
    [[nodiscard]] char const* FindEnd(char const* at) const;

    struct PlainColumn {
        Role Is = Role::Unused;
        std::size_t Figure = FigureCount; // its place, when it is one
    };

    std::vector<PlainColumn> columns_; // none when rows of this table are never plain
    bool lacksVolume_;
    bool lacksOpenInterest_;
    DateOrder order_;
    char separator_;
    char mark_;
};

} // namespace quorvex::imports
