// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/UnsavedEdits.h"

#include "platform/basFiles.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <string_view>

namespace quorvex::editor {

namespace {

constexpr std::string_view Extension = ".edits";
constexpr std::string_view NameWithoutFile = "untitled";

// Where the quote file lies: Save As may have given it a folder of its own.
std::string QuotePath(quotes::QuoteSeries const& series, settings::Settings const& settings) {
    std::string const& name = series.QuoteFileName;
    return name.find_first_of("/\\") == std::string::npos ? settings.DataPath + name : name;
}

// Where the edits of the editor on the series are kept.
std::string EditsPath(quotes::QuoteSeries const& series, settings::Settings const& settings) {
    std::string const path =
        series.HasQuotes() ? QuotePath(series, settings) : settings.DataPath + std::string(NameWithoutFile);
    return path + std::string(Extension);
}

// A quote file that cannot be read is like one that is not there.
std::string MarkOfFile(platform::Files const& files, std::string const& path) {
    std::string mark = "none";
    static_cast<void>(text::Trap([&] { mark = MarkOf(platform::ReadWholeFile(files, path)); }));
    return mark;
}

bool LookAlike(EditRows const& one, EditRows const& other) {
    return std::ranges::equal(one, other, {}, &EditRow::Texts, &EditRow::Texts);
}

} // namespace

void UnsavedEdits::Start(Editor const& editor, quotes::QuoteSeries const& series,
                         settings::Settings const& settings) {
    path_ = EditsPath(series, settings);
    of_ = {std::string(platform::BareName(series.QuoteFileName)),
           series.HasQuotes() ? MarkOfFile(files_, QuotePath(series, settings)) : "none"};
    rows_ = RowsOf(editor);
    kept_.reset();
    hasBegun_ = false;
    mine_.clear();
}

void UnsavedEdits::Open(Editor const& editor, quotes::QuoteSeries const& series,
                        settings::Settings const& settings) {
    Start(editor, series, settings);
    if (platform::IsThere(files_, path_)) {
        ReadKept();
    }
}

void UnsavedEdits::ReadKept() {
    keptText_ = platform::ReadWholeFile(files_, path_);
    kept_ = ReadKeptEdits(keptText_);
    if (kept_ && kept_->Of.Name != of_.Name) {
        kept_.reset(); // somebody gave it this name
    } else if (kept_ && LookAlike(kept_->After, rows_)) {
        kept_.reset();
        files_.Remove(path_);
    }
}

bool UnsavedEdits::HasFileChanged() const {
    return kept_ && (!(kept_->Of == of_) || !LookAlike(kept_->Before, rows_));
}

void UnsavedEdits::Keep(Change const& change, ChangeKind kind, Editor const& editor) {
    bool const isEdit = kind == ChangeKind::Edit;
    // What only a save or the listing copied is no edit, and neither is a refill.
    if (change.IsEmpty() || (!hasBegun_ && !(isEdit && change.IsShown()))) {
        return;
    }
    if (isEdit && !Difference(rows_, editor).IsShown()) {
        TakeBack();
    } else if (!isEdit && !IsMine()) {
        hasBegun_ = false; // what a refill dropped must not displace the edits of the other program
    } else if (!hasBegun_ || !IsMine() || (isEdit && writer_.Length() > mostLength_)) {
        Begin(editor);
    } else {
        Append(change, kind);
    }
}

// Another program that edits the same quotes keeps its edits there, too.
bool UnsavedEdits::IsMine() const {
    std::string mark;
    static_cast<void>(text::Trap([&] { mark = MarkOf(platform::ReadWholeFile(files_, path_)); }));
    return !mine_.empty() && mark == mine_;
}

void UnsavedEdits::Begin(Editor const& editor) {
    constexpr std::uint64_t UsualLength = 1'048'576;
    constexpr std::uint64_t Growth = 4;
    hasBegun_ = false;
    bool const isOther = platform::IsThere(files_, path_) && !IsMine();
    std::string text = writer_.Start(of_, rows_);
    text += writer_.Next(Difference(rows_, editor), ChangeKind::Edit);
    if (isOther) {
        files_.Replace(path_, text);
    } else {
        files_.Overwrite(path_, text);
    }
    hasBegun_ = true;
    mine_ = writer_.Mark();
    mostLength_ = std::max(UsualLength, Growth * writer_.Length());
}

void UnsavedEdits::Append(Change const& change, ChangeKind kind) {
    hasBegun_ = false; // until all of it is there
    auto const error = text::Trap([&] { files_.Append(path_, writer_.Next(change, kind)); });
    if (error) {
        // A part of it is no other one's.
        static_cast<void>(text::Trap([this] { mine_ = MarkOf(platform::ReadWholeFile(files_, path_)); }));
        throw text::RunTimeError(error->Kind());
    }
    hasBegun_ = true;
    mine_ = writer_.Mark();
}

// Everything was undone.
void UnsavedEdits::TakeBack() {
    hasBegun_ = false;
    if (!IsMine()) {
        return;
    }
    if (kept_) {
        files_.Overwrite(path_, keptText_); // which waits to be restored as before
    } else {
        files_.Remove(path_);
    }
    mine_.clear();
}

void UnsavedEdits::Saved(Editor const& editor, quotes::QuoteSeries const& series,
                         settings::Settings const& settings) {
    bool const isOtherFile = path_ != EditsPath(series, settings);
    auto const error = text::Trap([this, isOtherFile] {
        if (!platform::IsThere(files_, path_) || (isOtherFile && !IsMine())) {
            return; // what was not restored waits for an editor on its own quote file
        }
        if (!IsMine()) {
            files_.Keep(path_);
        }
        files_.Remove(path_);
    });
    Start(editor, series, settings);
    if (error) {
        throw text::RunTimeError(error->Kind());
    }
}

std::string UnsavedEdits::Restore(Editor& editor, platform::Dialogs& dialogs) {
    if (HasFileChanged() && dialogs.Show({"The quote file has changed since these edits were made.\n"
                                          "All rows become what they were in the editor then.\n"
                                          "Restore them?",
                                          "Restore Unsaved Edits", platform::Icon::Question,
                                          platform::Buttons::YesNo}) != platform::Answer::Yes) {
        return {};
    }
    SetRows(editor, kept_->After);
    mine_ = MarkOf(keptText_);
    return kept_->IsWhole ? "Unsaved edits restored"
                          : "Unsaved edits restored, but for the last, which were not kept whole";
}

} // namespace quorvex::editor
