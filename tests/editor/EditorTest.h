// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Editor.h"
#include "editor/PlainSpread.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "settings/Settings.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quorvex::tests {

// A quote editor on a grid without a display.
class EditorWorld {
public:
    using Texts = std::vector<std::string>;

    // The program runs in the data folder.
    EditorWorld() { files.CurrentFolder = settings.DataPath; }

    // Opens the editor on the series and fills the grid, as the window does when it comes up.
    void Open(std::unique_ptr<quotes::QuoteSeries> opened);

    // Opens it on so many days of QuoteLines, read from "test.txt".
    void OpenDays(int count);

    void Type(std::int16_t row, std::int16_t column, std::string const& text);
    [[nodiscard]] Texts RowTexts(std::int16_t row) const;
    [[nodiscard]] std::vector<Texts> GridTexts() const;

    // Where the cursor is.
    [[nodiscard]] std::pair<int, int> Cursor() const;

    // Whether nothing was asked, shown or written.
    [[nodiscard]] bool IsQuiet() const;

    std::unique_ptr<quotes::QuoteSeries> series = std::make_unique<quotes::QuoteSeries>();
    settings::Settings settings = settings::DefaultSettings("C:\\Quotes");
    platform::fake::MemoryFiles files;
    platform::fake::ScriptedDialogs dialogs;
    editor::Sheet sheet;
    editor::PlainSpread spread{sheet};
    std::unique_ptr<editor::Editor> edited =
        std::make_unique<editor::Editor>(editor::Editor{sheet, spread, {}, 0}); // too large for some stacks
};

class EditorTest : public testing::Test, protected EditorWorld {};

} // namespace quorvex::tests
