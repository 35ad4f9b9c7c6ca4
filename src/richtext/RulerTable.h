// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/RichText.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace quorvex::richtext {

// The tab stops of a document's paragraphs. Paragraphs and groups name a ruler by its index, so that many of
// them cost no more than one.
class RulerTable {
public:
    // Further tab stops of one ruler are dropped.
    static constexpr std::size_t MostTabStops = 32;

    // The index of the ruler that has the stops of this one and the new one.
    [[nodiscard]] std::uint32_t AddTabStop(std::uint32_t ruler, TabStop stop);

    // From here on somebody holds the index of the newest ruler: it must not change any more.
    void Freeze() { frozenCount_ = rulers_.size(); }

    // The rulers by index. The table is of no use afterwards.
    [[nodiscard]] std::vector<std::vector<TabStop>> Release() { return std::move(rulers_); }

private:
    std::vector<std::vector<TabStop>> rulers_ = {{}};
    std::size_t frozenCount_ = 1;
};

} // namespace quorvex::richtext
