// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"
#include "support/QuoteTexts.h"
#include "text/basFormats.h"
#include "windows/RunningWindow.h"
#include "windows/ToolTips.h"
#include "windows/WindowTest.h"

#include <QImage>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;

namespace {

// Where a column of so many stands, in pixels.
QPoint ColumnPlace(QWidget const& box, int column, int columns) {
    return {column * box.width() / (columns + 1), box.height() / 2};
}

QString Price(double value) {
    return ToQt(text::FormatNumber(value, "####0.00"));
}

QString Units(double value) {
    return ToQt(text::FormatNumber(value, "##0.0"));
}

} // namespace

class frmMainChartsTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheQuoteChartTellsTheDaysPrices() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        auto const& quote = main.Data->Quotes.Working[30];
        QString const expected = u"%1\nOpen: %2\nHigh: %3\nLow: %4\nClose: %5\nMoving average: %6"_s.arg(
            ToQt(quote.Date), Price(quote.Open), Price(quote.High), Price(quote.Low), Price(quote.Close),
            Price(main.Data->Curves.MovingAverageCurve[30]));
        QCOMPARE(ToolTipAt(main.Box(1), ColumnPlace(main.Box(1), 30, 60)), expected);
    }

    void TheCycleChartsTellTheDaysValues() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuParametersAutomate2");
        auto const& data = *main.Data;
        QString const date = ToQt(data.Quotes.Working[17].Date);
        QCOMPARE(ToolTipAt(main.Box(2), ColumnPlace(main.Box(2), 17, 60)),
                 u"%1\nCycle 1: %2\nCycle 2: %3"_s.arg(date, Units(data.Cycles.Cycles[1].Values[17]),
                                                       Units(data.Cycles.Cycles[2].Values[17])));
        QCOMPARE(ToolTipAt(main.Box(3), ColumnPlace(main.Box(3), 17, 60)),
                 u"%1\nComposite: %2"_s.arg(date, Units(data.Curves.CompositeCurve[17])));
        QCOMPARE(ToolTipAt(main.Box(4), ColumnPlace(main.Box(4), 17, 60)),
                 u"%1\nResidual: %2"_s.arg(date, Units(data.Curves.ResidualCurve[17])));
    }

    void WithoutQuotesDaysHaveNumbers() {
        RunningWindow main;
        main.TypeInto(1, 1, u"100"_s);
        main.TypeInto(2, 1, u"20"_s);
        main.Choose("mnuRefresh");
        QCOMPARE(ToolTipAt(main.Box(3), ColumnPlace(main.Box(3), 5, 100)), u"Day 5\nComposite: 100.0"_s);
    }

    void AnEmptyChartTellsNothing() {
        RunningWindow main;
        QCOMPARE(ToolTipAt(main.Box(1), QPoint(50, 50)), QString());
        QCOMPARE(ToolTipAt(main.Box(2), QPoint(50, 50)), QString());
    }

    void ArrowKeysWalkAlongTheDays() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        platform::qt::PictureBox& box = main.Box(1);
        box.setFocus();
        auto const date = [&main](int day) { return ToQt(main.Data->Quotes.Working[day].Date); };
        auto const press = [&box](Qt::Key key) {
            QTest::keyClick(&box, key);
            return QToolTip::text().section(u'\n', 0, 0);
        };
        QCOMPARE(press(Qt::Key_Left), date(60));
        QCOMPARE(press(Qt::Key_Left), date(59));
        QCOMPARE(press(Qt::Key_Right), date(60));
        QCOMPARE(press(Qt::Key_Right), date(60));
        QCOMPARE(press(Qt::Key_PageUp), date(50));
        QCOMPARE(press(Qt::Key_Home), date(1));
        QCOMPARE(press(Qt::Key_Left), date(1));
        QCOMPARE(press(Qt::Key_PageDown), date(11));
        QCOMPARE(press(Qt::Key_End), date(60));
    }

    void PicturesAreWhatAPainterPaintsAtEveryScale_data() {
        QTest::addColumn<double>("scale");
        for (double const scale : {1.0, 1.25, 1.5, 2.0}) {
            QTest::addRow("%g", scale) << scale;
        }
    }

    void PicturesAreWhatAPainterPaintsAtEveryScale() {
        QFETCH(double, scale);
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuParametersAutomate3");
        for (char const* const type : {"Daily Bar Chart", "Candlestick Chart", "Line Chart"}) {
            main.Data->Settings.ChartType = type;
            main.Choose("mnuRefresh");
            for (int number = 1; number <= 4; ++number) {
                auto const& drawing = main.Box(number).Drawing();
                QImage expected((QSizeF(main.Box(number).size()) * scale).toSize(), QImage::Format_RGB32);
                expected.fill(Qt::white);
                QImage picture = expected.copy();
                double const unitsPerTwip = scale / platform::TwipsPerPixel;
                platform::pictures::PaintPicture(picture, drawing, unitsPerTwip);
                QPainter painter(&expected);
                platform::pictures::PaintDrawing(painter, drawing,
                                                 {unitsPerTwip, platform::pictures::Medium::Pixels});
                painter.end();
                QCOMPARE(picture, expected);
                if (scale == 1) {
                    QCOMPARE(main.Picture(number), expected);
                }
            }
        }
    }

    void DescriptionsTellWhatIsDrawn() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        auto const& data = *main.Data;
        double low = data.Quotes.Working[1].Low;
        double high = data.Quotes.Working[1].High;
        for (int day = 1; day <= 60; ++day) {
            low = std::min(low, data.Quotes.Working[day].Low);
            high = std::max(high, data.Quotes.Working[day].High);
        }
        QCOMPARE(main.Box(1).accessibleDescription(),
                 u"Daily bar chart of 60 days, %1 to %2. Lowest %3, highest %4, last close %5. 3-day moving "
                 u"average, last value %6."_s.arg(ToQt(data.Quotes.Working[1].Date),
                                                  ToQt(data.Quotes.Working[60].Date), Price(low), Price(high),
                                                  Price(data.Quotes.Working[60].Close),
                                                  Price(data.Curves.MovingAverageCurve[60])));
        QCOMPARE(main.Box(4).accessibleDescription(), u"No cycle is active."_s);
    }

    void DescriptionsFollowAFit() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuParametersAutomate1");
        auto const& data = *main.Data;
        QString const span =
            u"60 days, %1 to %2"_s.arg(ToQt(data.Quotes.Working[1].Date), ToQt(data.Quotes.Working[60].Date));
        auto const range = [](auto const& curve) {
            double low = curve[1];
            double high = curve[1];
            for (int day = 1; day <= 60; ++day) {
                low = std::min(low, curve[day]);
                high = std::max(high, curve[day]);
            }
            return u"Lowest %1, highest %2"_s.arg(Units(low), Units(high));
        };
        QCOMPARE(main.Box(2).accessibleDescription(),
                 u"1 component cycle over %1. Cycle 1: weight 100, period %2. %3."_s.arg(
                     span, main.Cell(2, 1).text(), range(data.Cycles.Cycles[1].Values)));
        QCOMPARE(main.Box(3).accessibleDescription(),
                 u"Composite estimate cycle over %1. %2, last value %3."_s.arg(
                     span, range(data.Curves.CompositeCurve), Units(data.Curves.CompositeCurve[60])));
        QCOMPARE(main.Box(4).accessibleDescription(),
                 u"Residual, moving average minus composite cycle, over %1. %2, last value %3."_s.arg(
                     span, range(data.Curves.ResidualCurve), Units(data.Curves.ResidualCurve[60])));
    }

    void DescriptionsAndToolTipsFollowClose() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuParametersAutomate1");
        QString const cycles = main.Box(2).accessibleDescription();
        QString const tip = ToolTipAt(main.Box(2), ColumnPlace(main.Box(2), 17, 60));
        main.Choose("mnuFileClose");
        QCOMPARE(main.Box(1).accessibleDescription(), u"No quote file is open."_s);
        QCOMPARE(main.Box(4).accessibleDescription(), u"No quote file is open."_s);
        QCOMPARE(main.Box(2).accessibleDescription(), cycles);
        QCOMPARE(ToolTipAt(main.Box(2), ColumnPlace(main.Box(2), 17, 60)), tip);
        QCOMPARE(ToolTipAt(main.Box(1), ColumnPlace(main.Box(1), 17, 60)), QString());
    }

    void DescriptionsFollowNew() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuParametersAutomate1");
        QString const quotes = main.Box(1).accessibleDescription();
        main.Answers.Click(QMessageBox::No);
        main.Choose("mnuParametersNew");
        QCOMPARE(main.Box(1).accessibleDescription(), quotes);
        for (int number = 2; number <= 4; ++number) {
            QCOMPARE(main.Box(number).accessibleDescription(), u"No cycle is active."_s);
            QCOMPARE(ToolTipAt(main.Box(number), ColumnPlace(main.Box(number), 17, 60)), QString());
        }
    }

    void PricesWithoutARangeAreSaidToBeMissing() {
        std::string flat;
        for (int day = 1; day <= 28; ++day) {
            flat += "01/" + std::to_string(day) + "/02, 5, 5, 5, 5, 1, 1\r\n";
        }
        RunningWindow main;
        main.OpenQuotes("flat.txt", flat);
        QVERIFY(main.Answers.Shown().isEmpty());
        QCOMPARE(main.Box(1).accessibleDescription(), u"The quotes could not be drawn: Division by zero."_s);
    }

    void ANewFileReplacesTheReadings() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.OpenQuotes("corn.txt", QuoteLines(30));
        QVERIFY(main.Box(1).accessibleDescription().startsWith(
            u"Daily bar chart of 30 days, 01/01/01 to 02/09/01. Lowest 101.00, highest 130.75, last close "
            u"130.00."));
        QVERIFY(ToolTipAt(main.Box(1), ColumnPlace(main.Box(1), 30, 30)).startsWith(u"02/09/01\n"));
    }
};

template struct ListedWindowTest<frmMainChartsTest>;

} // namespace quorvex::tests

#include "frmMainChartsTest.moc"
