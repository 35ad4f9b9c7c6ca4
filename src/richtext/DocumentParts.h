// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What has been read of a document so far.
#pragma once

#include "richtext/ColourTable.h"
#include "richtext/FontTable.h"
#include "richtext/PictureReader.h"
#include "richtext/RichText.h"
#include "richtext/RulerTable.h"
#include "richtext/TextBuilder.h"
#include "richtext/basCodePages.h"

#include <string>

namespace quorvex::richtext {

struct DocumentParts {
    PageLayout Page;
    richtext::CodePage CodePage = FindCodePage(1252); // of text in fonts that have none of their own
    FontTable Fonts;
    ColourTable Colours;
    RulerTable Rulers;
    PictureReader Picture; // the one whose group is open
    std::string Marker;    // of the open group
    TextBuilder Text;
};

} // namespace quorvex::richtext
