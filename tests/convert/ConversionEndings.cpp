// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ConversionEndings.h"

#include "convert/Conversion.h"

#include <string>
#include <vector>

namespace quorvex::convert {

using platform::fake::FileCall;

tests::Ending EndOfConversion(tests::MetFault const& met) {
    bool const hasOpened =
        met.Call == FileCall::Write || met.Call == FileCall::Close || met.Call == FileCall::Read;
    std::vector<std::string> boxes = {ExclamationBox(met.Description())};
    // Removing it fails, too, but where nothing has the name any more.
    if (hasOpened && met.Lasts && met.Raised != text::Fault::FileNotFound) {
        boxes.push_back(boxes.front());
    }
    return {boxes};
}

tests::Ending EndOfBrowse(tests::MetFault const& met, std::string_view name) {
    if (name.empty()) {
        return {};
    }
    bool const isMissing = met.Call == FileCall::Length && met.IsGone();
    return {{isMissing ? "Data Conversion Utility|none|Source file not found"
                       : ExclamationBox(met.Description())}};
}

} // namespace quorvex::convert
