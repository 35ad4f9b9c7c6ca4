// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Tables as records of fields.
#pragma once

#include "import/Choices.h"
#include "text/basFields.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quorvex::imports {

// What separates the fields; of runs of blanks the blank.
[[nodiscard]] char MarkOf(Separator separator);

struct Field {
    std::string_view Text; // without the blanks around it and without its quotation marks
    bool WasQuoted = false;
};

// The text of the field, empty when there is none at this place.
[[nodiscard]] inline std::string_view TextAt(std::span<Field const> fields,
                                             std::optional<std::size_t> column) {
    return column && *column < fields.size() ? fields[*column].Text : std::string_view();
}

// Takes the records of a text one by one, quoted as in RFC 4180: a field that starts with `"` runs to the
// next single `"`, separators and line ends included, and two of them stand for one. A record ends at CR LF,
// LF or CR; empty lines are passed over, and a Ctrl-Z in place of a line ends the text. Where blanks
// separate, a run of them is one separator. The text streams through one buffer; a record has at most 64 KiB.
class RecordReader {
public:
    static constexpr std::size_t MostOfRecord = 65'536;

    // The source must outlive the reader.
    RecordReader(text::ByteSource& source, Separator separator);

    // Takes the next record. Returns false when none is left, or at one that cannot be read.
    [[nodiscard]] bool Next();

    // The fields of the record, one at least; good until the next call.
    [[nodiscard]] std::span<Field const> Fields() const { return fields_; }

    // What is in memory of the text behind that record, for who can read a line of it faster. A line whose
    // end is not in it may go on; a LF stands behind it all.
    [[nodiscard]] std::string_view Ahead() const { return {begin_, static_cast<std::size_t>(end_ - begin_)}; }

    // Passes over the next line, of so many bytes with its end. There are no fields of it.
    void Pass(std::size_t length);

    // The line, counted from 1, that comes next.
    [[nodiscard]] std::uint64_t NextLine() const { return nextLine_; }

    // The line, counted from 1, on which the record starts, also of one that cannot be read.
    [[nodiscard]] std::uint64_t Line() const { return line_; }

    // Why the last record could not be read; empty when reading ended because none was left.
    [[nodiscard]] std::string_view Trouble() const { return trouble_; }

private:
    enum class Outcome : std::uint8_t { Record, Empty, TooLong, NeedsMore };

    [[nodiscard]] bool Fill();
    [[nodiscard]] bool EndAtLongRecord();
    [[nodiscard]] Outcome Scan();
    [[nodiscard]] char* ScanField(char* at, Field& field);
    [[nodiscard]] char* ScanQuoted(char* at, Field& field);
    [[nodiscard]] char* SkipBlanks(char* at) const;
    [[nodiscard]] bool IsSeparator(char c) const;
    [[nodiscard]] char* ScanLineEnd(char* at);
    void Unquote();

    text::ByteSource& source_;
    char mark_; // of the separator; that of blanks is the blank
    bool byBlanks_;
    std::unique_ptr<bool[]> isPlain_; // by byte: what can stand in a field that is not quoted
    std::unique_ptr<char[]> buffer_;  // begin_..end_ is still to be taken, a LF stands behind it
    char* begin_;
    char* end_;
    bool hasEnded_ = false;
    std::vector<Field> fields_;
    std::uint64_t line_ = 0;
    std::uint64_t nextLine_ = 1;
    std::uint64_t lineEndsInside_ = 0; // of quoted fields
    bool hasDoubled_ = false;          // a quoted field has doubled quotation marks
    std::string_view trouble_;
};

} // namespace quorvex::imports
