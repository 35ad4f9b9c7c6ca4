// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/Choices.h"
#include "import/RecordReader.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quorvex::imports {

// Tells the contracts of a table apart by what stands in the columns that name them.
class ContractFilter {
public:
    // Takes the rows of the contract that is wanted, in capitals: those with this name in one of the columns,
    // or in all of them one after the other; the empty text is the contract without a name. Takes all rows
    // when none is wanted.
    ContractFilter(std::vector<std::size_t> columns, std::optional<std::string> wanted);

    // Whether the row is of a contract that is taken.
    [[nodiscard]] bool Takes(std::span<Field const> fields);

    // Whether all rows that were taken are of one contract.
    [[nodiscard]] bool AreOneContract() const { return taken_.size() <= 1; }

    // The contracts of the rows so far, those that were taken in front; the first two hundred of each.
    [[nodiscard]] std::vector<std::string> Names() const;

    // Why the rows are no quotes of one contract; nothing when they are.
    [[nodiscard]] std::optional<Refusal> Refused() const;

private:
    [[nodiscard]] bool IsSameAsBefore(std::span<Field const> fields) const;

    std::vector<std::size_t> columns_;
    std::optional<std::string> wanted_;
    std::vector<std::string> cells_; // of the row before
    std::vector<std::string> taken_;
    std::vector<std::string> others_;
    bool isFirst_ = true;
    bool isTaken_ = false;
};

} // namespace quorvex::imports
