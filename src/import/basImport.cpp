// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basImport.h"

#include "import/Sample.h"
#include "quotes/QuoteSeries.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

namespace quorvex::imports {

namespace {

// The program refuses a file of fewer days.
void RequireEnoughDays(QuoteFile& file, Conversion const& conversion) {
    if (file.Refused || file.Days.size() >= quotes::MinQuotes) {
        return;
    }
    std::string text = "A quote file has " + std::to_string(quotes::MinQuotes) +
                       " days at least, and there are " + std::to_string(file.Days.size());
    Findings const& leftOut = conversion.LeftOut;
    if (leftOut.Count > 0) {
        text += ". Rows left out: " + std::to_string(leftOut.Count) + ", the first at line " +
                std::to_string(leftOut.Kept.front().Line) + ": " + leftOut.Kept.front().Text;
    }
    file.Refused = Refusal{{0, std::move(text)}, Choice::None};
}

// What is not mostly quotes is another file, such as a vendor's table, of which some lines read as quotes.
void RequireQuotes(QuoteFile& file) {
    std::uint64_t const passed = file.Old->PassedCount;
    if (!file.Refused && passed * 2 > file.Old->Days.size()) {
        file.Refused = Refusal{{0, "What shall be brought up to date is no quote file: quotes in it " +
                                       std::to_string(file.Old->Days.size()) + ", other lines " +
                                       std::to_string(passed)},
                               Choice::None};
    }
}

} // namespace

Conversion ImportTable(text::ByteSource& bytes, Choices const& choices, Limits const& limits) {
    TableText table(bytes, choices.Encoding);
    Sample const sample = ReadSample(table.FirstPart(), table.IsWhole(), choices.Separator);
    return ConvertTable(table.Whole(), MakePlan(sample, table.Is(), choices), limits);
}

bool QuoteFile::HasNews() const {
    bool const isUpdate = Old && Merged;
    bool const isSame =
        isUpdate && std::ranges::equal(Days, Old->Days, [](DayQuote const& one, DayQuote const& other) {
            return one.IsSameAs(other);
        });
    return !Refused && !isSame;
}

QuoteFile MakeQuoteFile(Conversion const& conversion, std::size_t most) {
    QuoteFile file;
    file.Refused = conversion.Refused;
    auto const latest = LatestOf(conversion.Days, most);
    file.Days.assign(latest.begin(), latest.end());
    RequireEnoughDays(file, conversion);
    return file;
}

QuoteFile UpdateQuoteFile(text::ByteSource& source, Conversion const& conversion, bool replaces,
                          std::size_t most) {
    QuoteFile file;
    file.Refused = conversion.Refused;
    file.Old = ReadQuoteFileDays(source);
    file.Refused = file.Refused ? file.Refused : file.Old->Refused;
    RequireQuotes(file);
    file.Merged = MergeDays(file.Old->Days, conversion.Days, replaces, most);
    file.Days = file.Merged->Days;
    RequireEnoughDays(file, conversion);
    return file;
}

} // namespace quorvex::imports
