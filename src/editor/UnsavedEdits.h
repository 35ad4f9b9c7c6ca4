// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Change.h"
#include "editor/Editor.h"
#include "editor/basUnsaved.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quorvex::editor {

// Keeps what was done in an editor and not saved, change by change, in a file beside the quote file, so that
// it outlives the program and the machine's power. Every routine raises the faults of the files; what could
// not be kept is kept by the next Keep that can.
class UnsavedEdits {
public:
    // The files must outlive the object.
    explicit UnsavedEdits(platform::Files& files) : files_(files) {}

    // An editor was opened on the series: looks for what an earlier one kept of it. That is left where it is.
    void Open(Editor const& editor, quotes::QuoteSeries const& series, settings::Settings const& settings);

    // Keeps what has changed. Nothing of an earlier editor is lost by it: what was not restored goes under
    // the name with platform::BackupMark behind it.
    void Keep(Change const& change, ChangeKind kind, Editor const& editor);

    // All rows were saved to the file that the series names: nothing is unsaved any more.
    void Saved(Editor const& editor, quotes::QuoteSeries const& series, settings::Settings const& settings);

    // Whether an earlier editor left rows that differ from those that this one opened with. Restoring does
    // not end that; saving does.
    [[nodiscard]] bool HasKept() const { return kept_.has_value(); }

    // Whether the quote file is another one since, or the earlier editor opened with other rows: restoring
    // would take back what lies between.
    [[nodiscard]] bool HasFileChanged() const;

    // Gives the editor the rows that were kept, after a question when the quote file has changed. Returns
    // what to tell in the status line; empty when the user refused. REQUIRES: there are some.
    [[nodiscard]] std::string Restore(Editor& editor, platform::Dialogs& dialogs);

private:
    void Start(Editor const& editor, quotes::QuoteSeries const& series, settings::Settings const& settings);
    void ReadKept();
    void Begin(Editor const& editor);
    void Append(Change const& change, ChangeKind kind);
    void TakeBack();
    [[nodiscard]] bool IsMine() const;

    platform::Files& files_;
    std::string path_;
    EditedFile of_;
    EditRows rows_; // as they were opened or saved
    std::optional<KeptEdits> kept_;
    std::string keptText_;  // of the file that they were read from
    bool hasBegun_ = false; // the file holds the edits of this editor, all of them
    std::string mine_; // the mark of a file with nothing but what is in this editor; empty: there is none
    KeptEditsWriter writer_;
    std::uint64_t mostLength_ = 0; // in bytes, that the file may have before it is written anew
};

} // namespace quorvex::editor
