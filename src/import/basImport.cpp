// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basImport.h"

#include "import/Sample.h"
#include "quotes/QuoteSeries.h"
#include "text/RunTimeError.h"

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

void Refuse(QuoteFile& file, std::string why) {
    if (!file.Refused) {
        file.Refused = Refusal{{0, std::move(why)}, Choice::None};
    }
}

// The new file has the quotes of the old one and nothing else, so that there must be nothing else: a remark
// may shift the fields of all days behind it. What is not mostly quotes is another file, such as a vendor's
// table, of which some lines read as quotes.
void RequireQuotes(QuoteFile& file) {
    std::uint64_t const passed = file.Old->PassedCount;
    std::size_t const count = file.Old->Days.size();
    if (passed * 2 > count) {
        Refuse(file, "What shall be brought up to date is no quote file: quotes in it " +
                         std::to_string(count) + ", other lines " + std::to_string(passed));
    } else if (passed > 0) {
        Refuse(
            file,
            "What shall be brought up to date has lines that are no quotes, or shifted ones, and would lose "
            "them: quotes in it " +
                std::to_string(count) + ", other lines " + std::to_string(passed));
    }
}

// Most figures are others when the table is of another contract, or of one whose prices were adjusted.
void RequireSameContract(QuoteFile& file, bool replaces) {
    constexpr std::size_t Few = 5; // which a vendor may have corrected
    std::size_t const changed = file.Merged->Changed.size();
    std::uint64_t const shared = file.Merged->EqualCount + changed;
    if (!replaces && changed >= Few && changed * 2 > shared) {
        Refuse(
            file,
            "The table looks like another contract's: " + std::to_string(changed) + " of the " +
                std::to_string(shared) +
                " days that are there already have other figures. Replacing them takes those of the table");
    }
}

// A format that spells no numbers rounds none: no quote file opens with it, which is told then.
bool IsRounded(double price, text::NumberFormat const& format) {
    bool isRounded = false;
    static_cast<void>(text::Trap([&] { isRounded = format.Round(price) != price; }));
    return isRounded;
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
    RequireSameContract(file, replaces);
    RequireEnoughDays(file, conversion);
    return file;
}

Occurrences CountRounded(std::span<DayQuote const> days, text::NumberFormat const& format) {
    Occurrences rounded;
    for (DayQuote const& quote : days) {
        auto const prices = std::span(quote.Figures).first<PriceCount>();
        if (quote.Line > 0 &&
            std::ranges::any_of(prices, [&](double price) { return IsRounded(price, format); })) {
            rounded.Add(quote.Line);
        }
    }
    return rounded;
}

} // namespace quorvex::imports
