// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The File commands that choose, close and save a quote file, without their windows (docs/behaviour.md).
#pragma once

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <string>
#include <string_view>

namespace quorvex::quotes {

// The quote files of the data folder.
inline constexpr std::string_view QuoteFilePattern = "*.Txt";

// Tells the user that the command needs a quote file.
void ShowNoQuotesMessage(platform::Dialogs& dialogs);

// Whether a quote file is open. When none is, tells the user to open one.
[[nodiscard]] bool RequireQuotes(QuoteSeries const& series, platform::Dialogs& dialogs);

// Lets the user choose among the quote files of the data folder and loads the one chosen. Cancelling closes
// the file that was open, and so does a file that is refused. One that cannot be read leaves all as it was
// once its fault was shown.
void OpenQuoteFile(QuoteSeries& series, settings::Settings const& settings, platform::Files const& files,
                   platform::Dialogs& dialogs);

// Loads the quote file of this name from the data folder as if it had been chosen. Returns whether it is open
// now.
bool OpenNamedQuoteFile(std::string const& name, QuoteSeries& series, settings::Settings const& settings,
                        platform::Files const& files, platform::Dialogs& dialogs);

// Whether a name is one that quotes can be saved under: five characters at least, ending with
// ".TXT" in either case.
[[nodiscard]] bool IsQuoteFileName(std::string_view name);

// Asks for the name to save under, with that of the open file in the box: the answer without blanks around
// it.
[[nodiscard]] std::string AskQuoteFileName(QuoteSeries const& series, platform::Dialogs& dialogs);

// Whether quotes can be saved under the name. When they cannot, tells the user.
[[nodiscard]] bool RequireQuoteFileName(std::string_view name, platform::Dialogs& dialogs);

// Asks for a name and saves the working copy under it, which becomes the open file's name when that succeeds.
void SaveQuoteFileAs(QuoteSeries& series, settings::Settings const& settings, platform::Files& files,
                     platform::Dialogs& dialogs);

} // namespace quorvex::quotes
