// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "convert/basRecords.h"

#include <cstdint>
#include <string>

namespace quorvex::convert {

// How the records of one kind of vendor's file become quote lines.
class SourceLayout {
public:
    SourceLayout() = default;
    SourceLayout(SourceLayout const&) = delete;
    SourceLayout& operator=(SourceLayout const&) = delete;
    virtual ~SourceLayout() = default;

    // How many fields every record has, 1..10.
    [[nodiscard]] virtual std::int16_t FieldCount() const = 0;

    // Whether a record with another number of fields is told about before it is refused.
    [[nodiscard]] virtual bool TellsWrongCount() const { return false; }

    // Appends the quote line of the record, without a line end. Returns false when a value is invalid; what
    // was appended until then is of no use.
    [[nodiscard]] virtual bool FormatQuoteLine(Fields const& fields, std::string& line) const = 0;
};

} // namespace quorvex::convert
