// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basConvertCSI.h"

#include "convert/basConvertSubs.h"

namespace quorvex::convert {

namespace {

constexpr std::int16_t CsiFieldCount = 7;
constexpr DatePlaces CenturyMonthDay = {5, 7, 3}; // yyyymmdd

} // namespace

ConverterTexts const& CsiTexts() {
    static constexpr ConverterTexts Texts = {
        "frmConvertCSI",
        "Data Conversion Utility - Commodity Systems, Inc.",
        "\nTraders who subscribe to Commodity Systems, Inc., data services will be familiar "
        "with the on-line software interface called 'Unfair Advantage' (UA). \n\n"
        "Use the UA Export Files under the Portfolio option to create single-contract "
        "ASCII text files with the following comma-delimited field layout:\n\n"
        "               yyyymmdd,   open,   high,   low,   close,   volume,   open interest   <CR>\n",
        "CSI Source File Name",
        "*.txt",
        TextFilesFirst,
    };
    return Texts;
}

platform::Message CsiHelpMessage() {
    return {"Locate the existing CSI text file using the Browse button.\n\n"
            "Confirm that the field layout in the lower text area matches the required format.\n\n"
            "Type in a valid destination file name.\n\n"
            "Click on the Convert button.",
            std::string(ConversionTitle), platform::Icon::Information};
}

std::int16_t CsiLayout::FieldCount() const {
    return CsiFieldCount;
}

bool CsiLayout::FormatQuoteLine(Fields const& fields, std::string& line) const {
    if (!AppendDate(fields[1], CenturyMonthDay, line)) {
        return false;
    }
    for (std::int16_t field = 2; field <= CsiFieldCount; ++field) {
        AppendField(fields[field], line);
    }
    return true;
}

} // namespace quorvex::convert
