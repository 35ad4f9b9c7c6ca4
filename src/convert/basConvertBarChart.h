// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Files of Barchart, which come in eight layouts.
#pragma once

#include "convert/ConverterTexts.h"
#include "convert/SourceLayout.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvex::convert {

// In the order of the option buttons.
enum class BarchartFormat : std::int16_t { C = 1, D, E, F, G, N, S, Y };

inline constexpr std::size_t BarchartFormatCount = 8;

// What a window or a command line shows of a format.
struct BarchartOption {
    char Letter = ' ';
    std::string_view Caption; // of the option button, made for a font of one width
};

// In the order of BarchartFormat.
[[nodiscard]] std::array<BarchartOption, BarchartFormatCount> const& BarchartOptions();

[[nodiscard]] ConverterTexts const& BarchartTexts();

// The first format whose option button is selected; Y when none is.
[[nodiscard]] BarchartFormat ChosenFormat(std::array<bool, BarchartFormatCount> const& selected);

// The format with this letter, nothing when there is none.
[[nodiscard]] std::optional<BarchartFormat> FormatOfLetter(std::string_view letter);

// Copies prices as they are written, whatever they are; those without decimals stay in the contract's
// smallest unit.
class BarchartLayout final : public SourceLayout {
public:
    explicit BarchartLayout(BarchartFormat format);

    [[nodiscard]] std::int16_t FieldCount() const override { return places_.Count; }

    [[nodiscard]] bool TellsWrongCount() const override { return true; }

    [[nodiscard]] bool FormatQuoteLine(Fields const& fields, std::string& line) const override;

    // Which fields of a record are used.
    struct FieldPlaces {
        std::int16_t Count = 0;
        std::int16_t Date = 0;
        DatePlaces DatePieces;
        std::int16_t Open = 0;   // high, low and close follow
        std::int16_t Volume = 0; // the open interest follows; 0 when the record has neither
    };

private:
    FieldPlaces const& places_;
};

} // namespace quorvex::convert
