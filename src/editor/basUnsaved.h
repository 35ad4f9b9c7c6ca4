// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The text of a file of unsaved edits: docs/formats/unsaved-edits.md.
#pragma once

#include "editor/Change.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::editor {

// Where a change comes from: from the user, or from filling the grid anew, which dropped what was typed.
enum class ChangeKind : std::uint8_t { Edit, Refill };

// What the edits were made on.
struct EditedFile {
    std::string Name; // of the quote file, without folder
    std::string Mark; // differs where the content of the quote file does

    friend bool operator==(EditedFile const&, EditedFile const&) = default;
};

struct KeptEdits {
    EditedFile Of;
    EditRows Before;
    EditRows After;
    bool IsWhole = true; // else the end of the text cannot be read
};

// Writes such a text piece by piece.
class KeptEditsWriter {
public:
    // The start of the text. What comes after belongs behind it.
    [[nodiscard]] std::string Start(EditedFile const& of, EditRows const& rows);

    [[nodiscard]] std::string Next(Change const& change, ChangeKind kind);

    // Of everything written so far, which MarkOf gives as well.
    [[nodiscard]] std::string Mark() const;

    [[nodiscard]] std::uint64_t Length() const { return length_; } // in bytes

private:
    [[nodiscard]] std::string Ended(std::string piece);

    std::uint64_t check_ = 0;
    std::uint64_t length_ = 0;
};

// Reads as far as the text is what such a writer wrote; nothing when that is not even its start. Refills at
// the end are passed over: what they dropped is what the user wants back.
[[nodiscard]] std::optional<KeptEdits> ReadKeptEdits(std::string_view text);

// What tells one content from another.
[[nodiscard]] std::string MarkOf(std::string_view content);

} // namespace quorvex::editor
