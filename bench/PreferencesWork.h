// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SilentDialogs.h"
#include "TemporaryQuoteFile.h"
#include "platform/Profile.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <QList>
#include <QStringList>
#include <memory>

namespace quorvex::bench {

// The window for preferences with 500 generated days, and a dialog with as many plain lists of the same
// items.
class PreferencesWork {
public:
    // REQUIRES: a QApplication.
    PreferencesWork();

    // Makes the window, paints it, and closes it.
    void OpenPreferences();
    void OpenLists() const;

private:
    TemporaryQuoteFile file_;
    settings::Settings settings_;
    std::unique_ptr<quotes::QuoteSeries> series_ = std::make_unique<quotes::QuoteSeries>();
    platform::NoProfile profile_;
    SilentDialogs dialogs_;
    QList<QStringList> lists_;
};

} // namespace quorvex::bench
