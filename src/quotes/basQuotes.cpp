// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/basQuotes.h"

#include "platform/basMessages.h"
#include "quotes/basDisk.h"
#include "text/basTexts.h"

#include <optional>
#include <utility>

namespace quorvex::quotes {

void ShowNoQuotesMessage(platform::Dialogs& dialogs) {
    dialogs.Show({"Please use File Open option to load a quote data file",
                  std::string(platform::ApplicationTitle), platform::Icon::Information});
}

bool RequireQuotes(QuoteSeries const& series, platform::Dialogs& dialogs) {
    if (!series.HasQuotes()) {
        ShowNoQuotesMessage(dialogs);
    }
    return series.HasQuotes();
}

void OpenQuoteFile(QuoteSeries& series, settings::Settings const& settings, platform::Files const& files,
                   platform::Dialogs& dialogs) {
    auto const names = files.List(settings.DataPath, QuoteFilePattern);
    if (names.empty()) {
        platform::ShowWarning(dialogs, "Cannot find daily quote text files.");
        return;
    }
    auto const chosen = dialogs.Choose(platform::FileKind::Quotes, names);
    if (!chosen) {
        CloseQuoteFile(series);
        return;
    }
    OpenNamedQuoteFile(*chosen, series, settings, files, dialogs);
}

bool OpenNamedQuoteFile(std::string const& name, QuoteSeries& series, settings::Settings const& settings,
                        platform::Files const& files, platform::Dialogs& dialogs) {
    std::string const before = std::exchange(series.QuoteFileName, name);
    bool const isLoaded = LoadQuoteFile(series, settings, files, dialogs) > 0;
    // A refused file has closed the series; one that could not be read leaves that to be done here.
    if (!isLoaded && series.HasQuotes()) {
        series.QuoteFileName = before;
    }
    return isLoaded;
}

bool IsQuoteFileName(std::string_view name) {
    return text::IsNameWithExtension(name, ".TXT");
}

std::string AskQuoteFileName(QuoteSeries const& series, platform::Dialogs& dialogs) {
    std::string const answer =
        dialogs.Ask({"Save " + series.QuoteFileName + " As...", "Save As...", series.QuoteFileName});
    return std::string(text::Trim(answer));
}

bool RequireQuoteFileName(std::string_view name, platform::Dialogs& dialogs) {
    if (IsQuoteFileName(name)) {
        return true;
    }
    dialogs.Show(
        {"Invalid data file name", std::string(platform::ApplicationTitle), platform::Icon::Critical});
    return false;
}

void SaveQuoteFileAs(QuoteSeries& series, settings::Settings const& settings, platform::Files& files,
                     platform::Dialogs& dialogs) {
    std::string const name = AskQuoteFileName(series, dialogs);
    if (RequireQuoteFileName(name, dialogs) && SaveQuoteFile(name, series, settings, files, dialogs)) {
        series.QuoteFileName = name;
    }
}

} // namespace quorvex::quotes
