// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "EditorTest.h"

#include "editor/basEdit.h"
#include "support/QuoteTexts.h"

namespace quorvex::tests {

void EditorTest::Open(std::unique_ptr<quotes::QuoteSeries> opened) {
    series = std::move(opened);
    editor::OpenEditor(*edited, *series);
    editor::RebuildGrid(*edited, settings);
}

void EditorTest::OpenDays(int count) {
    Open(SeriesOf(QuoteLines(count), settings.CurrencyFormat));
}

void EditorTest::Type(std::int16_t row, std::int16_t column, std::string const& text) {
    sheet.SetText(row, column, text);
}

EditorTest::Texts EditorTest::RowTexts(std::int16_t row) const {
    Texts texts;
    for (std::int16_t column = 1; column <= editor::Sheet::Columns; ++column) {
        texts.push_back(sheet.CellAt(row, column).Text);
    }
    return texts;
}

std::vector<EditorTest::Texts> EditorTest::GridTexts() const {
    std::vector<Texts> rows;
    for (std::int16_t row = 1; row <= sheet.RowCount(); ++row) {
        rows.push_back(RowTexts(row));
    }
    return rows;
}

std::pair<int, int> EditorTest::Cursor() const {
    return {spread.ActiveRow(), spread.ActiveColumn()};
}

bool EditorTest::IsQuiet() const {
    return dialogs.Messages.empty() && dialogs.Questions.empty() && files.Contents.empty();
}

} // namespace quorvex::tests
