// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/PictureReader.h"

#include "richtext/Measures.h"
#include "richtext/RtfTokenizer.h"

#include <algorithm>
#include <utility>

namespace quorvex::richtext {

namespace {

constexpr std::string_view PngSignature = "\x89PNG\r\n\x1A\n";

constexpr int LargestScale = 10000;

int Scale(std::optional<int> number) {
    int const percent = std::clamp(number.value_or(100), 0, LargestScale);
    return percent == 0 ? 100 : percent;
}

// Both factors are bounded: the product is within an int.
int Scaled(int length, int percent) {
    return std::min(length * percent / 100, LongestTwips);
}

} // namespace

void PictureReader::TakeWord(ControlWord const& word, std::optional<int> number) {
    switch (word.Kind) {
    case WordKind::PictureIsPng:
        isPng_ = true;
        break;
    case WordKind::PictureIsOther:
        isPng_ = false;
        break;
    case WordKind::PictureWidth:
        width_ = PositiveTwips(number);
        break;
    case WordKind::PictureHeight:
        height_ = PositiveTwips(number);
        break;
    case WordKind::PictureScaleX:
        scaleX_ = Scale(number);
        break;
    case WordKind::PictureScaleY:
        scaleY_ = Scale(number);
        break;
    default:
        break;
    }
}

void PictureReader::TakeHex(std::string_view digits) {
    if (!isPng_) {
        return;
    }
    for (char const c : digits) {
        auto const digit = HexDigit(c);
        if (!digit) {
            continue;
        }
        if (halfByte_) {
            bytes_ += static_cast<char>(*std::exchange(halfByte_, std::nullopt) * 16 + *digit);
        } else {
            halfByte_ = digit;
        }
    }
}

void PictureReader::TakeBytes(std::string_view bytes) {
    if (isPng_) {
        bytes_ += bytes;
    }
}

std::optional<Picture> PictureReader::Finish() {
    auto taken = std::exchange(*this, {});
    if (!taken.bytes_.starts_with(PngSignature)) {
        return std::nullopt;
    }
    return Picture{std::move(taken.bytes_), Scaled(taken.width_, taken.scaleX_),
                   Scaled(taken.height_, taken.scaleY_)};
}

} // namespace quorvex::richtext
