// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basTableNumbers.h"

#include "import/basWords.h"
#include "text/Characters.h"
#include "text/RunTimeError.h"
#include "text/basNumbers.h"
#include "text/basTexts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::imports {

namespace {

// In capitals.
constexpr auto MissingTexts = std::to_array<std::string_view>(
    {"-", "--", ".", "N/A", "NA", "#N/A", "NULL", "NAN", "NONE", "NIL", "\xE2\x80\x93", "\xE2\x80\x94"});

constexpr auto Currencies = std::to_array<std::string_view>(
    {"US$", "$", "\xE2\x82\xAC", "\xC2\xA3", "\xC2\xA5", "USD", "EUR", "GBP", "CHF"});

constexpr std::string_view MinusSign = "\xE2\x88\x92";

// What marks thousands besides point and comma.
constexpr auto Blanks = std::to_array<std::string_view>({" ", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89"});
constexpr auto Ticks = std::to_array<std::string_view>({"'", "\xE2\x80\x99"});

struct Unit {
    char Letter;
    std::string_view Exponent;
};

constexpr std::string_view Billions = "e9";
constexpr std::array<Unit, 3> Units = {{{'K', "e3"}, {'M', "e6"}, {'B', Billions}}};

constexpr std::size_t LongestMissing = 4;

bool TakeFirstOf(std::string_view& text, auto const& marks) {
    auto const found =
        std::ranges::find_if(marks, [&](std::string_view mark) { return text.starts_with(mark); });
    if (found == marks.end()) {
        return false;
    }
    text.remove_prefix(found->size());
    return true;
}

bool TakeLastOf(std::string_view& text, auto const& marks) {
    auto const found =
        std::ranges::find_if(marks, [&](std::string_view mark) { return text.ends_with(mark); });
    if (found == marks.end()) {
        return false;
    }
    text.remove_suffix(found->size());
    return true;
}

bool HasDigitsAround(std::string_view text) {
    return !text.empty() && text::IsDigit(text.front()) && text::IsDigit(text.back());
}

void TrimAnyBlanks(std::string_view& text) {
    if (HasDigitsAround(text)) {
        return; // as most cells are
    }
    text = text::TrimBlanksAndTabs(text);
    while (TakeFirstOf(text, Blanks) || TakeLastOf(text, Blanks)) {
    }
}

bool SaysNothing(std::string_view cell) {
    return cell.empty() || (!text::IsDigit(cell.front()) && cell.size() <= LongestMissing &&
                            std::ranges::find(MissingTexts, text::UpperCase(cell)) != MissingTexts.end());
}

bool TakeMinus(std::string_view& text) {
    if (text.starts_with(MinusSign)) {
        text.remove_prefix(MinusSign.size());
        return true;
    }
    bool const isMinus = text.starts_with('-');
    text.remove_prefix(isMinus || text.starts_with('+') ? 1 : 0);
    return isMinus;
}

std::string_view TakeUnit(std::string_view& text) {
    if (text.size() < 2) {
        return {};
    }
    auto const found = std::ranges::find(Units, text::UpperCase(text.back()), &Unit::Letter);
    if (found == Units.end()) {
        return {};
    }
    text.remove_suffix(1);
    return found->Exponent;
}

// What the whole part of a number consists of.
struct WholePart {
    std::string Digits;
    std::string_view Mark; // of the thousands; empty when there is none
    bool IsGood = false;
    std::string_view LastGroup;
};

// The mark of thousands that the text begins with.
std::string_view TakeThousandsMark(std::string_view& text, char decimalMark) {
    std::string_view const before = text;
    bool const isOther = text.starts_with(decimalMark == '.' ? ',' : '.');
    if (isOther) {
        text.remove_prefix(1);
    } else if (!TakeFirstOf(text, Ticks)) {
        TakeFirstOf(text, Blanks);
    }
    return before.substr(0, before.size() - text.size());
}

// 1,234,567 or 12,34,567, and no 0,234.
bool AreGroups(std::vector<std::string_view> const& groups) {
    if (groups.size() < 2) {
        return true;
    }
    std::string_view const first = groups.front();
    bool const startsWell = !first.empty() && first.size() <= 3 && first.front() != '0';
    auto const haveSize = [&](std::size_t size) {
        return std::all_of(groups.begin() + 1, groups.end() - 1,
                           [&](std::string_view group) { return group.size() == size; });
    };
    return startsWell && groups.back().size() == 3 && (haveSize(3) || (first.size() <= 2 && haveSize(2)));
}

WholePart ReadWholePart(std::string_view text, char decimalMark) {
    WholePart part;
    std::vector<std::string_view> groups;
    for (;;) {
        std::size_t const length = std::min(text.find_first_not_of("0123456789"), text.size());
        groups.push_back(text.substr(0, length));
        part.Digits += groups.back();
        text.remove_prefix(length);
        if (text.empty()) {
            break;
        }
        std::string_view const mark = TakeThousandsMark(text, decimalMark);
        if (mark.empty() || (!part.Mark.empty() && part.Mark != mark)) {
            return {};
        }
        part.Mark = mark;
    }
    part.IsGood = AreGroups(groups);
    part.LastGroup = groups.back();
    return part;
}

std::optional<double> NumberOf(std::string const& spelled) {
    std::optional<double> number;
    static_cast<void>(text::Trap([&] { number = text::LeadingNumber(spelled); }));
    return number; // nothing beyond a double
}

// Whether three digits behind an apostrophe can be 32nds and their quarters.
bool CanBe32nds(std::string_view digits) {
    constexpr std::string_view Quarters = "0257";
    return digits.size() == 3 && (digits[0] - '0') * 10 + digits[1] - '0' < 32 &&
           Quarters.find(digits[2]) != std::string_view::npos;
}

struct FractionParts {
    std::string_view Whole;
    std::string_view Numerator;
};

// 523'4, 523-4
std::optional<FractionParts> SplitFraction(std::string_view text) {
    std::size_t const length = std::min(text.find_first_not_of("0123456789"), text.size());
    FractionParts parts{text.substr(0, length), text.substr(length)};
    bool const isMarked = TakeFirstOf(parts.Numerator, Ticks) ||
                          TakeFirstOf(parts.Numerator, std::array{std::string_view("-")});
    bool const isFraction = length > 0 && isMarked && !parts.Numerator.empty() &&
                            parts.Numerator.size() <= 3 && AreDigits(parts.Numerator);
    return isFraction ? std::optional(parts) : std::nullopt;
}

// How many of the denominator's parts the digits are; nothing when they are none.
std::optional<double> ReadNumerator(std::string_view digits, int denominator) {
    auto const usual = std::to_string(denominator - 1).size();
    double const number = text::LeadingNumber(digits.substr(0, usual));
    if (digits.size() < usual || number >= denominator) {
        return std::nullopt;
    }
    if (digits.size() == usual) {
        return number;
    }
    // The quarters of a 32nd or 64th: 0, 2, 5 and 7 are 0, 0.25, 0.5 and 0.75.
    constexpr std::string_view Quarters = "0257";
    auto const quarter = Quarters.find(digits.back());
    bool const hasQuarters = usual == 2 && digits.size() == 3 && denominator >= 32;
    return hasQuarters && quarter != std::string_view::npos
               ? std::optional(number + static_cast<double>(quarter) / 4)
               : std::nullopt;
}

Figure ReadFraction(FractionParts const& parts, int denominator) {
    Figure figure;
    constexpr int Eighths = 8;
    bool const isOpen = denominator < 0;
    auto const numerator = ReadNumerator(parts.Numerator, isOpen ? Eighths : denominator);
    auto const whole = NumberOf(std::string(parts.Whole));
    if (whole && numerator) {
        figure.Value = *whole + *numerator / (isOpen ? Eighths : denominator);
        figure.State = FigureState::Number;
    }
    figure.NeedsFraction = isOpen && !numerator;
    return figure;
}

// The digits with their marks, without sign and unit.
Figure ReadDigits(std::string_view text, FigureForm const& form, bool isNegative, std::string_view exponent) {
    Figure figure;
    char const mark = form.Decimal == DecimalMark::Point ? '.' : ',';
    std::string ownExponent(exponent);
    if (auto const at = text.find_first_of("eE"); at != std::string_view::npos && exponent.empty()) {
        ownExponent = text.substr(at);
        text = text.substr(0, at);
        std::string_view power = std::string_view(ownExponent).substr(1);
        power.remove_prefix(power.starts_with('+') || power.starts_with('-') ? 1 : 0);
        if (power.empty() || !AreDigits(power)) {
            return figure;
        }
    }
    std::size_t const wholeLength = std::min(text.find(mark), text.size());
    std::string_view const decimals = text.substr(std::min(wholeLength + 1, text.size()));
    WholePart const whole = ReadWholePart(text.substr(0, wholeLength), mark);
    bool const endsWithMark = wholeLength < text.size() && decimals.empty();
    if (!whole.IsGood || !AreDigits(decimals) || endsWithMark) {
        return figure;
    }
    std::string spelled = isNegative ? "-" : "";
    auto const number =
        NumberOf(spelled.append(whole.Digits).append(".").append(decimals).append(ownExponent));
    if (number) {
        figure.Value = *number;
        figure.State = FigureState::Number;
        figure.HasGroups = whole.Mark == "," || whole.Mark == ".";
        bool const byTicks = std::ranges::find(Ticks, whole.Mark) != Ticks.end();
        bool const isOneTick = whole.Digits.size() <= 6 && decimals.empty() && CanBe32nds(whole.LastGroup);
        figure.HasTicks = byTicks && isOneTick;
        figure.HasSureTicks = byTicks && !isOneTick;
    }
    return figure;
}

// What stands around the digits.
struct Dressing {
    bool IsNegative = false;
    std::string_view Exponent;
};

Dressing TakeDressing(std::string_view& cell) {
    Dressing dressing;
    if (HasDigitsAround(cell)) {
        return dressing;
    }
    bool const isBracketed = cell.size() > 2 && cell.front() == '(' && cell.back() == ')';
    if (isBracketed) {
        cell = cell.substr(1, cell.size() - 2);
    }
    dressing.IsNegative = TakeMinus(cell) || isBracketed;
    if (TakeFirstOf(cell, Currencies)) {
        TrimAnyBlanks(cell);
        dressing.IsNegative = TakeMinus(cell) || dressing.IsNegative;
    }
    if (TakeLastOf(cell, Currencies) || TakeLastOf(cell, std::array{std::string_view("%")})) {
        TrimAnyBlanks(cell);
    }
    dressing.Exponent = TakeUnit(cell);
    TrimAnyBlanks(cell);
    return dressing;
}

// The mark with which vendors tell that a price is the settlement: 411'2s.
bool TakeSettlementMark(std::string_view& cell) {
    bool const isMarked =
        cell.size() > 1 && text::UpperCase(cell.back()) == 'S' && text::IsDigit(cell[cell.size() - 2]);
    cell.remove_suffix(isMarked ? 1 : 0);
    return isMarked;
}

Figure ReadUndressed(std::string_view cell, FigureForm const& form, bool isNegative,
                     std::string_view exponent) {
    if (cell.empty() || (!text::IsDigit(cell.front()) && cell.front() != '.' && cell.front() != ',')) {
        return {};
    }
    if (form.IsPrice && form.Fraction != NoFraction && !isNegative && exponent.empty()) {
        auto const parts = SplitFraction(cell);
        // Three digits behind an apostrophe are thousands unless a fraction was asked for.
        if (parts &&
            (form.Fraction > 0 || parts->Numerator.size() < 3 || cell.find('-') != std::string_view::npos)) {
            return ReadFraction(*parts, form.Fraction);
        }
    }
    return ReadDigits(cell, form, isNegative, exponent);
}

Figure ReadSpelledFigure(std::string_view cell, FigureForm const& form) {
    TrimAnyBlanks(cell);
    if (SaysNothing(cell)) {
        Figure missing;
        missing.State = FigureState::Missing;
        return missing;
    }
    bool const isSettlement = form.IsPrice && TakeSettlementMark(cell);
    auto const [isNegative, exponent] = TakeDressing(cell);
    Figure figure = ReadUndressed(cell, form, isNegative, exponent);
    figure.HasSettlementMark = isSettlement && figure.State == FigureState::Number;
    figure.IsInBillions = exponent == Billions;
    return figure;
}

std::optional<double> PlainWithPoint(std::string_view cell) {
    return !cell.empty() && cell != "." ? text::PlainDecimal(cell) : std::nullopt;
}

std::optional<double> PlainWithComma(std::string_view cell) {
    constexpr std::size_t MostPlain = 15;
    std::array<char, MostPlain> plain{};
    bool const isPlain = cell.size() <= MostPlain && cell.find('.') == std::string_view::npos &&
                         !cell.empty() && cell.front() != ',' && cell.back() != ',';
    if (!isPlain) {
        return std::nullopt;
    }
    std::replace_copy(cell.begin(), cell.end(), plain.begin(), ',', '.');
    return text::PlainDecimal({plain.data(), cell.size()});
}

} // namespace

Figure ReadFigure(std::string_view cell, FigureForm const& form) {
    // As nearly all cells are: digits with at most the decimal mark between them.
    auto const number = form.Decimal == DecimalMark::Point ? PlainWithPoint(cell) : PlainWithComma(cell);
    if (!number) {
        return ReadSpelledFigure(cell, form);
    }
    Figure plain;
    plain.Value = *number;
    plain.State = FigureState::Number;
    return plain;
}

} // namespace quorvex::imports
