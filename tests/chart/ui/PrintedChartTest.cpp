// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basPrint.h"
#include "platform/pictures/QtPdfPrintQueue.h"
#include "quotes/PriceScale.h"
#include "support/QuoteTexts.h"
#include "windows/PrintedPdf.h"
#include "windows/WindowTest.h"

#include <algorithm>
#include <cmath>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

// In inches.
constexpr double Hundredth = 0.01;
constexpr double Dot = 1 / PictureResolution;
constexpr double Margin = 1;
constexpr double ChartHeight = 4;
constexpr double FrameOffset = 25.0 / 1440;

constexpr int Divisions = 10;

struct Case {
    char const* File; // empty without quotes
    std::string Style;
    QPageSize::PageSizeId Paper;
};

// A page that was printed and read back.
struct ReadBackChart {
    explicit ReadBackChart(Case const& printed)
        : Series(*printed.File == '\0' ? std::make_unique<quotes::QuoteSeries>()
                                       : GoldenSeries(printed.File, "####0.00")) {
        settings::Settings settings;
        settings.ChartType = printed.Style;
        settings.CurrencyFormat = "####0.00";
        platform::pictures::QtPdfPrintQueue queue((QPageSize(printed.Paper)));
        platform::NoMousePointer pointer;
        chart::PrintChart(queue, pointer, *Series, settings);
        auto pages = ReadPdf(queue.Pdf());
        PageCount = pages.size();
        Page = std::move(pages.at(0));
        FindFrame();
    }

    // The words from the end: the labels are printed last.
    [[nodiscard]] PrintedWord const& Label(int k) const {
        return Page.Words.at(Page.Words.size() - Divisions + static_cast<std::size_t>(k));
    }

    [[nodiscard]] double DivisionY(int k) const { return Top + ChartHeight * k / Divisions; }

    // The share of the plotting area's width that has ink at this height, give or take a dot.
    [[nodiscard]] double DarkShare(double y) const {
        int dark = 0;
        int count = 0;
        for (double x = Left; x < Right; x += Dot) {
            dark += Page.IsDark(x, y) || Page.IsDark(x, y - Dot) || Page.IsDark(x, y + Dot) ? 1 : 0;
            ++count;
        }
        return static_cast<double>(dark) / count;
    }

    std::unique_ptr<quotes::QuoteSeries> Series;
    std::size_t PageCount = 0;
    PrintedPage Page;
    double Left = 0; // of the plotting area
    double Right = 0;
    double Top = 0;

private:
    // The frame's right line is the last ink; the left and top ones are found from there.
    void FindFrame() {
        QRectF const ink = Page.Ink();
        Right = Page.Size.width() - Margin;
        double const bottom = ink.bottom() - Dot / 2;
        Left = ink.right() - Dot;
        while (Page.IsDark(Left - Dot, bottom)) {
            Left -= Dot;
        }
        Left += FrameOffset;
        Top = bottom;
        while (Page.IsDark(ink.right() - Dot, Top - Dot)) {
            Top -= Dot;
        }
        Top += FrameOffset;
    }
};

QRectF BoxOf(std::vector<PrintedWord> const& words, std::size_t first, std::size_t count) {
    QRectF box;
    for (std::size_t index = first; index < first + count; ++index) {
        box |= words.at(index).Box;
    }
    return box;
}

// Qt Test's own comparison of numbers is relative.
bool IsNear(double actual, double expected, double tolerance) {
    if (std::abs(actual - expected) <= tolerance) {
        return true;
    }
    qInfo("%f instead of %f", actual, expected);
    return false;
}

} // namespace

class PrintedChartTest final : public WindowTest {
    Q_OBJECT

    static void AddCases() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("paper");
        for (auto const paper : {QPageSize::Letter, QPageSize::A4}) {
            for (char const* file : {"", "q025.txt", "q500.txt"}) {
                for (char const* style : {"Daily Bar Chart", "Candlestick Chart", "Line Chart"}) {
                    QTest::addRow("%s, '%s', %s", paper == QPageSize::A4 ? "A4" : "Letter", file, style)
                        << QString::fromLatin1(file) << QString::fromLatin1(style) << static_cast<int>(paper);
                }
            }
        }
    }

