// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Reading and writing quote files: docs/formats/quote-file.md. What looks odd is meant: docs/behaviour.md.
#pragma once

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"
#include "text/basDates.h"
#include "text/basFields.h"
#include "text/basFormats.h"
#include "text/basNumbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace quorvex::quotes {

// A line as it stands in a quote file, its numbers not rounded: four prices, volume, open interest. A number
// beyond a double is infinite.
struct QuoteLine {
    std::optional<text::CalendarDay> Date;
    std::array<text::SpelledNumber, 6> Numbers{};

    // Raises "Overflow" for one beyond a double.
    [[nodiscard]] double Number(std::size_t index) const;

    // Whether the date is one and the product of the four prices is above zero. Raises "Overflow".
    [[nodiscard]] bool IsQuote() const;
};

// The next seven fields, wherever the lines break; those missing at the end of the file are empty.
[[nodiscard]] QuoteLine ReadQuoteLine(text::FieldReader& fields);

// Reads quotes, oldest first, into both copies from day 1 on and returns how many days were stored, 0..500. A
// line whose date is none, or whose four prices have a product that is not above zero, is skipped; reading
// ends behind day 500. Every number is rounded through the format. Counts, dates and name of the series are
// left alone. A fault of the source, and "Overflow" of a number beyond a double, leave both copies as they
// were.
[[nodiscard]] std::int16_t ReadQuotes(text::ByteSource& source, text::NumberFormat const& format,
                                      QuoteSeries& series);

// Reads the quote file named by the series from the data folder into both copies, oldest day first, prices
// rounded through the currency format. Returns the number of days, 25..500, or 0 when the file was refused:
// then a message was shown and no file is open. A file that cannot be read returns 0 too, after its fault was
// shown, and leaves the series as it was.
std::int16_t LoadQuoteFile(QuoteSeries& series, settings::Settings const& settings,
                           platform::Files const& files, platform::Dialogs& dialogs);

// Puts the number behind the text in the form in which a quote file holds it. A quote file is the user's
// data: raises "Type mismatch" when the format spells the number in a way that would not read back as the
// same one, such as with thousands commas, and for every number when the format makes other numbers of them
// by digits or signs of its own: then the number was read as another one already.
void AppendReadableNumber(std::string& text, double value, text::NumberFormat const& format);

// The working copy as the text of a quote file. Raises the fault of AppendReadableNumber.
[[nodiscard]] std::string QuoteFileText(QuoteSeries const& series, text::NumberFormat const& format);

// Writes the working copy into the data folder under the name, which may be in use, and makes it the master
// copy. Returns false after a fault was shown: then the series and any file of that name are as they were.
bool SaveQuoteFile(std::string const& fileName, QuoteSeries& series, settings::Settings const& settings,
                   platform::Files& files, platform::Dialogs& dialogs);

} // namespace quorvex::quotes
