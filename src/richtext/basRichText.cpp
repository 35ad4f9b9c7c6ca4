// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/basRichText.h"

#include "richtext/RtfReader.h"
#include "text/RunTimeError.h"

namespace quorvex::richtext {

RichTextDocument ReadRichText(std::string_view bytes) {
    if (!bytes.starts_with("{\\rtf")) {
        throw text::RunTimeError(text::Fault::InvalidProcedureCall);
    }
    return RtfReader(bytes).Read();
}

} // namespace quorvex::richtext