private Q_SLOTS:

    void EverythingStandsWhereItBelongs_data() { AddCases(); }

    void EverythingStandsWhereItBelongs() {
        QFETCH(QString, file);
        QFETCH(QString, style);
        QFETCH(int, paper);
        std::string const name = file.toStdString();
        auto const paperSize = static_cast<QPageSize::PageSizeId>(paper);
        ReadBackChart const chart({name.c_str(), style.toStdString(), paperSize});
        QCOMPARE(chart.PageCount, 1U);
        ItIsOfThePaper(chart, paperSize);
        TheHeaderIsCentred(chart, file);
        NothingLeavesTheMargins(chart);
        DivisionsCrossTheChart(chart);
        LabelsStandBesideTheirDivisions(chart);
    }

    void BarsReachFromLowToHigh() {
        ReadBackChart const chart({"q025.txt", "Daily Bar Chart", QPageSize::Letter});
        auto const range = quotes::ComputePriceRange(*chart.Series);
        double const step = (chart.Right - chart.Left) / 26;
        // The quotes fill nine tenths of the height.
        auto const placeOf = [&](double price) {
            double const share =
                (range.PriceScaleHigh - price) / (range.PriceScaleHigh - range.PriceScaleLow);
            return chart.Top + ChartHeight * (0.05 + 0.9 * share);
        };
        for (int day = 1; day <= 25; ++day) {
            double const left = chart.Left + (day - 0.1) * step + Dot; // the left border of the bar
            double const high = placeOf(chart.Series->Working[day].High);
            double const low = placeOf(chart.Series->Working[day].Low);
            for (double y = high + 2 * Dot; y < low - 2 * Dot; y += Dot) {
                QVERIFY2(chart.Page.IsDark(left, y), qPrintable(QString::number(day)));
            }
        }
    }

    void TicksStandAtEveryDay() {
        ReadBackChart const chart({"q025.txt", "Line Chart", QPageSize::A4});
        double const step = (chart.Right - chart.Left) / 26;
        // In the left border of the tick, which is more than a dot wide.
        auto const hasInk = [&](int day, double twips) {
            double const x = chart.Left + (day - 0.1) * step;
            double const y = chart.Top + ChartHeight - twips / 1440;
            return chart.Page.IsDark(x, y) || chart.Page.IsDark(x + Dot, y) ||
                   chart.Page.IsDark(x + 2 * Dot, y);
        };
        for (int day = 1; day <= 25; ++day) {
            QVERIFY(hasInk(day, 40));
            QCOMPARE(hasInk(day, 90), day % 5 == 0);
            QCOMPARE(hasInk(day, 140), day % 10 == 0);
        }
    }

    // What columns of a listing rely on.
    void TextsEndWhereTheirWidthSays_data() {
        QTest::addColumn<QString>("font");
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("isBold");
        QTest::newRow("body") << u"Times New Roman"_s << 10 << false;
        QTest::newRow("head") << u"Times New Roman"_s << 10 << true;
        QTest::newRow("title") << u"Arial"_s << 14 << true;
    }

    void TextsEndWhereTheirWidthSays() {
        QFETCH(QString, font);
        QFETCH(int, size);
        QFETCH(bool, isBold);
        platform::pictures::QtPdfPrintQueue queue;
        auto const printer = queue.Start("Stops");
        printer->SetScaleMode(platform::ScaleMode::Inches);
        printer->SetFont(font.toStdString(), size, isBold);
        constexpr double Stop = 4.5;
        std::vector<std::string> const texts = {"1", "11/06/18", "1234567.89", "AVAToWy.", "Interest"};
        for (std::string const& text : texts) {
            printer->SetTextPosition(Stop - printer->TextWidth(text), printer->TextY());
            printer->Print(text);
            QVERIFY(IsNear(printer->TextX(), Stop, 1e-9));
            printer->EndLine();
        }
        printer->EndDocument();
        auto const pages = ReadPdf(queue.Pdf());
        QCOMPARE(pages.at(0).Words.size(), texts.size());
        for (PrintedWord const& word : pages[0].Words) {
            QVERIFY(IsNear(word.Box.right(), Stop, Hundredth));
        }
    }

    void ANewPageStartsAtTheTopWithTheSameFont() {
        platform::pictures::QtPdfPrintQueue queue((QPageSize(QPageSize::Letter)));
        auto const printer = queue.Start("Pages");
        QVERIFY(IsNear(printer->Width(), 12240, 1));
        QVERIFY(IsNear(printer->Height(), 15840, 1));
        printer->SetFont("Arial", 20, true);
        PrintLine(*printer, "first");
        printer->NewPage();
        QCOMPARE(printer->TextY(), 0.0);
        PrintLine(*printer, "first");
        printer->EndDocument();
        auto const pages = ReadPdf(queue.Pdf());
        QCOMPARE(pages.size(), 2U);
        QCOMPARE(pages[0].Words.at(0).Box, pages[1].Words.at(0).Box);
        QVERIFY(IsNear(pages[0].Words[0].Box.top(), 0, Hundredth));
        QVERIFY(IsNear(pages[0].Words[0].Box.left(), 0, Hundredth));
    }

