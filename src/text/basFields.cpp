// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basFields.h"

#include "text/Characters.h"
#include "text/DecimalNumber.h"
#include "text/LeadingDigits.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <cstring>

namespace quorvex::text {

namespace {

// The most bytes that are kept of a field's text, and the room behind them in which the rest is passed over.
constexpr std::size_t MostText = 65'536;
constexpr std::size_t RoomToPass = 4'096;
constexpr std::size_t FieldCapacity = MostText + RoomToPass;

bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

// All of them are at or below ','.
constexpr auto EndsField = [](char c) {
    return static_cast<unsigned char>(c) <= ',' && (c == ',' || IsLineEnd(c));
};

constexpr auto EndsQuotedText = [](char c) { return c == '"' || IsLineEnd(c); };

} // namespace

std::size_t TextSource::Read(std::span<char> buffer) {
    std::size_t const count = std::min(buffer.size(), rest_.size());
    std::copy_n(rest_.data(), count, buffer.data());
    rest_.remove_prefix(count);
    return count;
}

FieldReader::FieldReader(ByteSource& source)
    : source_(source),
      buffer_(std::make_unique_for_overwrite<char[]>(FieldCapacity)) {
    while (end_ < ByteOrderMark.size() && Fill()) {
    }
    if (std::string_view(buffer_.get(), end_).starts_with(ByteOrderMark)) {
        at_ = ByteOrderMark.size();
    }
}

// Reads on behind the bytes at hand. Those from keep_ on move to the front, MostText of them at most: what a
// longer field has behind them is of no use.
bool FieldReader::Fill() {
    if (sourceEnded_) {
        return false;
    }
    std::size_t const kept = std::min(end_ - keep_, MostText);
    if (keep_ > 0) {
        std::memmove(buffer_.get(), buffer_.get() + keep_, kept);
    }
    at_ = std::min(at_ - keep_, kept);
    keep_ = 0;
    end_ = kept;
    std::size_t const count = source_.Read({buffer_.get() + kept, FieldCapacity - kept});
    end_ += count;
    sourceEnded_ = count == 0;
    return count > 0;
}

bool FieldReader::PassWhiteSpace() {
    for (std::size_t at = at_;; ++at) {
        if (at == end_) {
            keep_ = at_ = at;
            if (!Fill()) {
                return false;
            }
            at = at_;
        }
        char const c = buffer_[at];
        if (IsLineEnd(c)) {
            owesEmpty_ = owesEmpty_ || insideLine_;
            insideLine_ = false;
        } else if (!IsBlank(c)) {
            at_ = at;
            return c != CtrlZ;
        }
    }
}

// Fills at the end of the bytes at hand; that place moves with them.
bool FieldReader::FillBehind(std::size_t& at) {
    at_ = at;
    bool const hasMore = Fill();
    at = at_;
    return hasMore;
}

// Where the first byte from there on is that ends the text, or the end of the source.
template <class Ends>
std::size_t FieldReader::FindEnd(std::size_t at, Ends ends) {
    do {
        while (at < end_ && !ends(buffer_[at])) {
            ++at;
        }
    } while (at == end_ && FillBehind(at));
    return at;
}

std::string_view FieldReader::Take() {
    if (!Seek()) {
        throw RunTimeError(Fault::InputPastEnd);
    }
    if (owesEmpty_) {
        owesEmpty_ = false;
        return {};
    }
    std::size_t end = 0;
    std::size_t length = 0;
    if (buffer_[at_] == '"') {
        keep_ = at_ + 1;
        end = FindEnd(keep_, EndsQuotedText);
        length = std::min(end - keep_, MostText);
        end = FindEnd(end, EndsField); // what follows the closing mark is skipped
    } else {
        keep_ = at_;
        end = FindEnd(at_, EndsField);
        length = std::min(end - keep_, MostText);
        while (length > 0 && IsBlank(buffer_[keep_ + length - 1])) {
            --length;
        }
    }
    PassEnd(end);
    return {buffer_.get() + keep_, length};
}

SpelledNumber FieldReader::TakePlainDecimal() {
    constexpr std::size_t Most = 7; // digits, so that eight characters have all of them and one that is none
    constexpr std::size_t MostLooked = 2 * (Most + 1);
    if (!IsAtField() || owesEmpty_ || end_ - at_ < MostLooked) {
        return {};
    }
    char const* const begin = buffer_.get() + at_;
    LeadingDigits const whole = ReadLeadingDigits(begin);
    bool const hasPoint = whole.Count <= Most && begin[whole.Count] == '.';
    std::size_t length = whole.Count + (hasPoint ? 1 : 0);
    LeadingDigits const decimals = hasPoint ? ReadLeadingDigits(begin + length) : LeadingDigits();
    length += decimals.Count;
    if (length == 0 || whole.Count > Most || decimals.Count > Most || !EndsField(begin[length])) {
        return {};
    }
    keep_ = at_;
    PassEnd(at_ + length);
    double const power = ExactPowers[decimals.Count];
    // Fifteen digits at the most, and so exact before the division.
    return {(static_cast<double>(whole.Value) * power + static_cast<double>(decimals.Value)) / power,
            static_cast<int>(decimals.Count)};
}

// Goes on behind the end of a field.
void FieldReader::PassEnd(std::size_t end) {
    // A line end stays: it is white space in front of the next field.
    insideLine_ = end < end_ && buffer_[end] == ',';
    end += insideLine_ ? 1 : 0;
    // Mostly a blank follows: with it out of the way the next field is at hand.
    at_ = end < end_ && buffer_[end] == ' ' ? end + 1 : end;
}

} // namespace quorvex::text
