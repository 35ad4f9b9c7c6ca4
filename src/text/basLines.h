// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Texts read line by line.
#pragma once

#include "text/basFields.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::text {

// Takes the lines of a text in sequence, without what ends them: CR LF, LF or CR. A line end at the end of
// the text starts no further line. A Ctrl-Z in place of a line's first character ends the text; a UTF-8 byte
// order mark at the start is skipped; all other bytes pass through. The text streams through one buffer; only
// a line that does not stand in it whole is copied. Of a longer line its first 64 KiB are given, before the
// rest is read.
class LineReader {
public:
    // The source must outlive the reader.
    explicit LineReader(ByteSource& source);

    // The next line, good until the next call; nothing behind the last one. Raises the faults of the source.
    [[nodiscard]] std::optional<std::string_view> Next();

    // Whether the line that Next() gave is the start of a longer one.
    [[nodiscard]] bool IsCut() const { return isCut_; }

private:
    [[nodiscard]] bool MoreAt() { return at_ < end_ || Refill(); }

    [[nodiscard]] bool Refill();
    void SkipByteOrderMark();
    void SkipRest();
    [[nodiscard]] std::string_view TakeLine();
    [[nodiscard]] std::size_t LengthOfPiece();
    [[nodiscard]] bool TakePiece(std::string_view& piece);

    ByteSource& source_;
    std::unique_ptr<char[]> buffer_; // bytes at_..end_-1 are still to be taken
    std::size_t at_ = 0;
    std::size_t end_ = 0;
    // Where the next LF of the buffer stands, end_ when there is none; nothing when it was not looked for.
    // Without it every line that ends with a CR alone would search the whole rest.
    std::optional<std::size_t> lf_;
    bool isBehindCr_ = false; // a LF that follows belongs to the line end
    bool isAtStart_ = true;
    bool isCut_ = false;
    bool owesEnd_ = false; // the rest of a cut line comes first
    std::string line_;     // a line that did not stand in the buffer whole
};

} // namespace quorvex::text
