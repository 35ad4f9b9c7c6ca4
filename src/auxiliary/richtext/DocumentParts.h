// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What has been read of a document so far.
#pragma once

#include "auxiliary/richtext/ColourTable.h"
#include "auxiliary/richtext/FontTable.h"
#include "auxiliary/richtext/PictureReader.h"
#include "auxiliary/richtext/RichText.h"
#include "auxiliary/richtext/RulerTable.h"
#include "auxiliary/richtext/TextBuilder.h"
#include "auxiliary/richtext/basCodePages.h"

#include <string>

namespace quorvex::auxiliary::richtext {

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

} // namespace quorvex::auxiliary::richtext
