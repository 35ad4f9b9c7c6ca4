// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/basImport.h"
#include "platform/Files.h"
#include "text/RunTimeError.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::imports {

// What an import would write under a name: a quote file of the table alone, and when there is one of that
// name, the same file brought up to date. Nothing is written of it here.
class PreparedFile {
public:
    struct Wish {
        std::string Path;         // whole; empty when there is no name yet
        std::size_t MostDays = 0; // of the quote file
        bool Replaces = false;    // an update takes figures that have changed
    };

    void Clear();

    // Prepares both of a table that was read and is not refused. Raises nothing: why the file of the name
    // cannot be brought up to date is told.
    void Prepare(Conversion const& read, Wish const& wish, platform::Files const& files);

    [[nodiscard]] bool CanImport() const { return made_ && !made_->Refused && !wish_.Path.empty(); }

    [[nodiscard]] bool CanUpdate() const { return updated_ && updated_->HasNews(); }

    // Whether a fault has kept the file of the name from being read, which may be gone the next time.
    [[nodiscard]] bool MayReadNextTime() const { return readingFault_.has_value(); }

    // Raises that fault, or "File not found" when there is no such file.
    void RequireFile() const;

    // Whether the table has other figures of days that the file of the name has.
    [[nodiscard]] bool HasChanges() const;

    // REQUIRES: CanImport, CanUpdate.
    [[nodiscard]] QuoteFile const& Made() const { return *made_; }

    [[nodiscard]] QuoteFile const& Updated() const { return *updated_; }

    // What both will be, a line each. REQUIRES: prepared.
    [[nodiscard]] std::string Describe() const;

    // The changes, a line each, and the prices that the program rounds, which is empty when it rounds none.
    [[nodiscard]] std::vector<std::string> Changes() const;
    [[nodiscard]] std::string Rounding(std::string_view currencyFormat) const;

private:
    void PrepareUpdate(Conversion const& read, platform::Files const& files);

    Wish wish_;
    std::optional<QuoteFile> made_;    // of the table alone
    std::optional<QuoteFile> updated_; // of the table and the file of the name
    bool isTooLong_ = false;           // that file, for quotes
    std::optional<text::RunTimeError> readingFault_;
};

} // namespace quorvex::imports
