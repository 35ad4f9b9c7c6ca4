// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the words of styles, paragraphs and paper change. A word of another kind changes nothing.
#pragma once

#include "richtext/ColourTable.h"
#include "richtext/ControlWords.h"
#include "richtext/FontTable.h"
#include "richtext/GroupStack.h"
#include "richtext/RichText.h"
#include "richtext/RulerTable.h"

#include <optional>

namespace quorvex::richtext {

void ApplyStyleWord(GroupState& state, ControlWord const& word, std::optional<int> number,
                    FontTable const& fonts, ColourTable const& colours);

void ApplyParagraphWord(GroupState& state, ControlWord const& word, std::optional<int> number,
                        RulerTable& rulers);

void ApplyPageWord(PageLayout& page, ControlWord const& word, std::optional<int> number);

} // namespace quorvex::richtext
