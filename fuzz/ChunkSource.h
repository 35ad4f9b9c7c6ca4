// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/basFields.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace quorvex::fuzz {

// Gives a text in chunks of so many bytes at the most, as a pipe may do. The text must outlive the source.
class ChunkSource final : public text::ByteSource {
public:
    ChunkSource(std::string_view text, std::size_t chunk) : rest_(text), chunk_(chunk) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        std::size_t const count = rest_.copy(buffer.data(), std::min(buffer.size(), chunk_));
        rest_.remove_prefix(count);
        return count;
    }

private:
    std::string_view rest_;
    std::size_t chunk_;
};

} // namespace quorvex::fuzz
