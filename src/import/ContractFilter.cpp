// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ContractFilter.h"

#include "import/basWords.h"
#include "text/basTexts.h"

#include <algorithm>
#include <utility>

namespace quorvex::imports {

namespace {

constexpr std::size_t MostTold = 12;
constexpr std::size_t MostKept = 200; // that can be chosen from
constexpr std::size_t MostOfName = 200;

std::string Listed(std::vector<std::string> const& names) {
    std::string list;
    for (std::size_t index = 0; index < std::min(names.size(), MostTold); ++index) {
        list.append(index == 0 ? "" : ", ");
        list.append(names[index].empty() ? "one without a name" : Shown(names[index], MostOfName));
    }
    return list.append(names.size() > MostTold ? ", ..." : "");
}

} // namespace

ContractFilter::ContractFilter(std::vector<std::size_t> columns, std::optional<std::string> wanted)
    : columns_(std::move(columns)),
      wanted_(std::move(wanted)),
      cells_(columns_.size()) {}

bool ContractFilter::Takes(std::span<Field const> fields) {
    if (columns_.empty()) {
        return true;
    }
    if (!isFirst_ && IsSameAsBefore(fields)) {
        return isTaken_;
    }
    isFirst_ = false;
    std::string name;
    bool isWanted = !wanted_;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        cells_[index] = TextAt(fields, columns_[index]);
        std::string const part = text::UpperCase(cells_[index]);
        isWanted = isWanted || (!part.empty() && part == *wanted_);
        name.append(name.empty() || part.empty() ? "" : " ").append(part);
    }
    isTaken_ = isWanted || name == *wanted_;
    auto& names = isTaken_ ? taken_ : others_;
    if (std::ranges::find(names, name) == names.end() && names.size() < MostKept) {
        names.push_back(name);
    }
    return isTaken_;
}

bool ContractFilter::IsSameAsBefore(std::span<Field const> fields) const {
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        if (TextAt(fields, columns_[index]) != cells_[index]) {
            return false;
        }
    }
    return true;
}

std::vector<std::string> ContractFilter::Names() const {
    std::vector<std::string> names = taken_;
    names.insert(names.end(), others_.begin(), others_.end());
    return names;
}

std::optional<Refusal> ContractFilter::Refused() const {
    if (taken_.size() > 1) {
        return Refusal{{0, "There are several contracts: " + Listed(taken_)}, Choice::Symbol};
    }
    if (wanted_ && taken_.empty()) {
        std::string const name = wanted_->empty() ? "without a name" : *wanted_;
        if (columns_.empty()) {
            return Refusal{{0, "There is no contract " + name + ": no column names contracts"},
                           Choice::Columns};
        }
        return Refusal{{0, "There is no contract " + name + ", but " + Listed(others_)}, Choice::Symbol};
    }
    return std::nullopt;
}

} // namespace quorvex::imports
