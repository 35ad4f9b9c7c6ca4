// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The text of a vendor's file as the converter windows show and print it before it is converted.
#pragma once

#include "convert/ConverterTexts.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Printer.h"

#include <string>
#include <string_view>

namespace quorvex::convert {

// The name that the file dialog returned if the preview can hold that file, at most 65,000 bytes; else, and
// when the length cannot be learnt, the empty text.
[[nodiscard]] std::string AcceptChosenFile(std::string const& name, platform::Files const& files);

// The boxes of a window that show the source.
class SourceBoxes {
public:
    SourceBoxes() = default;
    SourceBoxes(SourceBoxes const&) = delete;
    SourceBoxes& operator=(SourceBoxes const&) = delete;
    virtual ~SourceBoxes() = default;

    virtual void ShowSourceName(std::string const& name) = 0;         // txtSrceFileName
    virtual void ShowSourceContents(std::string const& contents) = 0; // txtContents
};

// Lets the user choose the source, and shows its name and contents. Both boxes are empty when the choice was
// cancelled, or the preview cannot hold the file; a file that cannot be shown keeps its name.
void BrowseForSource(ConverterTexts const& texts, platform::Files const& files, platform::Dialogs& dialogs,
                     SourceBoxes& boxes);

// The lines of the file as UTF-8, each with CR LF behind it. Empty after a message told why the file cannot
// be shown.
[[nodiscard]] std::string LoadSourceFile(std::string const& name, platform::Files const& files,
                                         platform::Dialogs& dialogs);

// Prints the name and the contents on as many pages as they need; a line wider than the page goes on in the
// next, and tabs lead to every eighth column. A fault of the printer is shown.
void PrintSourceFile(std::string_view name, std::string_view contents, platform::PrintQueue& queue,
                     platform::Dialogs& dialogs);

} // namespace quorvex::convert
