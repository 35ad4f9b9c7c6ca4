// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/basFields.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::batch {

// Takes the lines of what a batch has written, each with its LF; one without it, at the end, is none. Where
// line ends are quoted, those within quotation marks belong to the line.
class RecordReader {
public:
    // The source must outlive the reader.
    RecordReader(text::ByteSource& source, bool quotesLineEnds)
        : source_(source),
          quotesLineEnds_(quotesLineEnds) {}

    // The next line, good until the next call; nothing behind the last one. Raises the faults of the source.
    [[nodiscard]] std::optional<std::string_view> Next();

    // The bytes of the lines that Next gave.
    [[nodiscard]] std::uint64_t Length() const { return length_; }

    // What stands behind the last line, once Next has given nothing.
    [[nodiscard]] std::string_view Rest() const { return line_; }

private:
    static constexpr std::size_t BufferSize = 65'536;

    [[nodiscard]] bool Fill();

    text::ByteSource& source_;
    bool quotesLineEnds_;
    bool isQuoted_ = false;
    std::array<char, BufferSize> buffer_{};
    std::string_view bytes_; // of the buffer, still to be taken
    std::string line_;
    bool isWhole_ = false; // the line
    std::uint64_t length_ = 0;
};

} // namespace quorvex::batch
