// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/History.h"

namespace quorvex::editor {

void History::Start(Editor const& editor) {
    rows_ = RowsOf(editor);
    steps_.clear();
    done_ = 0;
}

Change History::Note(Editor const& editor) {
    Change change = Difference(rows_, editor);
    Apply(change, rows_);
    return change;
}

Change History::Record(Editor const& editor) {
    Change change = Note(editor);
    if (change.IsShown()) {
        steps_.resize(done_);
        steps_.push_back(change);
        ++done_;
    } else if (CanUndo()) {
        Change& last = steps_[done_ - 1];
        last.Splices.insert(last.Splices.end(), change.Splices.begin(), change.Splices.end());
    }
    return change;
}

Change History::Undo(Editor& editor) {
    if (!CanUndo()) {
        return {};
    }
    Change const& step = steps_[--done_];
    editor::Undo(step, editor);
    GotoPlace(editor, step.FirstCell());
    return Note(editor);
}

Change History::Redo(Editor& editor) {
    if (!CanRedo()) {
        return {};
    }
    Change const& step = steps_[done_++];
    editor::Redo(step, editor);
    GotoPlace(editor, step.FirstCell());
    return Note(editor);
}

} // namespace quorvex::editor
