// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basImport.h"

#include "import/Sample.h"
#include "quotes/QuoteSeries.h"

#include <algorithm>
#include <string>

namespace quorvex::imports {

namespace {

// The program refuses a file of fewer days.
void RequireEnoughDays(QuoteFile& file) {
    if (!file.Refused && file.Days.size() < quotes::MinQuotes) {
        file.Refused = Refusal{{0, "A quote file has " + std::to_string(quotes::MinQuotes) +
                                       " days at least, and there are " + std::to_string(file.Days.size())},
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
    RequireEnoughDays(file);
    return file;
}

QuoteFile UpdateQuoteFile(text::ByteSource& source, Conversion const& conversion, bool replaces,
                          std::size_t most) {
    QuoteFile file;
    file.Refused = conversion.Refused;
    file.Old = ReadQuoteFileDays(source);
    file.Refused = file.Refused ? file.Refused : file.Old->Refused;
    file.Merged = MergeDays(file.Old->Days, conversion.Days, replaces, most);
    file.Days = file.Merged->Days;
    RequireEnoughDays(file);
    return file;
}

} // namespace quorvex::imports
