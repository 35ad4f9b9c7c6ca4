// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/EditSession.h"

#include "cli/QuotePath.h"
#include "editor/basEdit.h"
#include "quotes/basDisk.h"

namespace quorvex::cli {

EditSession::EditSession(std::string const& quotePath, std::optional<std::string> const& format)
    : settings_(settings::DefaultSettings("./")),
      dialogs_(quotePath) {
    settings_.CurrencyFormat = format.value_or(settings_.CurrencyFormat);
    TakeQuotePath(quotePath, settings_, *series_);
}

bool EditSession::Open() {
    if (quotes::LoadQuoteFile(*series_, settings_, files_, dialogs_) == 0) {
        return false;
    }
    editor::OpenEditor(*editor_, *series_);
    editor::RebuildGrid(*editor_, settings_);
    return true;
}

} // namespace quorvex::cli
