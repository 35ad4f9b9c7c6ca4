// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a group of a document changes and gives back at its end.
#pragma once

#include "richtext/RichText.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvex::richtext {

// Where the characters of a group go.
enum class Destination : std::uint8_t { Body, FontTable, ColourTable, Picture, Marker };

struct GroupState {
    CharacterStyle Style;
    ParagraphFormat Paragraph;
    int FallbackLength = 1; // how many characters behind a \u stand for it
    Destination Target = Destination::Body;
    std::uint8_t NestingLevel = 0; // as \itap says
    bool IsInTable = false;
    bool IsHidden = false;
    bool DefinesNestedRow = false;
    richtext::TabKind TabKind = TabKind::Left; // of the next tab stop

    bool operator==(GroupState const&) const = default;
};

// The states of the open groups, on the heap. Groups that change nothing cost nothing: a state is kept once
// for any number of groups that share it.
class GroupStack {
public:
    // Groups nested deeper share the state that they find.
    static constexpr std::size_t MostStates = 100'000;

    [[nodiscard]] GroupState& Current() { return current_; }

    [[nodiscard]] GroupState const& Current() const { return current_; }

    // How many groups are open.
    [[nodiscard]] std::size_t Depth() const { return depth_; }

    void Open();

    // Brings back the state in front of the group. REQUIRES: Depth() > 0.
    void Close();

private:
    struct SavedState {
        GroupState State;
        std::size_t GroupCount = 1;
    };

    GroupState current_;
    std::vector<SavedState> saved_;
    std::size_t depth_ = 0;
};

} // namespace quorvex::richtext
