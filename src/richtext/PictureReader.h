// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/ControlWords.h"
#include "richtext/RichText.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvex::richtext {

// Puts an embedded picture together.
class PictureReader {
public:
    // Takes a word of the picture; any other word changes nothing.
    void TakeWord(ControlWord const& word, std::optional<int> number);

    // The picture's bytes as hexadecimal digits, among which other characters do not count.
    void TakeHex(std::string_view digits);

    void TakeBytes(std::string_view bytes);

    // The picture, nothing unless it is a PNG one. The reader is ready for the next one.
    [[nodiscard]] std::optional<Picture> Finish();

private:
    bool isPng_ = false;
    std::string bytes_;
    std::optional<int> halfByte_;
    int width_ = 0;
    int height_ = 0;
    int scaleX_ = 100; // percent
    int scaleY_ = 100;
};

} // namespace quorvex::richtext
