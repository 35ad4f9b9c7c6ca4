// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The daily quotes of one contract.
#pragma once

#include "text/SlotArray.h"

#include <cstdint>
#include <string>

namespace quorvex::quotes {

// The most days that are read from a file, and the fewest that can be analysed.
inline constexpr std::int16_t MaxQuotes = 500;
inline constexpr std::int16_t MinQuotes = 25;

// One trading day. Prices, volume and open interest are rounded to the currency format.
struct QuoteRecord {
    std::string Date; // "mm/dd/yy"
    double Open = 0;
    double High = 0;
    double Low = 0;
    double Close = 0;
    double Volume = 0;
    double OpenInterest = 0;

    friend bool operator==(QuoteRecord const&, QuoteRecord const&) = default;
};

// Days are counted from 1, oldest first; slot 0 is never filled.
using QuoteRecords = text::SlotArray<QuoteRecord, MaxQuotes>;

struct QuoteSeries {
    QuoteRecords Master;           // everything read from the file
    QuoteRecords Working;          // what is analysed and drawn
    std::int16_t QuoteCount = 0;   // days in Master
    std::int16_t WorkingCount = 0; // days in Working
    std::string FirstQuoteDate;    // of the days analysed
    std::string LastQuoteDate;
    std::string QuoteFileName; // without folder; empty when no quote file is open

    // The one test of whether a quote file is open. When none is, both counts are 0.
    [[nodiscard]] bool HasQuotes() const { return !QuoteFileName.empty(); }
};

// Closes the quote file: name empty, counts 0. The records stay where they are; nothing uses them then.
void CloseQuoteFile(QuoteSeries& series);

// Makes the working copy the whole series: its records, its count and its first and last date.
void AnalyseWholeSeries(QuoteSeries& series);

// Takes the first and last date from the working copy. REQUIRES: one working day at least.
void TakeDatesOfWorkingCopy(QuoteSeries& series);

} // namespace quorvex::quotes
