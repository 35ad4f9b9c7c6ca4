// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Comma-separated files whose fields the user describes.
#pragma once

#include "convert/ConverterTexts.h"
#include "convert/SourceLayout.h"
#include "platform/Dialogs.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::convert {

[[nodiscard]] ConverterTexts const& CustomTexts();

// What the lists of the window offer.
inline constexpr std::array<std::string_view, 4> FieldDelimiters = {"comma", "tab", "space", "bar"};
inline constexpr std::array<std::string_view, 6> DateFormats = {"mm/dd/yy",   "mm/dd/yyyy", "yy/mm/dd",
                                                                "yyyy/mm/dd", "yymmdd",     "yyyymmdd"};
inline constexpr std::string_view NotUsed = "not used";
inline constexpr std::array<std::string_view, 7> FieldNames = {"date",  "open",   "high",         "low",
                                                               "close", "volume", "open interest"};

// The texts in the lists of the window.
struct CustomChoices {
    std::string NumFields = "7";
    std::string FieldDelimiter = "comma";
    std::string DateFormat = "mm/dd/yy";
    text::SlotArray<std::string, MostFields> Names; // cboField, counted from 1
};

// What the window shows at first: the fields of a quote file in their order.
[[nodiscard]] CustomChoices InitialChoices();

// How many rows of fields the window shows for the text of cboNumFields.
[[nodiscard]] std::int16_t ShownRows(std::string_view numFields);

// A checked description of a file.
struct CustomDescription {
    std::int16_t FieldCount = 0;
    std::string Delimiter; // as chosen; commas separate nonetheless: docs/behaviour.md
    std::string DateFormat;
    // Which field of a record, counted from 1, has the value of this name; 0 where none has.
    std::array<std::int16_t, FieldNames.size()> Positions{};
};

// Reads the choices; rows beyond the number of fields do not count. Nothing after a message told what is
// missing or twice, or which fault the number of fields raised.
[[nodiscard]] std::optional<CustomDescription> ReadDescription(CustomChoices const& choices,
                                                               platform::Dialogs& dialogs);

// Copies prices as they are written. A volume or open interest that is zero, empty or not there is "0"; one
// that is no number is an invalid value.
class CustomLayout final : public SourceLayout {
public:
    explicit CustomLayout(CustomDescription const& description);

    [[nodiscard]] std::int16_t FieldCount() const override { return description_.FieldCount; }

    [[nodiscard]] bool FormatQuoteLine(Fields const& fields, std::string& line) const override;

private:
    CustomDescription description_;
    DatePlaces datePieces_;
};

} // namespace quorvex::convert
