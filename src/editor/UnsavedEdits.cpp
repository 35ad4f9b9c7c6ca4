// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/UnsavedEdits.h"

#include "editor/basSave.h"
#include "platform/basFiles.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace quorvex::editor {

namespace {

constexpr std::string_view Extension = ".edits";
constexpr std::string_view NameWithoutFile = "untitled";

// A quote file that cannot be read is like one that is not there.
std::string MarkOfFile(platform::Files const& files, std::string const& path) {
    std::string mark = "none";
    static_cast<void>(text::Trap([&] { mark = MarkOf(platform::ReadWholeFile(files, path)); }));
    return mark;
}

constexpr std::string_view EarlierEdits = "Edits that were kept before";

// What is told of files that stay as they are, and may be offered another time.
std::string LeftText(std::string_view what, text::RunTimeError const& fault) {
    return std::string(what) + " cannot be read or deleted: " + std::string(fault.Description());
}

bool LookAlike(EditRows const& one, EditRows const& other) {
    return std::ranges::equal(one, other, {}, &EditRow::Texts, &EditRow::Texts);
}

// Whether the path's file has that name: where the system takes both for one, it may be spelt otherwise.
bool IsNamed(platform::Files const& files, std::string const& path, std::string const& name) {
    auto const bare = platform::BareName(path);
    return bare == name ||
           (!name.empty() && files.AreSame(path, path.substr(0, path.size() - bare.size()) + name));
}

} // namespace

std::string UnsavedEdits::Open(Editor const& editor, quotes::QuoteSeries const& series,
                               settings::Settings const& settings) {
    needless_.clear();
    auto const fault = Look(editor, series, settings);
    std::string offer = HasKept() ? "Edits of these quotes were not saved. Restore Unsaved Edits in the "
                                    "context menu of the cells brings them back."
                                  : "";
    if (!fault) {
        return offer;
    }
    return (offer.empty() ? LeftText(EarlierEdits, *fault) : offer + " " + LeftText("Others", *fault)) + ".";
}

std::optional<text::RunTimeError> UnsavedEdits::Look(Editor const& editor, quotes::QuoteSeries const& series,
                                                     settings::Settings const& settings) {
    quotePath_ = series.HasQuotes() ? OpenFilePath(series, settings) : std::string();
    name_ = (series.HasQuotes() ? quotePath_ : settings.DataPath + std::string(NameWithoutFile)) +
            std::string(Extension);
    of_ = {std::string(platform::BareName(quotePath_)),
           series.HasQuotes() ? MarkOfFile(files_, quotePath_) : "none"};
    rows_ = RowsOf(editor);
    kept_.clear();
    next_ = 0;
    restored_.reset();
    path_.clear();
    mine_.clear();
    hasBegun_ = false;
    auto const fault = ReadKept();
    auto const left = RemoveNeedless();
    return fault ? fault : left;
}

// A file that cannot be read is not taken for that of this editor.
bool UnsavedEdits::IsMine() const {
    bool isMine = false;
    static_cast<void>(text::Trap([&] { isMine = HoldsMine(); }));
    return isMine;
}

// Of several that kept the same rows the newest is enough, and what the quotes have already is not unsaved.
std::optional<text::RunTimeError> UnsavedEdits::ReadKept() {
    KeptSets found = ReadKeptSets(files_, name_);
    for (KeptSet& set : found.Sets) {
        if (!IsNamed(files_, quotePath_, set.Edits.Of.Name)) {
            continue; // somebody gave it this name
        }
        if (IsNeedless(set)) {
            needless_.push_back(MarkedFileOf(set));
        } else {
            kept_.push_back(std::move(set));
        }
    }
    return found.Fault;
}

bool UnsavedEdits::IsNeedless(KeptSet const& set) const {
    auto const isSame = [&](KeptSet const& other) { return LookAlike(other.Edits.After, set.Edits.After); };
    return LookAlike(set.Edits.After, rows_) || std::ranges::any_of(kept_, isSame) ||
           std::ranges::find(needless_, MarkedFileOf(set)) != needless_.end();
}

std::optional<text::RunTimeError> UnsavedEdits::RemoveNeedless() {
    std::optional<text::RunTimeError> first;
    std::vector<MarkedFile> left;
    for (MarkedFile& file : needless_) {
        if (auto const fault = text::Trap([&] { RemoveMarked(files_, file); })) {
            first = first ? first : fault;
            left.push_back(std::move(file));
        }
    }
    needless_ = std::move(left);
    return first;
}

bool UnsavedEdits::HasFileChanged() const {
    return HasKept() &&
           (kept_[next_].Edits.Of.Mark != of_.Mark || !LookAlike(kept_[next_].Edits.Before, rows_));
}

// Whether there is more in the editor than what it was opened with or what was restored.
bool UnsavedEdits::HasWork(Editor const& editor) const {
    bool const isRestored = restored_ && restored_->IsIn;
    return !LookAlike(RowsOf(editor), isRestored ? kept_[restored_->Index].Edits.After : rows_);
}

