// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Files of the "Unfair Advantage" software of Commodity Systems, Inc.
#pragma once

#include "convert/ConverterTexts.h"
#include "convert/SourceLayout.h"
#include "platform/Dialogs.h"

namespace quorvex::convert {

[[nodiscard]] ConverterTexts const& CsiTexts();

// What mnuHelp of the window shows.
[[nodiscard]] platform::Message CsiHelpMessage();

// yyyymmdd, open, high, low, close, volume, open interest; the six numbers are copied as they are written.
class CsiLayout final : public SourceLayout {
public:
    [[nodiscard]] std::int16_t FieldCount() const override;
    [[nodiscard]] bool FormatQuoteLine(Fields const& fields, std::string& line) const override;
};

} // namespace quorvex::convert
