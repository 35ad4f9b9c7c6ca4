// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Change.h"
#include "editor/Editor.h"

#include <cstddef>
#include <vector>

namespace quorvex::editor {

// The steps that an editor went through, to be taken back and done again. It is told after each step,
// whatever it was, and finds out itself what has changed.
class History {
public:
    // Forgets all steps; what the editor holds now is where the next ones start.
    void Start(Editor const& editor);

    // Makes one step of what has changed since the last call of any routine, and returns it. Steps that were
    // taken back cannot be done again then. A change of the copy alone, which nobody sees, belongs to the
    // step before.
    Change Record(Editor const& editor);

    [[nodiscard]] bool CanUndo() const { return done_ > 0; }

    [[nodiscard]] bool CanRedo() const { return done_ < steps_.size(); }

    // Take back the last step, or do the next one again, and put the cursor where it was. Return what
    // changed, which is nothing when there is no such step. REQUIRES: everything before was recorded.
    Change Undo(Editor& editor);
    Change Redo(Editor& editor);

private:
    // What has changed since the rows were noted.
    Change Note(Editor const& editor);

    EditRows rows_; // of the editor as it was last seen
    std::vector<Change> steps_;
    std::size_t done_ = 0; // steps that were not taken back
};

} // namespace quorvex::editor
