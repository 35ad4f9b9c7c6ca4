// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/ConsoleDialogs.h"
#include "editor/Editor.h"
#include "editor/PlainSpread.h"
#include "platform/disk/DiskFiles.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <memory>
#include <optional>
#include <string>

namespace quorvex::cli {

// The quote editor on one file, without a window.
class EditSession {
public:
    // Without a format, prices are shown as the program does without an INI file.
    EditSession(std::string const& quotePath, std::optional<std::string> const& format);

    // Loads the file and opens the editor on it. Returns false after the program's message when the file was
    // refused.
    [[nodiscard]] bool Open();

    [[nodiscard]] editor::Editor& Edited() { return *editor_; }

    [[nodiscard]] std::string const& QuoteFileName() const { return series_->QuoteFileName; }

    [[nodiscard]] settings::Settings const& Settings() const { return settings_; }

    [[nodiscard]] platform::Dialogs& Dialogs() { return dialogs_; }

private:
    settings::Settings settings_;
    std::unique_ptr<quotes::QuoteSeries> series_ = std::make_unique<quotes::QuoteSeries>();
    editor::Sheet sheet_;
    editor::PlainSpread spread_{sheet_};
    std::unique_ptr<editor::Editor> editor_ =
        std::make_unique<editor::Editor>(editor::Editor{sheet_, spread_, {}, 0});
    ConsoleDialogs dialogs_;
    platform::disk::DiskFiles files_;
};

} // namespace quorvex::cli
