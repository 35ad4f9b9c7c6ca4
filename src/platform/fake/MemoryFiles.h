// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Files.h"
#include "text/RunTimeError.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quorvex::platform::fake {

// A file system in memory for tests. Files are named by their whole path, and listings follow the order of
// paths.
class MemoryFiles final : public Files {
public:
    [[nodiscard]] std::unique_ptr<text::ByteSource> OpenForInput(std::string const& path) const override;
    void Replace(std::string const& path, std::string_view content) override;
    [[nodiscard]] std::vector<std::string> List(std::string const& folder,
                                                std::string_view pattern) const override;

    std::map<std::string, std::string> Contents;

    // When set, reading breaks with this fault behind so many bytes.
    std::optional<std::pair<std::size_t, text::Fault>> BreakReading;

    // When set, every Replace raises this fault and changes nothing.
    std::optional<text::Fault> BreakWriting;
};

} // namespace quorvex::platform::fake
