// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Change.h"
#include "editor/Editor.h"
#include "editor/KeptSets.h"
#include "editor/basUnsaved.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"
#include "text/RunTimeError.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::editor {

// Keeps what was done in an editor and not saved, change by change, in a file beside the quote file, so that
// it outlives the program and the machine's power. What earlier editors kept stays in their files until it is
// restored and saved, or forgotten. What could not be kept is kept by the next Keep that can.
class UnsavedEdits {
public:
    // The files must outlive the object.
    explicit UnsavedEdits(platform::Files& files) : files_(files) {}

    // An editor was opened on the series: looks for what earlier ones kept of it. That is left where it is.
    // Returns what to tell of it in the status line; empty when there is nothing.
    [[nodiscard]] std::string Open(Editor const& editor, quotes::QuoteSeries const& series,
                                   settings::Settings const& settings);

    // Keeps what has changed. Raises the faults of the files.
    void Keep(Change const& change, ChangeKind kind, Editor const& editor);

    // All rows were saved under the name of the series: when that is the open file, nothing is unsaved any
    // more. A bare name can lead to another file, see IsOpenFileSaved; then the edits stay kept. Returns what
    // to tell behind it in the status line, mostly nothing. What could not be deleted is by the next save
    // that can.
    [[nodiscard]] std::string Saved(Editor const& editor, quotes::QuoteSeries const& series,
                                    settings::Settings const& settings);

    // Whether earlier editors left rows that differ from those that this one opened with and that were not
    // restored since.
    [[nodiscard]] bool HasKept() const { return next_ < kept_.size(); }

    // Whether newer ones than those were restored.
    [[nodiscard]] bool AreKeptOlder() const { return next_ > 0; }

    // Whether the quote file is another one since, or the earlier editor opened with other rows: restoring
    // would take back what lies between.
    [[nodiscard]] bool HasFileChanged() const;

    // Gives the editor the newest rows that were kept and not restored yet, after a question when the quote
    // file has changed, or the editor has changes that restoring would replace. Returns what to tell in the
    // status line; empty when the user refused. Keep must follow. Raises the faults of the files; then
    // nothing has changed. REQUIRES: there are some.
    [[nodiscard]] std::string Restore(Editor& editor, platform::Dialogs& dialogs);

    // Deletes the same ones, after a question. Returns whether it has. Raises the faults of the files.
    // REQUIRES: there are some.
    bool Forget(platform::Dialogs& dialogs);

private:
    // A set that the editor was given.
    struct RestoredSet {
        std::size_t Index = 0; // among those that were kept
        EditRows Before;       // the editor's rows
        bool IsIn = true;      // in the editor: it was not undone
        bool IsFiled = true;   // in its file, too
    };

    [[nodiscard]] std::optional<text::RunTimeError>
    Look(Editor const& editor, quotes::QuoteSeries const& series, settings::Settings const& settings);
    [[nodiscard]] std::optional<text::RunTimeError> ReadKept();
    [[nodiscard]] bool IsNeedless(KeptSet const& set) const;
    [[nodiscard]] std::optional<text::RunTimeError> RemoveNeedless();
    [[nodiscard]] bool HasWork(Editor const& editor) const;
    void FollowRestored(Editor const& editor);
    void PutBack();
    void DropRestoredFile();
    void Begin(Editor const& editor);
    void Append(Change const& change, ChangeKind kind);
    void TakeBack();

    [[nodiscard]] bool HoldsMine() const { return HoldsMark(files_, path_, mine_); }

    [[nodiscard]] bool IsMine() const;

    platform::Files& files_;
    std::string name_;      // of the files, without a number
    std::string quotePath_; // empty: no file is open
    EditedFile of_;
    EditRows rows_;             // as they were opened or saved
    std::vector<KeptSet> kept_; // by earlier editors
    std::size_t next_ = 0;      // to be restored
    std::optional<RestoredSet> restored_;
    std::vector<MarkedFile> needless_; // what they hold the quotes have
    std::string path_;                 // of the file of this editor; empty: it has none yet
    std::string mine_; // the mark of that file, with nothing but what is in this editor; empty: there is none
    bool hasBegun_ = false; // the file holds the edits of this editor, all of them
    KeptEditsWriter writer_;
    std::uint64_t mostLength_ = 0; // in bytes, that the file may have before it is written anew
};

} // namespace quorvex::editor
