// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is a list of paths. They must be its lines as they are, however the bytes arrive.

#include "ChunkSource.h"
#include "Require.h"
#include "batch/QuoteFileNames.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace quorvex;
using fuzz::Require;

std::vector<std::string> ReadList(std::string_view text, std::size_t chunk) {
    auto const next = batch::PathsOfList(std::make_unique<fuzz::ChunkSource>(text, chunk));
    std::vector<std::string> paths;
    while (auto path = next()) {
        paths.push_back(std::move(*path));
    }
    return paths;
}

std::vector<std::string> LinesOf(std::string_view text) {
    constexpr std::string_view ByteOrderMark = "\xef\xbb\xbf";
    if (text.starts_with(ByteOrderMark)) {
        text.remove_prefix(ByteOrderMark.size());
    }
    std::vector<std::string> lines;
    while (!text.empty()) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (!line.empty()) {
            lines.emplace_back(line);
        }
    }
    return lines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const text(reinterpret_cast<char const*>(data), size);
    auto const expected = LinesOf(text);
    for (std::size_t const chunk : {size + 1, 1 + size / 100, 7 + size / 50}) {
        Require(ReadList(text, chunk) == expected);
    }
    return 0;
}
