// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/PlainSpread.h"
#include "editor/basEdit.h"
#include "editor/basListing.h"
#include "platform/pictures/QtPdfPrintQueue.h"
#include "support/QuoteTexts.h"
#include "windows/PrintedPdf.h"
#include "windows/WindowTest.h"

#include <algorithm>
#include <cmath>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

// In inches.
constexpr double HundredthInch = 0.01;
constexpr double HalfPage = 4.25; // of 8.5 inches, whatever the paper
constexpr double FirstStop = 1.2;
constexpr double StopDistance = 0.85;
constexpr double LineShare = 0.05; // words of one line differ less in height

std::vector<PrintedPage> PrintListing(char const* file, QPageSize::PageSizeId paper) {
    auto const series = GoldenSeries(file, "####0.00");
    settings::Settings settings;
    settings.CurrencyFormat = "####0.00";
    editor::Sheet sheet;
    editor::PlainSpread spread(sheet);
    auto const edited = std::make_unique<editor::Editor>(editor::Editor{sheet, spread, {}, 0});
    editor::OpenEditor(*edited, *series);
    editor::RebuildGrid(*edited, settings);
    platform::pictures::QtPdfPrintQueue queue((QPageSize(paper)));
    platform::NoMousePointer pointer;
    editor::PrintQuotes(*edited, series->QuoteFileName, settings, queue, pointer);
    return ReadPdf(queue.Pdf());
}

// The words of each line from left to right, the lines from the top.
std::vector<std::vector<PrintedWord>> LinesOf(PrintedPage const& page) {
    auto words = page.Words;
    std::ranges::stable_sort(words, {}, [](PrintedWord const& word) { return word.Box.bottom(); });
    std::vector<std::vector<PrintedWord>> lines;
    for (PrintedWord const& word : words) {
        if (lines.empty() || word.Box.bottom() - lines.back().front().Box.bottom() > LineShare) {
            lines.emplace_back();
        }
        lines.back().push_back(word);
    }
    for (auto& line : lines) {
        std::ranges::sort(line, {}, [](PrintedWord const& word) { return word.Box.left(); });
    }
    return lines;
}

QString TextOf(std::vector<PrintedWord> const& line) {
    QStringList words;
    for (PrintedWord const& word : line) {
        words.append(word.Text);
    }
    return words.join(u' ');
}

bool IsCentred(std::vector<PrintedWord> const& line) {
    double const centre = (line.front().Box.left() + line.back().Box.right()) / 2;
    return std::abs(centre - HalfPage) <= HundredthInch;
}

// Whether the eight texts of a row end at their stops.
bool EndsAtStops(std::vector<PrintedWord> const& row) {
    for (std::size_t column = 0; column < row.size(); ++column) {
        double const stop = FirstStop + StopDistance * static_cast<double>(column);
        if (std::abs(row[column].Box.right() - stop) > HundredthInch) {
            qInfo("%s ends at %f instead of %f", qPrintable(row[column].Text), row[column].Box.right(), stop);
            return false;
        }
    }
    return row.size() == 8;
}

} // namespace

class PrintedListingTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void RowsEndAtTheirStops_data() {
        QTest::addColumn<int>("paper");
        QTest::addRow("Letter") << static_cast<int>(QPageSize::Letter);
        QTest::addRow("A4") << static_cast<int>(QPageSize::A4);
    }

    // Head lines, a line of heads, then the days.
    void RowsEndAtTheirStops() {
        QFETCH(int, paper);
        auto const pages = PrintListing("q060.txt", static_cast<QPageSize::PageSizeId>(paper));
        QCOMPARE(pages.size(), 2U);
        auto const first = LinesOf(pages[0]);
        QCOMPARE(first.size(), 3U + 50 + 1);
        QCOMPARE(TextOf(first[0]), u"q060.txt"_s);
        QVERIFY(IsCentred(first[0]));
        QVERIFY(TextOf(first[1]).contains(u" to "_s));
        QVERIFY(IsCentred(first[1]));
        QCOMPARE(TextOf(first[2]), u"Day Date Open High Low Close Volume Open Interest"_s);
        for (std::size_t row = 0; row < 50; ++row) {
            QVERIFY(EndsAtStops(first[3 + row]));
        }
        QCOMPARE(TextOf(first.back()), u"Page 1"_s);
        QVERIFY(IsCentred(first.back()));
        auto const second = LinesOf(pages[1]);
        QCOMPARE(second.size(), 3U + 10); // the last page has no number
        QVERIFY(EndsAtStops(second.back()));
        QCOMPARE(second.back().front().Text, u"60"_s);
    }

    void NothingLeavesThePage_data() { RowsEndAtTheirStops_data(); }

    void NothingLeavesThePage() {
        QFETCH(int, paper);
        constexpr double LeastMargin = 0.25;
        for (PrintedPage const& page : PrintListing("q060.txt", static_cast<QPageSize::PageSizeId>(paper))) {
            QRectF const ink = page.Ink();
            QVERIFY(ink.left() > LeastMargin && ink.top() > LeastMargin);
            QVERIFY(ink.right() < page.Size.width() - LeastMargin);
            QVERIFY(ink.bottom() < page.Size.height() - LeastMargin);
        }
    }

    void HeadsStandLeftOfTheirStopsByTheirBlanks() {
        auto const head = LinesOf(PrintListing("q025.txt", QPageSize::Letter).at(0)).at(2);
        QVERIFY(std::abs(head[0].Box.right() - FirstStop) <= HundredthInch); // Day has no blank behind it
        double const dateEnd = FirstStop + StopDistance;
        QVERIFY(head[1].Box.right() < dateEnd - HundredthInch); // Date has two
        QVERIFY(head[1].Box.right() > dateEnd - 0.15);
        QVERIFY(std::abs(head.back().Box.right() - (FirstStop + 7 * StopDistance)) <= HundredthInch);
    }
};

template struct ListedWindowTest<PrintedListingTest>;

} // namespace quorvex::tests

#include "PrintedListingTest.moc"
