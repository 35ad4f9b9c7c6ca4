// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basConvertBarChart.h"

#include <algorithm>

namespace quorvex::convert {

namespace {

constexpr DatePlaces MonthDayCentury = {1, 4, 9}; // mm/dd/yyyy
constexpr DatePlaces YearMonthDay = {3, 5, 1};    // yymmdd

constexpr std::array<BarchartLayout::FieldPlaces, BarchartFormatCount> PlacesOfFormats = {{
    {7, 3, MonthDayCentury, 4, 0}, // C
    {7, 3, MonthDayCentury, 4, 0}, // D
    {8, 2, YearMonthDay, 3, 7},    // E
    {9, 3, YearMonthDay, 4, 8},    // F
    {9, 3, YearMonthDay, 4, 8},    // G
    {8, 2, YearMonthDay, 3, 7},    // N
    {8, 2, YearMonthDay, 3, 7},    // S
    {6, 2, YearMonthDay, 3, 0},    // Y
}};

constexpr std::size_t IndexOf(BarchartFormat format) {
    return static_cast<std::size_t>(format) - 1;
}

constexpr BarchartFormat FormatAt(std::size_t index) {
    return static_cast<BarchartFormat>(index + 1);
}

} // namespace

std::array<BarchartOption, BarchartFormatCount> const& BarchartOptions() {
    static constexpr std::array<BarchartOption, BarchartFormatCount> Options = {{
        {'C',
         "  C Format:        Symbol,   MYYYY,   mm/dd/yyyy,   open,   high,   low,   close   (no decimal)"},
        {'D', "  D Format:        Symbol,   MYYYY,   mm/dd/yyyy,   open,   high,   low,   close   (decimal)"},
        {'E', "  E Format:        SYYYYM    yymmdd    open    high     low    close    volume    "
              "open interest   (no decimal)"},
        {'F', "  F Format:        Symbol,   YYYYM,   yymmdd,   open,   high,   low,   close,   volume,   "
              "open interest   (no decimal)"},
        {'G', "  G Format:        Symbol,   MYYYY,   yymmdd,   open,   high,   low,   close,   volume,   "
              "open interest   (decimal)"},
        {'N', "  N Format:        Symbol,   yymmdd,   open,   high,   low,   close,   volume,   "
              "open interest   (decimal)"},
        {'S', "  S Format:        S_MY,     yymmdd,   open,   high,   low,   close,   volume,   "
              "open interest   (decimal)"},
        {'Y', "  Y Format:        SMY,      yymmdd,   open,   high,   low,   close   (decimal)"},
    }};
    return Options;
}

ConverterTexts const& BarchartTexts() {
    static constexpr ConverterTexts Texts = {
        "frmConvertBarChart",
        "Data Conversion Utility - Barchart Files",
        "\nBarchart provides quote data in over 10 different formats. "
        "Follow the instructions in their User Manual or On-Line Help and download "
        "quote files in any of the formats listed below. The download files must be "
        "single-contract expiration month and year. Aggregate files with more "
        "than one contract expiration month must be broken into single-contract files "
        "before running the Veltrano Analytical Suite data conversion utility.",
        "Barchart Source File Name",
        "*.txt",
        TextFilesFirst,
    };
    return Texts;
}

BarchartFormat ChosenFormat(std::array<bool, BarchartFormatCount> const& selected) {
    auto const first = std::find(selected.begin(), selected.end() - 1, true);
    return FormatAt(static_cast<std::size_t>(first - selected.begin()));
}

std::optional<BarchartFormat> FormatOfLetter(std::string_view letter) {
    for (std::size_t index = 0; index < BarchartFormatCount; ++index) {
        if (letter == std::string_view(&BarchartOptions()[index].Letter, 1)) {
            return FormatAt(index);
        }
    }
    return std::nullopt;
}

BarchartLayout::BarchartLayout(BarchartFormat format) : places_(PlacesOfFormats.at(IndexOf(format))) {}

bool BarchartLayout::FormatQuoteLine(Fields const& fields, std::string& line) const {
    constexpr std::int16_t PriceCount = 4;
    if (!AppendDate(fields[places_.Date], places_.DatePieces, line)) {
        return false;
    }
    for (std::int16_t price = 0; price < PriceCount; ++price) {
        AppendField(fields[places_.Open + price], line);
    }
    bool const hasVolume = places_.Volume != 0;
    AppendField(hasVolume ? fields[places_.Volume] : "0", line);
    AppendField(hasVolume ? fields[places_.Volume + 1] : "0", line);
    return true;
}

} // namespace quorvex::convert
