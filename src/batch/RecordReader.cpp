// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/RecordReader.h"

namespace quorvex::batch {

std::optional<std::string_view> RecordReader::Next() {
    if (isWhole_) {
        line_.clear();
        isWhole_ = false;
    }
    while (!bytes_.empty() || Fill()) {
        std::size_t const at = bytes_.find_first_of(quotesLineEnds_ ? "\n\"" : "\n");
        std::string_view const piece = bytes_.substr(0, at == std::string_view::npos ? at : at + 1);
        bytes_.remove_prefix(piece.size());
        line_ += piece;
        if (piece.ends_with('"')) {
            isQuoted_ = quotesLineEnds_ && !isQuoted_;
        } else if (piece.ends_with('\n') && !isQuoted_) {
            isWhole_ = true;
            length_ += line_.size();
            return line_;
        }
    }
    return std::nullopt;
}

bool RecordReader::Fill() {
    bytes_ = {buffer_.data(), source_.Read(buffer_)};
    return !bytes_.empty();
}

} // namespace quorvex::batch
