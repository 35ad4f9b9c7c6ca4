// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "EditorTest.h"

#include "editor/basEdit.h"
#include "support/QuoteTexts.h"

namespace quorvex::tests {

void EditorWorld::Open(std::unique_ptr<quotes::QuoteSeries> opened) {
    series = std::move(opened);
    editor::OpenEditor(*edited, *series);
    editor::RebuildGrid(*edited, settings);
}

void EditorWorld::OpenDays(int count) {
    Open(SeriesOf(QuoteLines(count), settings.CurrencyFormat));
}

void EditorWorld::Type(std::int16_t row, std::int16_t column, std::string const& text) {
    sheet.SetText(row, column, text);
}

EditorWorld::Texts EditorWorld::RowTexts(std::int16_t row) const {
    Texts texts;
    for (std::int16_t column = 1; column <= editor::Sheet::Columns; ++column) {
        texts.push_back(sheet.CellAt(row, column).Text);
    }
    return texts;
}

std::vector<EditorWorld::Texts> EditorWorld::GridTexts() const {
    std::vector<Texts> rows;
    for (std::int16_t row = 1; row <= sheet.RowCount(); ++row) {
        rows.push_back(RowTexts(row));
    }
    return rows;
}

std::pair<int, int> EditorWorld::Cursor() const {
    return {spread.ActiveRow(), spread.ActiveColumn()};
}

bool EditorWorld::IsQuiet() const {
    return dialogs.Messages.empty() && dialogs.Questions.empty() && files.Contents.empty();
}

} // namespace quorvex::tests
