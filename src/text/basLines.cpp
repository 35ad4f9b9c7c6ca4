// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basLines.h"

#include "text/Characters.h"

#include <algorithm>

namespace quorvex::text {

namespace {

constexpr std::size_t Capacity = 65'536;
constexpr std::size_t MostOfLine = 65'536; // that is kept

} // namespace

LineReader::LineReader(ByteSource& source)
    : source_(source),
      buffer_(std::make_unique_for_overwrite<char[]>(Capacity)) {}

bool LineReader::Refill() {
    at_ = 0;
    end_ = source_.Read({buffer_.get(), Capacity});
    lf_.reset();
    return end_ > 0;
}

// A source may give out the mark's bytes one by one.
void LineReader::SkipByteOrderMark() {
    while (end_ < ByteOrderMark.size() && ByteOrderMark.starts_with({buffer_.get(), end_})) {
        std::size_t const count = source_.Read({buffer_.get() + end_, Capacity - end_});
        if (count == 0) {
            return;
        }
        end_ += count;
    }
    if (std::string_view(buffer_.get(), end_).starts_with(ByteOrderMark)) {
        at_ = ByteOrderMark.size();
    }
}

std::optional<std::string_view> LineReader::Next() {
    if (isAtStart_) {
        isAtStart_ = false;
        SkipByteOrderMark();
    }
    SkipRest();
    if (isBehindCr_) {
        isBehindCr_ = false;
        if (MoreAt() && buffer_[at_] == '\n') {
            ++at_;
        }
    }
    if (!MoreAt() || buffer_[at_] == CtrlZ) {
        return std::nullopt;
    }
    return TakeLine();
}

// Only now, as what follows a cut line is of no use to those who refuse it, and may have no end.
void LineReader::SkipRest() {
    isCut_ = false;
    std::string_view piece;
    while (owesEnd_) {
        owesEnd_ = !TakePiece(piece) && Refill();
    }
}

std::string_view LineReader::TakeLine() {
    std::string_view piece;
    if (TakePiece(piece)) {
        return piece;
    }
    line_ = piece;
    bool isWhole = false;
    while (!isWhole && !isCut_ && Refill()) {
        isWhole = TakePiece(piece);
        std::size_t const room = MostOfLine - line_.size();
        line_ += piece.substr(0, room);
        isCut_ = piece.size() > room;
    }
    owesEnd_ = isCut_ && !isWhole;
    return line_;
}

// How much of the buffer belongs to the line: up to its end, or all when that is not there.
std::size_t LineReader::LengthOfPiece() {
    std::string_view const read(buffer_.get(), end_);
    if (!lf_ || *lf_ < at_) {
        lf_ = std::min(read.find('\n', at_), end_);
    }
    // Lines mostly end with a LF, so a CR is looked for in front of the next LF only.
    std::size_t const untilLf = *lf_ - at_;
    return std::min(read.substr(at_, untilLf).find('\r'), untilLf);
}

// Takes what the buffer holds of the line. Returns whether its end was there too.
bool LineReader::TakePiece(std::string_view& piece) {
    std::string_view const rest(buffer_.get() + at_, end_ - at_);
    std::size_t const length = LengthOfPiece();
    piece = rest.substr(0, length);
    at_ += length;
    if (length == rest.size()) {
        return false;
    }
    isBehindCr_ = buffer_[at_] == '\r';
    ++at_;
    return true;
}

} // namespace quorvex::text
