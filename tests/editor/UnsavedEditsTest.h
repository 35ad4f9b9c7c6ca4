// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Edits of a quote editor that were kept and not saved, over files in memory.
#pragma once

#include "EditorTest.h"
#include "editor/History.h"
#include "editor/UnsavedEdits.h"
#include "support/QuoteTexts.h"

#include <string>

namespace quorvex::tests {

// The quote file of these tests, where its unsaved edits are kept, and where those of a second editor are.
inline constexpr char const* QuotePath = "C:\\Quotes\\test.txt";
inline constexpr char const* KeptPath = "C:\\Quotes\\test.txt.edits";
inline constexpr char const* SecondPath = "C:\\Quotes\\test.txt.edits.2";

class UnsavedEditsTest : public EditorTest {
protected:
    UnsavedEditsTest() { files.Contents[QuotePath] = QuoteLines(30); }

    // As the window does when it comes up.
    void OpenEdited() {
        OpenDays(30);
        history.Start(*edited);
        toldFirst = unsaved.Open(*edited, *series, settings);
    }

    void Record(editor::ChangeKind kind = editor::ChangeKind::Edit) {
        unsaved.Keep(history.Record(*edited), kind, *edited);
    }

    void TypeKept(std::int16_t row, std::int16_t column, std::string const& text) {
        Type(row, column, text);
        Record();
    }

    // Another editor, after this one was closed or killed.
    void OpenAgain() { OpenEdited(); }

    [[nodiscard]] std::string Restore() {
        std::string const told = unsaved.Restore(*edited, dialogs);
        Record();
        return told;
    }

    void Undo() { unsaved.Keep(history.Undo(*edited), editor::ChangeKind::Edit, *edited); }

    void Redo() { unsaved.Keep(history.Redo(*edited), editor::ChangeKind::Edit, *edited); }

    // Two editors, of which the second did not restore what the first had left.
    void LeaveTwoSets() {
        OpenEdited();
        TypeKept(2, 5, "555");
        OpenAgain();
        TypeKept(3, 5, "556");
        OpenAgain();
    }

    [[nodiscard]] bool IsKept() const { return files.Contents.contains(KeptPath); }

    editor::History history;
    editor::UnsavedEdits unsaved{files};
    std::string toldFirst; // when the editor came up
};

} // namespace quorvex::tests