private:
    static void ItIsOfThePaper(ReadBackChart const& chart, QPageSize::PageSizeId paper) {
        QSizeF const inches = QPageSize::size(paper, QPageSize::Inch);
        QVERIFY(IsNear(chart.Page.Size.width(), inches.width(), Hundredth));
        QVERIFY(IsNear(chart.Page.Size.height(), inches.height(), Hundredth));
    }

    static void TheHeaderIsCentred(ReadBackChart const& chart, QString const& file) {
        double const middle = chart.Page.Size.width() / 2;
        auto const& words = chart.Page.Words;
        if (file.isEmpty()) {
            QCOMPARE(words.at(0).Text, u"to"_s); // between dates that are not there
            QVERIFY(IsNear(words[0].Box.center().x(), middle, Hundredth));
            return;
        }
        QCOMPARE(words.at(0).Text, file);
        QVERIFY(IsNear(words[0].Box.center().x(), middle, Hundredth));
        auto const& days = chart.Series->Working;
        QCOMPARE(words.at(1).Text.toStdString(), days[1].Date);
        QCOMPARE(words.at(3).Text.toStdString(), days[chart.Series->WorkingCount].Date);
        QVERIFY(IsNear(BoxOf(words, 1, 3).center().x(), middle, Hundredth));
        QVERIFY(words[0].Box.bottom() <= words[1].Box.top() + Hundredth);
        QVERIFY(words[1].Box.bottom() < chart.Top);
    }

    static void NothingLeavesTheMargins(ReadBackChart const& chart) {
        constexpr double FrameAndLine = 0.03;
        QRectF const ink = chart.Page.Ink();
        QVERIFY(ink.left() >= Margin - FrameAndLine);
        QVERIFY(ink.right() <= chart.Page.Size.width() - Margin + FrameAndLine);
        QVERIFY(ink.top() > 0);
        QVERIFY(IsNear(ink.bottom(), chart.Top + ChartHeight + FrameOffset, 2 * Dot));
        QVERIFY(ink.bottom() < chart.Page.Size.height() - Margin);
    }

    static void DivisionsCrossTheChart(ReadBackChart const& chart) {
        for (int k = 1; k < Divisions; ++k) {
            QVERIFY2(chart.DarkShare(chart.DivisionY(k)) > 0.99, qPrintable(QString::number(k)));
            QVERIFY2(chart.DarkShare(chart.DivisionY(k) - ChartHeight / Divisions / 2) < 0.75,
                     qPrintable(QString::number(k)));
        }
    }

    static void LabelsStandBesideTheirDivisions(ReadBackChart const& chart) {
        constexpr double ThreeBlanks = 3 * 0.278 * 8 / 72; // of Arial at 8 points
        for (int k = 1; k < Divisions; ++k) {
            QRectF const& label = chart.Label(k).Box;
            QVERIFY(IsNear(label.center().y(), chart.DivisionY(k), 0.02));
            QVERIFY(IsNear(label.right(), chart.Left - ThreeBlanks, Hundredth));
        }
    }
};

template struct ListedWindowTest<PrintedChartTest>;

} // namespace quorvex::tests

#include "PrintedChartTest.moc"
