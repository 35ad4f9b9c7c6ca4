// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Free-format fields: the way in which quote files and parameter files are read.
#pragma once

#include "text/basNumbers.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

namespace quorvex::text {

// Where the bytes of a text come from.
class ByteSource {
public:
    ByteSource() = default;
    ByteSource(ByteSource const&) = delete;
    ByteSource& operator=(ByteSource const&) = delete;
    virtual ~ByteSource() = default;

    // Fills the buffer from its start and returns how many bytes it got; 0 means that there are no more.
    // Raises the fault of the device.
    [[nodiscard]] virtual std::size_t Read(std::span<char> buffer) = 0;
};

// A text in memory as a source; the text must outlive it.
class TextSource final : public ByteSource {
public:
    explicit TextSource(std::string_view text) : rest_(text) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override;

private:
    std::string_view rest_;
};

// Takes the fields of a text in sequence, regardless of its line breaks. A field ends at a comma or at the
// line's end (CR LF, LF or CR); blanks and tabs in front of it and, unless it is quoted, behind it are
// dropped. A field that starts with `"` runs to the next `"` or to the line's end, commas included; what
// follows the closing mark up to the comma is skipped. A line of nothing but blanks holds no field. The text
// ends where only white space is left or where a Ctrl-Z stands in place of a field. A UTF-8 byte order mark
// at the start is skipped; other bytes beyond ASCII pass through. The text streams through one buffer of a
// fixed size: of a longer field its first 64 KiB are given.
class FieldReader {
public:
    // The source must outlive the reader.
    explicit FieldReader(ByteSource& source);

    // Whether no field is left.
    [[nodiscard]] bool AtEnd() { return !Seek(); }

    // The next field, good until the next call. Raises "Input past end of file" when none is left.
    [[nodiscard]] std::string_view Take();

    // The next field when it is a plain decimal with at most seven digits on either side of the point, and
    // at hand with its end. Otherwise the number has negative decimals, and the field stays. This is the
    // quick way for the numbers of most files.
    [[nodiscard]] SpelledNumber TakePlainDecimal();

private:
    [[nodiscard]] bool Fill();

    // Passes the white space in front of the next field. Returns whether there is one.
    [[nodiscard]] bool Seek() { return IsAtField() || PassWhiteSpace(); }

    // Blanks, line ends and Ctrl-Z are all at or below ' '.
    [[nodiscard]] bool IsAtField() const { return at_<end_&& static_cast<unsigned char>(buffer_[at_])> ' '; }

    [[nodiscard]] bool PassWhiteSpace();

    template <class Ends>
    [[nodiscard]] std::size_t FindEnd(std::size_t at, Ends ends);
    [[nodiscard]] bool FillBehind(std::size_t& at);
    void PassEnd(std::size_t end);

    ByteSource& source_;
    std::unique_ptr<char[]> buffer_; // bytes 0..end_-1 are filled; a new block need not be cleared first
    std::size_t end_ = 0;
    std::size_t keep_ = 0; // where the text of the field begins; bytes in front of it are of no more use
    std::size_t at_ = 0;
    bool insideLine_ = false; // behind a comma, where an empty rest of the line still is a field
    bool owesEmpty_ = false;  // that empty rest was passed and is the next field, should another one follow
    bool sourceEnded_ = false;
};

} // namespace quorvex::text
