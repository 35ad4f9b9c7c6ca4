// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basFormats.h"

#include "text/DecimalNumber.h"
#include "text/RunTimeError.h"
#include "text/basNumbers.h"
#include "text/basTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace quorvex::text {

namespace {

constexpr std::size_t MostSections = 3;

bool IsPlaceholder(char c) {
    return c == '0' || c == '#';
}

// Whether a run of commas at this place has digit placeholders on both sides.
bool GroupsThousands(std::string_view format, std::size_t at, bool afterPlaceholder) {
    auto const next = format.find_first_not_of(',', at);
    return afterPlaceholder && next != std::string_view::npos && IsPlaceholder(format[next]);
}

// The text that `"` at this place encloses; moves the place to the closing mark or the last character.
std::string_view Quoted(std::string_view format, std::size_t& at) {
    std::size_t const begin = at + 1;
    std::size_t const end = std::min(format.find('"', begin), format.size());
    at = end;
    return format.substr(begin, end - begin);
}

// Splits the number into its digits in front of the point, empty for zero, and those behind it.
void SplitDigits(DecimalNumber const& number, std::string& whole, std::string& decimals) {
    if (number.Digits == 0) {
        return;
    }
    whole = std::to_string(number.Digits);
    if (number.Exponent >= 0) {
        whole.append(static_cast<std::size_t>(number.Exponent), '0');
        return;
    }
    auto const places = static_cast<std::size_t>(-number.Exponent);
    if (whole.size() <= places) {
        decimals.assign(places - whole.size(), '0');
        decimals += whole;
        whole.clear();
    } else {
        decimals = whole.substr(whole.size() - places);
        whole.resize(whole.size() - places);
    }
    while (!decimals.empty() && decimals.back() == '0') {
        decimals.pop_back();
    }
}

// Whether a character of the text is in no number.
bool HoldsNoNumber(std::string_view text) {
    return text.find_first_not_of("0123456789.,+-eEdD \t") != std::string_view::npos;
}

void PadLeft(std::string& digits, int least) {
    auto const size = static_cast<std::size_t>(least);
    if (digits.size() < size) {
        digits.insert(0, size - digits.size(), '0');
    }
}

void PadRight(std::string& digits, int least) {
    digits.resize(std::max(digits.size(), static_cast<std::size_t>(least)), '0');
}

} // namespace

NumberFormat::NumberFormat(std::string_view format) {
    if (format.empty()) {
        return;
    }
    std::string_view rest = format;
    sections_.push_back(ReadSection(rest));
    while (!rest.empty() && sections_.size() < MostSections) {
        rest.remove_prefix(1);
        sections_.push_back(ReadSection(rest));
    }
    FindPlainDecimals();
}

// Reads up to a semicolon, which stays in front of the rest, or to the end.
NumberFormat::Section NumberFormat::ReadSection(std::string_view& rest) {
    Section section;
    bool zeroSeen = false;
    bool afterPlaceholder = false;
    auto literal = [&section](std::string_view text) {
        section.HasLiteral = true;
        section.Tokens.push_back({Piece::Literal, std::string(text)});
    };
    std::size_t at = 0;
    for (; at < rest.size() && rest[at] != ';'; ++at) {
        char const c = rest[at];
        if (IsPlaceholder(c) && !section.HasPoint) {
            zeroSeen = zeroSeen || c == '0';
            ++section.WholePlaces;
            section.LeastWhole += zeroSeen ? 1 : 0;
            section.Tokens.push_back({Piece::WholeDigit, {}});
        } else if (IsPlaceholder(c)) {
            ++section.DecimalPlaces;
            section.LeastDecimals = c == '0' ? section.DecimalPlaces : section.LeastDecimals;
            section.Tokens.push_back({Piece::Decimal, {}});
        } else if (c == '.' && !section.HasPoint) {
            section.HasPoint = true;
            section.Tokens.push_back({Piece::Point, {}});
        } else if (c == ',' && GroupsThousands(rest, at, afterPlaceholder)) {
            section.Grouped = true;
            continue;
        } else if (c == '%') {
            ++section.Hundreds;
            literal("%");
        } else if (c == '"') {
            literal(Quoted(rest, at));
        } else if (c == '\\' && at + 1 < rest.size()) {
            literal(rest.substr(++at, 1));
        } else {
            literal(rest.substr(at, 1));
        }
        afterPlaceholder = IsPlaceholder(c);
    }
    rest.remove_prefix(std::min(at, rest.size()));
    return section;
}

void NumberFormat::FindPlainDecimals() {
    if (sections_.size() == 1 && !sections_[0].HasLiteral && !sections_[0].Grouped) {
        plainDecimals_ = sections_[0].DecimalPlaces;
    }
}

NumberFormat::Section const& NumberFormat::Choose(double value) const {
    std::size_t index = 0;
    if (value < 0) {
        index = 1;
    } else if (value == 0) {
        index = 2;
    }
    bool const own = index < sections_.size() && !sections_[index].Tokens.empty();
    return sections_[own ? index : 0];
}

