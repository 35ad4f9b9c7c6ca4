// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/RecordReader.h"

#include "text/Characters.h"

#include <algorithm>
#include <cstring>

namespace quorvex::imports {

namespace {

constexpr std::size_t Capacity = 2 * RecordReader::MostOfRecord;
constexpr std::size_t ByteCount = 256;

} // namespace

char MarkOf(Separator separator) {
    switch (separator) {
    case Separator::Comma:
        return ',';
    case Separator::Semicolon:
        return ';';
    case Separator::Tab:
        return '\t';
    case Separator::Bar:
        return '|';
    case Separator::Blanks:
        return ' ';
    }
    return ',';
}

RecordReader::RecordReader(text::ByteSource& source, Separator separator)
    : source_(source),
      mark_(MarkOf(separator)),
      byBlanks_(separator == Separator::Blanks),
      isPlain_(std::make_unique<bool[]>(ByteCount)),
      buffer_(std::make_unique_for_overwrite<char[]>(Capacity + 1)),
      begin_(buffer_.get()),
      end_(buffer_.get()) {
    std::fill_n(isPlain_.get(), ByteCount, true);
    for (char const stop : {'\r', '\n', mark_}) {
        isPlain_[static_cast<unsigned char>(stop)] = false;
    }
    isPlain_[static_cast<unsigned char>('\t')] = !byBlanks_ && mark_ != '\t';
    *end_ = '\n';
}

bool RecordReader::IsSeparator(char c) const {
    return c == mark_ || (byBlanks_ && c == '\t');
}

void RecordReader::Pass(std::size_t length) {
    begin_ += length;
    line_ = nextLine_++;
}

// Moves what is left to the front of the buffer and reads behind it. Returns whether anything changed.
bool RecordReader::Fill() {
    if (hasEnded_) {
        return false;
    }
    auto const kept = static_cast<std::size_t>(end_ - begin_);
    std::memmove(buffer_.get(), begin_, kept);
    begin_ = buffer_.get();
    std::size_t const count = source_.Read({begin_ + kept, Capacity - kept});
    end_ = begin_ + kept + count;
    *end_ = '\n';
    hasEnded_ = count == 0;
    return true;
}

bool RecordReader::Next() {
    if (!trouble_.empty()) {
        return false;
    }
    for (;;) {
        line_ = nextLine_;
        switch (Scan()) {
        case Outcome::Record:
            return true;
        case Outcome::Empty:
            if (hasEnded_ && begin_ == end_) {
                return false;
            }
            break;
        case Outcome::TooLong:
            return EndAtLongRecord();
        case Outcome::NeedsMore:
            if (static_cast<std::size_t>(end_ - begin_) > MostOfRecord) {
                return EndAtLongRecord();
            }
            if (!Fill()) {
                trouble_ = "The quotation mark is not closed";
                return false;
            }
            break;
        }
    }
}

bool RecordReader::EndAtLongRecord() {
    trouble_ = "The line is longer than 64 KiB";
    return false;
}

char* RecordReader::SkipBlanks(char* at) const {
    while (text::IsBlank(*at) && (byBlanks_ || *at != mark_)) {
        ++at;
    }
    return at;
}

// Takes the record at the start of the buffer, unless its end is not there.
RecordReader::Outcome RecordReader::Scan() {
    fields_.clear();
    hasDoubled_ = false;
    lineEndsInside_ = 0;
    if (begin_ < end_ && *begin_ == text::CtrlZ) {
        begin_ = end_;
        hasEnded_ = true;
        return Outcome::Empty;
    }
    char* at = begin_;
    for (;;) {
        Field& field = fields_.emplace_back();
        at = ScanField(SkipBlanks(at), field);
        if (at == nullptr || (at >= end_ && !hasEnded_)) {
            return Outcome::NeedsMore;
        }
        bool const isSeparator = IsSeparator(*at);
        // The run of blanks at the end of a line separates nothing.
        if (byBlanks_ && !field.WasQuoted && field.Text.empty()) {
            fields_.pop_back();
        }
        if (!isSeparator) {
            break;
        }
        ++at;
    }
    char* const next = ScanLineEnd(at);
    if (next == nullptr) {
        return Outcome::NeedsMore;
    }
    // Also where it is in the buffer as a whole: it must not matter how the bytes arrive.
    if (static_cast<std::size_t>(next - begin_) > MostOfRecord) {
        return Outcome::TooLong;
    }
    begin_ = next;
    nextLine_ = line_ + lineEndsInside_ + 1;
    if (hasDoubled_) {
        Unquote();
    }
    bool const isEmpty = fields_.empty() ||
                         (fields_.size() == 1 && fields_.front().Text.empty() && !fields_.front().WasQuoted);
    return isEmpty ? Outcome::Empty : Outcome::Record;
}

// Where the next line starts; null when a LF may follow that has not come yet.
char* RecordReader::ScanLineEnd(char* at) {
    if (at >= end_) {
        return end_;
    }
    if (*at != '\r') {
        return at + 1;
    }
    if (at + 1 == end_ && !hasEnded_) {
        return nullptr;
    }
    return at + 1 < end_ && at[1] == '\n' ? at + 2 : at + 1;
}

// Takes the field whose first character is none of the blanks around it. Returns where it ended; null when
// that has not come yet.
char* RecordReader::ScanField(char* at, Field& field) {
    if (*at == '"' && at < end_) {
        if (char* const behind = ScanQuoted(at, field); behind != at) {
            return behind;
        }
    }
    char* const first = at;
    while (isPlain_[static_cast<unsigned char>(*at)]) {
        ++at;
    }
    char* last = at;
    while (last > first && text::IsBlank(last[-1])) {
        --last;
    }
    field.Text = {first, static_cast<std::size_t>(last - first)};
    return at;
}

// The same of a quoted field. Returns where it began when something else than blanks follows the closing
// mark: then the marks belong to the text.
char* RecordReader::ScanQuoted(char* at, Field& field) {
    char* closing = at + 1;
    std::uint64_t lineEnds = 0;
    bool doubled = false;
    for (;; ++closing) {
        closing = std::find_if(closing, end_, [](char c) { return c == '"' || c == '\n' || c == '\r'; });
        if (closing == end_) {
            return nullptr;
        }
        if (*closing != '"') {
            bool const isOneEnd = *closing == '\r' && closing + 1 < end_ && closing[1] == '\n';
            closing += isOneEnd ? 1 : 0;
            ++lineEnds;
        } else if (closing + 1 < end_ && closing[1] == '"') {
            doubled = true;
            ++closing;
        } else {
            break;
        }
    }
    char* const behind = SkipBlanks(closing + 1);
    bool const isEnd = behind >= end_ || !isPlain_[static_cast<unsigned char>(*behind)];
    if (!isEnd && !(byBlanks_ && behind > closing + 1)) {
        return at;
    }
    field.Text = {at + 1, static_cast<std::size_t>(closing - at - 1)};
    field.WasQuoted = true;
    lineEndsInside_ += lineEnds;
    hasDoubled_ = hasDoubled_ || doubled;
    return byBlanks_ && behind > closing + 1 ? closing + 1 : behind;
}

// Makes one of each two quotation marks inside the quoted fields.
void RecordReader::Unquote() {
    for (Field& field : fields_) {
        if (!field.WasQuoted) {
            continue;
        }
        // The text lies in the buffer and only becomes shorter.
        char* const first = buffer_.get() + (field.Text.data() - buffer_.get());
        char* last = first;
        for (std::size_t at = 0; at < field.Text.size(); ++at, ++last) {
            *last = field.Text[at];
            at += field.Text[at] == '"' ? 1U : 0U;
        }
        field.Text = {first, static_cast<std::size_t>(last - first)};
    }
}

} // namespace quorvex::imports
