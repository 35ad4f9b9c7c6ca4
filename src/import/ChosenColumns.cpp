// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ChosenColumns.h"

#include <set>
#include <string>

namespace quorvex::imports {

void ChosenColumns::Choose(int column, Role role) {
    std::erase_if(chosen_, [column](Chosen const& chosen) { return chosen.Column == column; });
    chosen_.insert(chosen_.begin(), {column, role});
}

std::vector<ColumnChoice> ChosenColumns::Columns() const {
    std::vector<ColumnChoice> columns;
    std::set<Role> taken;
    for (Chosen const& chosen : chosen_) {
        bool const isShared = chosen.Is == Role::Unused || chosen.Is == Role::Symbol;
        if (isShared || taken.insert(chosen.Is).second) {
            columns.push_back({std::to_string(chosen.Column + 1), chosen.Is});
        }
    }
    return columns;
}

} // namespace quorvex::imports