std::string NumberFormat::Format(double value) const {
    std::string text;
    AppendTo(text, value);
    return text;
}

void NumberFormat::AppendTo(std::string& text, double value) const {
    if (sections_.empty() || (&Choose(value) == sections_.data() && sections_[0].Tokens.empty())) {
        text += PlainNumber(value == 0 ? 0 : value); // a zero has no sign
        return;
    }
    Section const& section = Choose(value);
    DecimalNumber number = ToDecimal(value);
    number.Exponent += 2 * section.Hundreds;
    number = RoundHalfAway(number, section.DecimalPlaces);

    std::string whole;
    std::string decimals;
    SplitDigits(number, whole, decimals);
    PadLeft(whole, section.LeastWhole);
    PadRight(decimals, section.LeastDecimals);
    if (value < 0 && &section == sections_.data() && number.Digits != 0) {
        text += '-';
    }
    AppendDigits(text, section, whole, decimals);
}

void NumberFormat::AppendDigits(std::string& text, Section const& section, std::string const& whole,
                                std::string const& decimals) {
    // Places in front of the point are counted from it: the units are place 0.
    auto place = static_cast<std::size_t>(section.WholePlaces);
    std::size_t written = 0;
    std::size_t decimal = 0;
    auto wholeDigitsDownTo = [&](std::size_t last) {
        for (; written < whole.size() && whole.size() - 1 - written >= last; ++written) {
            std::size_t const of = whole.size() - 1 - written;
            text += whole[written];
            if (section.Grouped && of > 0 && of % 3 == 0) {
                text += ',';
            }
        }
    };
    for (Token const& token : section.Tokens) {
        switch (token.Kind) {
        case Piece::Literal:
            text += token.Text;
            break;
        case Piece::WholeDigit:
            wholeDigitsDownTo(--place);
            break;
        case Piece::Point:
            wholeDigitsDownTo(0);
            text += '.';
            break;
        case Piece::Decimal:
            if (decimal < decimals.size()) {
                text += decimals[decimal++];
            }
            break;
        }
    }
}

double NumberFormat::Round(double value) const {
    if (!plainDecimals_) {
        std::string const text = Format(value);
        return text.empty() || text == "." ? 0 : StrictNumber(text);
    }
    // Most quotes have no more decimals than the format; then nothing changes.
    constexpr std::array<double, 5> Powers = {1, 10, 100, 1'000, 10'000};
    constexpr double Largest = 1e15;
    auto const decimals = static_cast<std::size_t>(*plainDecimals_);
    if (decimals < Powers.size()) {
        double const scaled = value * Powers[decimals];
        if (std::fabs(scaled) < Largest) {
            auto const whole = static_cast<std::int64_t>(scaled + std::copysign(0.5, scaled));
            if (whole != 0 && static_cast<double>(whole) / Powers[decimals] == value) {
                return value;
            }
        }
    }
    DecimalNumber const number = RoundHalfAway(ToDecimal(value), *plainDecimals_);
    return number.Digits == 0 ? 0 : ToDouble(number);
}

// Whether the text is the digits and the point of the number, with the sign in front and blanks around them.
bool NumberFormat::PrintsNumberAlone(Section const& section, std::string_view sign) {
    auto const isLiteral = [](Token const& token) { return token.Kind == Piece::Literal; };
    auto const begin = section.Tokens.begin();
    auto const end = section.Tokens.end();
    auto const digits = std::find_if_not(begin, end, isLiteral);
    auto const behind = std::find_if(digits, end, isLiteral);
    auto const textOf = [](auto from, auto to) {
        return std::accumulate(from, to, std::string(),
                               [](std::string const& text, Token const& token) { return text + token.Text; });
    };
    return digits != behind && std::all_of(behind, end, isLiteral) &&
           TrimBlanksAndTabs(textOf(begin, digits)) == sign && TrimBlanksAndTabs(textOf(behind, end)).empty();
}

// Whether no text of it can be read as a number.
bool NumberFormat::PrintsNoNumber(Section const& section) {
    return std::ranges::any_of(section.Tokens, [](Token const& token) { return HoldsNoNumber(token.Text); });
}

bool NumberFormat::RoundsOnly() const {
    if (plainDecimals_) {
        return true;
    }
    constexpr std::array<std::string_view, MostSections - 1> Signs = {"", "-"};
    bool const hasZeros = sections_.size() == MostSections; // which have but one text
    std::size_t const count = sections_.size() - (hasZeros ? 1 : 0);
    for (std::size_t index = 0; index < count; ++index) {
        Section const& section = sections_[index];
        // An empty one prints by the first; that one, numbers as they are.
        if (!section.Tokens.empty() && !PrintsNumberAlone(section, Signs.at(index)) &&
            !PrintsNoNumber(section)) {
            return false;
        }
    }
    bool isZero = false;
    auto const fault = Trap([&] { isZero = Round(0) == 0; });
    return isZero || fault;
}

std::string Counted(int count, std::string_view noun) {
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}

std::string FormatNumber(double value, std::string_view format) {
    return NumberFormat(format).Format(value);
}

} // namespace quorvex::text
