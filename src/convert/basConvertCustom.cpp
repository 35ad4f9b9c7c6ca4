// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basConvertCustom.h"

#include "convert/basConvertSubs.h"
#include "text/RunTimeError.h"
#include "text/basNumbers.h"
#include "text/basTexts.h"

#include <algorithm>

namespace quorvex::convert {

namespace {

// Where the names stand in FieldNames.
constexpr std::size_t Date = 0;
constexpr std::size_t Open = 1;
constexpr std::size_t Close = 4;
constexpr std::size_t Volume = 5;
constexpr std::size_t OpenInterest = 6;

// In the order of DateFormats.
constexpr std::array<DatePlaces, DateFormats.size()> PiecesOfFormats = {
    {{1, 4, 7}, {1, 4, 9}, {4, 7, 1}, {6, 9, 3}, {3, 5, 1}, {5, 7, 3}}};

std::string_view DelimiterNamed(std::string_view name) {
    return name == "tab" ? "\t" : name == "space" ? " " : name == "bar" ? "|" : ",";
}

// How often each name occurs.
using Occurrences = std::array<std::int16_t, FieldNames.size()>;

// What is wrong with the fields, nothing when they can be converted.
std::optional<std::string> FaultOfFields(Occurrences const& occurrences) {
    for (std::size_t index = 0; index < FieldNames.size(); ++index) {
        std::string const name(FieldNames.at(index));
        if (index <= Close && occurrences.at(index) != 1) {
            return "Missing or duplicate " + name + " field";
        }
        if (occurrences.at(index) > 1) {
            return "Duplicate " + name + " field";
        }
    }
    return std::nullopt;
}

// Reads how many fields there are, and which value stands where; of a name that occurs twice the later row.
void CountFields(CustomChoices const& choices, CustomDescription& description, Occurrences& occurrences) {
    description.FieldCount = ShownRows(choices.NumFields);
    for (std::int16_t row = 1; row <= description.FieldCount; ++row) {
        auto const name = std::find(FieldNames.begin(), FieldNames.end(), choices.Names[row]);
        if (name != FieldNames.end()) {
            auto const index = static_cast<std::size_t>(name - FieldNames.begin());
            ++occurrences.at(index);
            description.Positions.at(index) = row;
        }
    }
}

// The text that stands for a volume or open interest. Raises "Type mismatch" for one that is no number.
std::string_view AmountText(std::string_view field) {
    return field.empty() || text::StrictNumber(field) == 0 ? "0" : field;
}

// Of a format that is none the pieces stand nowhere, so that no date is good.
DatePlaces PiecesOf(std::string_view dateFormat) {
    auto const format = std::find(DateFormats.begin(), DateFormats.end(), dateFormat);
    if (format == DateFormats.end()) {
        return {};
    }
    return PiecesOfFormats.at(static_cast<std::size_t>(format - DateFormats.begin()));
}

} // namespace

ConverterTexts const& CustomTexts() {
    static constexpr ConverterTexts Texts = {
        "frmConvertCustom",
        "Data Conversion Utility - Custom Files",
        "Required Format:  Date (mm/dd/yy), Open, High, Low, Close, Volume (opt.), "
        "Open Interest (opt.)  <CR>",
        "Custom Source File Name",
        "*.csv",
        "Comma Separated Values (*.csv)|*.csv"
        "|Text Files (*.txt)|*.txt"
        "|All Files (*.*)|*.*",
    };
    return Texts;
}

CustomChoices InitialChoices() {
    CustomChoices choices;
    choices.Names.Fill(std::string(NotUsed));
    std::int16_t row = 0;
    for (std::string_view const name : FieldNames) {
        choices.Names[++row] = name;
    }
    return choices;
}

std::int16_t ShownRows(std::string_view numFields) {
    return text::WholeNumber(text::LeadingNumber(numFields));
}

std::optional<CustomDescription> ReadDescription(CustomChoices const& choices, platform::Dialogs& dialogs) {
    CustomDescription description;
    description.Delimiter = DelimiterNamed(choices.FieldDelimiter);
    description.DateFormat = choices.DateFormat;
    Occurrences occurrences{};
    auto const fault = text::Trap([&] { CountFields(choices, description, occurrences); });
    auto const complaint =
        fault ? std::optional(std::string(fault->Description())) : FaultOfFields(occurrences);
    if (complaint) {
        dialogs.Show(Complaint(*complaint));
        return std::nullopt;
    }
    return description;
}

CustomLayout::CustomLayout(CustomDescription const& description)
    : description_(description),
      datePieces_(PiecesOf(description.DateFormat)) {}

bool CustomLayout::FormatQuoteLine(Fields const& fields, std::string& line) const {
    auto const& positions = description_.Positions;
    if (!AppendDate(fields[positions[Date]], datePieces_, line)) {
        return false;
    }
    for (std::size_t price = Open; price <= Close; ++price) {
        AppendField(fields[positions.at(price)], line);
    }
    // What is missing stands in slot 0, which is empty.
    auto const fault = text::Trap([&] {
        AppendField(AmountText(fields[positions[Volume]]), line);
        AppendField(AmountText(fields[positions[OpenInterest]]), line);
    });
    return !fault;
}

} // namespace quorvex::convert
