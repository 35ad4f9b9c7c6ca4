// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basFields.h"

#include "text/Characters.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quorvex::text {

namespace {

constexpr std::size_t FirstCapacity = 65'536;
constexpr char CtrlZ = '\x1a';
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

// Blanks, line ends and Ctrl-Z are all at or below ' ', and what ends a plain field at or below ','.
bool StartsField(char c) {
    return static_cast<unsigned char>(c) > ' ';
}

bool EndsField(char c) {
    return static_cast<unsigned char>(c) <= ',' && (c == ',' || IsLineEnd(c));
}

std::string_view WithoutTrailingBlanks(std::string_view field) {
    while (!field.empty() && IsBlank(field.back())) {
        field.remove_suffix(1);
    }
    return field;
}

} // namespace

std::size_t TextSource::Read(std::span<char> buffer) {
    std::size_t const count = std::min(buffer.size(), rest_.size());
    std::copy_n(rest_.data(), count, buffer.data());
    rest_.remove_prefix(count);
    return count;
}

FieldReader::FieldReader(ByteSource& source)
    : source_(source),
      buffer_(std::make_unique_for_overwrite<char[]>(FirstCapacity)),
      capacity_(FirstCapacity) {
    while (end_ < ByteOrderMark.size() && Fill()) {
    }
    if (std::string_view(buffer_.get(), end_).starts_with(ByteOrderMark)) {
        at_ = ByteOrderMark.size();
    }
}

// Reads on behind the bytes at hand. Moves the bytes from keep_ on to the front first, so that places in the
// buffer shift by the old keep_; a block that is still full then doubles.
bool FieldReader::Fill() {
    if (sourceEnded_) {
        return false;
    }
    if (keep_ > 0) {
        std::memmove(buffer_.get(), buffer_.get() + keep_, end_ - keep_);
        end_ -= keep_;
        at_ -= keep_;
        keep_ = 0;
    }
    if (end_ == capacity_) {
        auto larger = std::make_unique_for_overwrite<char[]>(capacity_ * 2);
        std::memcpy(larger.get(), buffer_.get(), end_);
        buffer_ = std::move(larger);
        capacity_ *= 2;
    }
    std::size_t const count = source_.Read({buffer_.get() + end_, capacity_ - end_});
    end_ += count;
    sourceEnded_ = count == 0;
    return count > 0;
}

bool FieldReader::AtEnd() {
    // Mostly a field follows behind one blank.
    std::size_t const behindBlank = at_ < end_ && buffer_[at_] == ' ' ? at_ + 1 : at_;
    if (behindBlank < end_ && StartsField(buffer_[behindBlank])) {
        return false;
    }
    // White space is passed only on the way to a next field: behind a comma an empty field may still stand
    // here.
    keep_ = at_;
    std::size_t passed = 0;
    while (MoreAt(keep_ + passed)) {
        char const c = buffer_[keep_ + passed];
        if (c == CtrlZ) {
            return true;
        }
        if (!IsBlank(c) && !IsLineEnd(c)) {
            return false;
        }
        ++passed;
        if (!insideLine_) {
            // Nothing here is wanted again, so a long blank stretch needs no larger buffer.
            ++at_;
            keep_ = at_;
            passed = 0;
        }
    }
    return true;
}

std::string_view FieldReader::Take() {
    // Mostly a plain field is at hand, together with what ends it.
    std::size_t begin = at_;
    while (begin < end_ && IsBlank(buffer_[begin])) {
        ++begin;
    }
    if (begin < end_ && StartsField(buffer_[begin]) && buffer_[begin] != '"') {
        std::size_t at = begin;
        while (at < end_ && !EndsField(buffer_[at])) {
            ++at;
        }
        if (at < end_) {
            keep_ = begin;
            insideLine_ = buffer_[at] == ',';
            at_ = insideLine_ ? at + 1 : at;
            return WithoutTrailingBlanks({buffer_.get() + begin, at - begin});
        }
    }
    if (AtEnd()) {
        throw RunTimeError(Fault::InputPastEnd);
    }
    SkipBlanks();
    return buffer_[at_] == '"' ? TakeQuoted() : TakePlain();
}

// A field is there, so a byte that is no blank follows.
void FieldReader::SkipBlanks() {
    while (MoreAt(at_) && IsBlank(buffer_[at_])) {
        ++at_;
    }
    keep_ = at_;
}

std::string_view FieldReader::TakePlain() {
    std::size_t length = 0;
    while (MoreAt(keep_ + length)) {
        char const c = buffer_[keep_ + length];
        if (c == ',' || IsLineEnd(c)) {
            break;
        }
        ++length;
    }
    at_ = keep_ + length;
    SkipSeparator();
    return WithoutTrailingBlanks({buffer_.get() + keep_, length});
}

std::string_view FieldReader::TakeQuoted() {
    keep_ = ++at_;
    std::size_t length = 0;
    while (MoreAt(keep_ + length)) {
        char const c = buffer_[keep_ + length];
        if (c == '"' || IsLineEnd(c)) {
            break;
        }
        ++length;
    }
    at_ = keep_ + length;
    SkipToSeparator();
    SkipSeparator();
    return {buffer_.get() + keep_, length};
}

void FieldReader::SkipToSeparator() {
    while (MoreAt(at_) && buffer_[at_] != ',' && !IsLineEnd(buffer_[at_])) {
        ++at_;
    }
}

// Line ends are left in place: in front of the next field they are white space.
void FieldReader::SkipSeparator() {
    insideLine_ = MoreAt(at_) && buffer_[at_] == ',';
    if (insideLine_) {
        ++at_;
    }
}

} // namespace quorvex::text
