// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/GroupStack.h"

namespace quorvex::richtext {

void GroupStack::Open() {
    ++depth_;
    if (saved_.size() == MostStates || (!saved_.empty() && saved_.back().State == current_)) {
        ++saved_.back().GroupCount;
    } else {
        saved_.push_back({current_});
    }
}

void GroupStack::Close() {
    --depth_;
    current_ = saved_.back().State;
    if (--saved_.back().GroupCount == 0) {
        saved_.pop_back();
    }
}

} // namespace quorvex::richtext
