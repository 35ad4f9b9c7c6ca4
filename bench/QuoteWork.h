// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SilentDialogs.h"
#include "TemporaryQuoteFile.h"
#include "platform/disk/DiskFiles.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"
#include "text/basFormats.h"

#include <cstddef>
#include <memory>
#include <string>

namespace quorvex::bench {

// Reading and writing one quote file of 500 days.
class QuoteWork {
public:
    // Loads the file once, so that everything is there and warm; throws when that went wrong.
    QuoteWork();

    // From the disk, as the program does it.
    void Load();

    // The same text from memory.
    void ReadText();

    // The least that reading can cost: each number of the text, the three of each date included, taken with
    // std::from_chars, and nothing done with it but a sum.
    void ParseNumbers() const;

    // The text that saving the quotes writes.
    void SpellText() const;

    [[nodiscard]] quotes::QuoteSeries const& Series() const { return *series_; }

    [[nodiscard]] std::size_t TextSize() const { return text_.size(); }

private:
    std::string text_;
    TemporaryQuoteFile file_;
    platform::disk::DiskFiles files_;
    SilentDialogs dialogs_;
    settings::Settings settings_;
    text::NumberFormat format_;
    std::unique_ptr<quotes::QuoteSeries> series_ = std::make_unique<quotes::QuoteSeries>();
};

} // namespace quorvex::bench
