// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/Choices.h"

#include <vector>

namespace quorvex::imports {

// What a user says one after the other that the columns of a table are.
class ChosenColumns {
public:
    void Clear() { chosen_.clear(); }

    // The column, counted from 0, is this from now on.
    void Choose(int column, Role role);

    // The choices that hold. Of columns with a role that only one can have, the one that got it last has it;
    // the other one has it again when that becomes something else, as it does while keys go through the
    // entries of its box.
    [[nodiscard]] std::vector<ColumnChoice> Columns() const;

private:
    struct Chosen {
        int Column = 0;
        Role Is = Role::Unused;
    };

    std::vector<Chosen> chosen_; // each column once, the latest choice first
};

} // namespace quorvex::imports