void UnsavedEdits::Keep(Change const& change, ChangeKind kind, Editor const& editor) {
    bool const isEdit = kind == ChangeKind::Edit;
    // What only a save or the listing copied is no edit, and neither is a refill.
    if (change.IsEmpty() || (!hasBegun_ && !(isEdit && change.IsShown()))) {
        return;
    }
    FollowRestored(editor);
    if (isEdit && !Difference(rows_, editor).IsShown()) {
        TakeBack();
        return;
    }
    if (!isEdit && !IsMine()) {
        hasBegun_ = false; // what a refill dropped needs no file of its own
        return;
    }
    if (!hasBegun_ || !IsMine() || (isEdit && writer_.Length() > mostLength_)) {
        Begin(editor);
    } else {
        Append(change, kind);
    }
    DropRestoredFile();
}

// A set that was undone, or dropped by a refill, waits in its file again.
void UnsavedEdits::FollowRestored(Editor const& editor) {
    if (!restored_) {
        return;
    }
    EditRows const rows = RowsOf(editor);
    if (LookAlike(rows, restored_->Before)) {
        PutBack();
    } else if (LookAlike(rows, kept_[restored_->Index].Edits.After)) {
        restored_->IsIn = true;
    }
    next_ = restored_->Index + (restored_->IsIn ? 1 : 0);
}

void UnsavedEdits::PutBack() {
    KeptSet& set = kept_[restored_->Index];
    bool const isOwnPath = set.Path == path_;
    if (!restored_->IsFiled) {
        if (!isOwnPath && platform::IsThere(files_, set.Path)) {
            set.Path = NextKeptPath(files_, name_); // another program has taken the name
        }
        files_.Overwrite(set.Path, set.Text);
    }
    restored_->IsFiled = true;
    restored_->IsIn = false;
    if (isOwnPath) {
        hasBegun_ = false;
        mine_.clear();
    }
}

// The file of this editor has the set, too.
void UnsavedEdits::DropRestoredFile() {
    if (!restored_ || !restored_->IsIn || !restored_->IsFiled) {
        return;
    }
    KeptSet const& set = kept_[restored_->Index];
    if (set.Path != path_) {
        RemoveMarked(files_, MarkedFileOf(set));
    }
    restored_->IsFiled = false;
}

void UnsavedEdits::Begin(Editor const& editor) {
    constexpr std::uint64_t UsualLength = 1'048'576;
    constexpr std::uint64_t Growth = 4;
    hasBegun_ = false;
    if (!IsMine()) {
        mine_.clear();
        path_ = NextKeptPath(files_, name_); // what others keep stays
    }
    std::string text = writer_.Start(of_, rows_);
    text += writer_.Next(Difference(rows_, editor), ChangeKind::Edit);
    files_.Overwrite(path_, text);
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
    if (restored_ && restored_->IsIn) {
        PutBack();
    }
    RemoveMarked(files_, {path_, mine_});
    mine_.clear();
}

std::string UnsavedEdits::Saved(Editor const& editor, quotes::QuoteSeries const& series,
                                settings::Settings const& settings) {
    if (!IsOpenFileSaved(series, settings, files_)) {
        return {};
    }
    needless_.push_back({path_, mine_});
    if (restored_ && restored_->IsIn && restored_->IsFiled) {
        needless_.push_back(MarkedFileOf(kept_[restored_->Index]));
    }
    auto const fault = Look(editor, series, settings);
    return fault ? LeftText(EarlierEdits, *fault) : "";
}

std::string UnsavedEdits::Restore(Editor& editor, platform::Dialogs& dialogs) {
    std::string reasons = HasFileChanged() ? "The quote file has changed since these edits were made.\n" : "";
    reasons += HasWork(editor) ? "What was done in the editor now is not in these edits.\n" : "";
    if (!reasons.empty() &&
        dialogs.Show({reasons + "All rows become what they were in the editor then.\nRestore them?",
                      "Restore Unsaved Edits", platform::Icon::Question, platform::Buttons::YesNo}) !=
            platform::Answer::Yes) {
        return {};
    }
    if (restored_ && restored_->IsIn) {
        PutBack(); // the set that this one replaces
    }
    KeptSet const& set = kept_[next_];
    restored_ = {next_, RowsOf(editor)};
    ++next_;
    if (!hasBegun_) {
        path_ = set.Path; // whose file goes on as that of this editor
        mine_ = MarkOf(set.Text);
    }
    SetRows(editor, set.Edits.After);
    return set.Edits.IsWhole ? "Unsaved edits restored"
                             : "Unsaved edits restored, but for the last, which were not kept whole";
}

bool UnsavedEdits::Forget(platform::Dialogs& dialogs) {
    if (dialogs.Show({"Forget these edits? They were not saved and cannot be brought back then.",
                      "Forget Unsaved Edits", platform::Icon::Question, platform::Buttons::YesNo}) !=
        platform::Answer::Yes) {
        return false;
    }
    KeptSet const& set = kept_[next_];
    RemoveMarked(files_, MarkedFileOf(set));
    if (restored_ && restored_->Index == next_) {
        restored_.reset();
    }
    kept_.erase(std::next(kept_.begin(), static_cast<std::ptrdiff_t>(next_)));
    return true;
}

} // namespace quorvex::editor
