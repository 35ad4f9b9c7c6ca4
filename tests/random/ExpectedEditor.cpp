// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/ExpectedEditor.h"

#include "platform/basFiles.h"
#include "platform/pictures/QtTexts.h"
#include "text/basDates.h"
#include "text/basFormats.h"
#include "text/basNumbers.h"

#include <QLabel>
#include <QRegularExpression>
#include <array>

namespace quorvex::tests {

namespace {

using platform::pictures::FromQt;
using platform::pictures::ToQt;

constexpr std::array Prices = {&quotes::QuoteRecord::Open, &quotes::QuoteRecord::High,
                               &quotes::QuoteRecord::Low, &quotes::QuoteRecord::Close};
constexpr std::array Counts = {&quotes::QuoteRecord::Volume, &quotes::QuoteRecord::OpenInterest};

QString TextAt(QAbstractItemView const& grid, int row, int column) {
    return grid.model()->index(row, column).data().toString();
}

QString DayText(QString const& date) {
    auto const day = text::ParseDate(FromQt(date));
    return day ? ToQt(text::FormatDate(*day)) : date;
}

} // namespace

QAbstractItemView* GridOf(QWidget const& editor) {
    return editor.findChild<QAbstractItemView*>(QStringLiteral("Spread"));
}

QStringList RowsOf(QAbstractItemView const& grid) {
    QStringList rows;
    for (int row = 0; row < grid.model()->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < grid.model()->columnCount(); ++column) {
            cells.append(TextAt(grid, row, column));
        }
        rows.append(cells.join(QStringLiteral(", ")));
    }
    return rows;
}

void ExpectedEditor::Check(QWidget const* window) {
    bool const wasOpen = isOpen_;
    isOpen_ = window != nullptr;
    if (!isOpen_) {
        return;
    }
    QAbstractItemView const& grid = *GridOf(*window);
    if (!wasOpen) {
        CheckOpened(grid);
    }
    static QRegularExpression const saved(
        QStringLiteral("^[0-9]+ rows? saved to (.+?)(?: in the current folder.*|\\. Edits.*)?$"));
    auto const match = saved.match(window->findChild<QLabel*>(QStringLiteral("StatusLine"))->text());
    if (match.hasMatch()) {
        CheckSaved(grid, match.captured(1));
    }
}

void ExpectedEditor::CheckOpened(QAbstractItemView const& grid) {
    quotes::QuoteSeries const& series = program_.Quotes;
    text::NumberFormat const price(program_.Settings.CurrencyFormat);
    text::NumberFormat const count("#######0");
    QStringList expected;
    for (std::int16_t day = 1; day <= series.QuoteCount; ++day) {
        quotes::QuoteRecord const& record = series.Master[day];
        QStringList cells(DayText(ToQt(record.Date)));
        for (auto const field : Prices) {
            cells.append(ToQt(price.Format(record.*field)));
        }
        for (auto const field : Counts) {
            cells.append(ToQt(count.Format(record.*field)));
        }
        expected.append(cells.join(QStringLiteral(", ")));
    }
    journal_.Expect("the editor opens on the days that were read", RowsOf(grid), expected);
}

// Volume and open interest are those of the day that was read with this number.
void ExpectedEditor::CheckSaved(QAbstractItemView const& grid, QString const& path) {
    text::NumberFormat const price(program_.Settings.CurrencyFormat);
    text::NumberFormat const count("######0");
    QStringList expected;
    for (int row = 0; row < grid.model()->rowCount(); ++row) {
        QStringList fields(DayText(TextAt(grid, row, 0)));
        for (int column = 1; column <= static_cast<int>(Prices.size()); ++column) {
            fields.append(ToQt(price.Format(text::StrictNumber(FromQt(TextAt(grid, row, column))))));
        }
        for (auto const field : Counts) {
            fields.append(ToQt(count.Format(program_.Quotes.Master[row + 1].*field)));
        }
        expected.append(fields.join(QStringLiteral(", ")));
    }
    QStringList lines = ToQt(platform::ReadWholeFile(files_, FromQt(path))).split(QStringLiteral("\r\n"));
    lines.removeLast(); // behind the last end of a line
    journal_.Expect("the file that was saved holds the rows", lines, expected);
}

void ExpectedEditor::CheckRedone(QStringList const& before, QStringList const& after) {
    journal_.Expect("redo brings back what undo took", after, before);
}

void ExpectedEditor::CheckTyped(QModelIndex const& cell, QString const& text) {
    journal_.Expect("a cell holds what was typed", {cell.data().toString()}, {text});
}

} // namespace quorvex::tests
