// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the words of styles, paragraphs and paper change. A word of another kind changes nothing.
#pragma once

#include "auxiliary/richtext/ColourTable.h"
#include "auxiliary/richtext/ControlWords.h"
#include "auxiliary/richtext/FontTable.h"
#include "auxiliary/richtext/GroupStack.h"
#include "auxiliary/richtext/RichText.h"
#include "auxiliary/richtext/RulerTable.h"

#include <optional>

namespace quorvex::auxiliary::richtext {

void ApplyStyleWord(GroupState& state, ControlWord const& word, std::optional<int> number,
                    FontTable const& fonts, ColourTable const& colours);

void ApplyParagraphWord(GroupState& state, ControlWord const& word, std::optional<int> number,
                        RulerTable& rulers);

void ApplyPageWord(PageLayout& page, ControlWord const& word, std::optional<int> number);

} // namespace quorvex::auxiliary::richtext
