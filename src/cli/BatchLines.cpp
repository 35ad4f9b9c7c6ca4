// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/BatchLines.h"

#include "cli/BatchObjects.h"
#include "cli/BatchTable.h"

#include <algorithm>

namespace quorvex::cli {

std::string JoinedMessages(AnalysedFile const& analysed) {
    std::string joined;
    for (std::string const& message : *analysed.Messages) {
        joined += (joined.empty() ? "" : "; ") + message;
    }
    return joined;
}

bool MayBeBatchLines(std::string_view bytes) {
    auto const isStart = [bytes](std::string_view start) {
        std::size_t const common = std::min(bytes.size(), start.size());
        return bytes.substr(0, common) == start.substr(0, common);
    };
    return isStart(BatchTable::Start) || isStart(BatchObjects::Start);
}

} // namespace quorvex::cli
