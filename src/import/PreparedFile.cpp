// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/PreparedFile.h"

#include "import/basTelling.h"
#include "platform/basFiles.h"
#include "quotes/basQuotes.h"
#include "text/RunTimeError.h"

#include <cstdint>

namespace quorvex::imports {

namespace {

// What no quote file is longer than, be there a line for each day of a century.
constexpr std::uint64_t LargestQuoteFile = 4'194'304;

} // namespace

void PreparedFile::Clear() {
    made_.reset();
    updated_.reset();
    isTooLong_ = false;
    readingFault_.reset();
}

void PreparedFile::Prepare(Conversion const& read, Wish const& wish, platform::Files const& files) {
    Clear();
    wish_ = wish;
    made_ = MakeQuoteFile(read, wish.MostDays);
    if (!made_->Days.empty() && quotes::IsQuoteFileName(platform::BareName(wish.Path)) &&
        platform::IsThere(files, wish.Path)) {
        PrepareUpdate(read, files);
    }
}

void PreparedFile::PrepareUpdate(Conversion const& read, platform::Files const& files) {
    readingFault_ = text::Trap([&] {
        isTooLong_ = files.Length(wish_.Path) > LargestQuoteFile;
        if (!isTooLong_) {
            auto const bytes = files.OpenForInput(wish_.Path);
            updated_ = UpdateQuoteFile(*bytes, read, wish_.Replaces, wish_.MostDays);
        }
    });
}

void PreparedFile::RequireFile() const {
    if (readingFault_) {
        throw text::RunTimeError(*readingFault_);
    }
    if (!updated_ && !isTooLong_) {
        throw text::RunTimeError(text::Fault::FileNotFound);
    }
}

bool PreparedFile::HasChanges() const {
    return updated_ && updated_->Merged && !updated_->Merged->Changed.empty();
}

std::string PreparedFile::Describe() const {
    std::string text = "Quote file: " + DescribeQuoteFile(*made_);
    std::string const name(platform::BareName(wish_.Path));
    if (updated_) {
        text += '\n' + DescribeUpdate(*updated_, name, wish_.Replaces);
    } else if (isTooLong_ || readingFault_) {
        std::string_view const why =
            isTooLong_ ? "it is too long for a quote file" : readingFault_->Description();
        text.append(1, '\n').append(name).append(" cannot be brought up to date: ").append(why) += '.';
    }
    return text;
}

std::vector<std::string> PreparedFile::Changes() const {
    std::vector<std::string> lines;
    if (HasChanges()) {
        for (DayChange const& change : updated_->Merged->Changed) {
            lines.push_back(ChangeText(change));
        }
    }
    return lines;
}

// An update has no days of the table that the file made of it has not, unless that one would be too short.
std::string PreparedFile::Rounding(std::string_view currencyFormat) const {
    auto const& file = made_ && made_->Refused ? updated_ : made_;
    return file ? DescribeRounding(*file, currencyFormat) : std::string();
}

} // namespace quorvex::imports
