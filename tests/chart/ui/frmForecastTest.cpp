// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basForecastReading.h"
#include "chart/basForecastScale.h"
#include "chart/ui/ShownForecast.h"
#include "cycles/basCurves.h"
#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"
#include "quotes/basDateRange.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "windows/ModalAnswers.h"
#include "windows/ToolTips.h"
#include "windows/WindowTest.h"

#include <QListWidget>
#include <QMenuBar>
#include <QToolTip>
#include <QWindow>
#include <cmath>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;

namespace {

QStringList ToQtLines(std::vector<std::string> const& lines) {
    QStringList texts;
    for (std::string const& line : lines) {
        texts.append(ToQt(line));
    }
    return texts;
}

QString ExpectedDescription(ShownForecast const& shown) {
    auto const values = cycles::ComputeForecast(*shown.Cycles, *shown.Series);
    auto const dates = cycles::ComputeForecastDates(shown.Series->LastQuoteDate);
    return ToQt(chart::DescribeForecast({*shown.Series, values, dates, shown.Settings.CurrencyFormat}));
}

} // namespace

class frmForecastTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheCaptionNamesTheQuoteFile() {
        ShownForecast shown(QuoteLines(30), "corn.txt");
        shown.Show();
        QCOMPARE(shown.Window->windowTitle(), u"Quorvex Forecast - [corn.txt]"_s);
        QCOMPARE(shown.Window->objectName(), u"frmForecast"_s);
    }

    void TheNameInTheCaptionIsShownLetterForLetter() {
        ShownForecast shown(QuoteLines(100), "a[*].txt");
        shown.Show();
        QCOMPARE(shown.Window->windowHandle()->title(), u"Quorvex Forecast - [a[*].txt]"_s);
        shown.Choose("mnuFilePrint");
        QVERIFY(!shown.Folder.Read("Quorvex Forecast - [a[].txt].pdf").empty()); // no name has a star
    }

    void ASingleCycleSwingsByFourAroundTheLastClose() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        QStringList const lines = shown.Lines("List2");
        QCOMPARE(lines.size(), 25);
        for (int day = 1; day <= 25; ++day) {
            double const expected = 200 + 4 * std::sin((100 + day) * cycles::TwoPi / 20);
            double const listed = lines[day - 1].section(u' ', -1).toDouble();
            QVERIFY2(std::abs(listed - expected) <= 0.00005, qPrintable(lines[day - 1]));
        }
        QCOMPARE(lines[0].left(2), u" 1"_s);
        QCOMPARE(lines[24].left(2), u"25"_s);
    }

    void BothListsAgreeWithTheReference_data() {
        QTest::addColumn<int>("index");
        auto const cases = GoldenVector("curves");
        for (std::size_t index = 0; index < cases.size(); ++index) {
            QTest::addRow("%zu %s", index, cases.at(index).at("file").get<std::string>().c_str())
                << static_cast<int>(index);
        }
    }

    void BothListsAgreeWithTheReference() {
        QFETCH(int, index);
        auto const cases = GoldenVector("curves");
        auto const& expected = cases.at(static_cast<std::size_t>(index));
        ShownForecast shown(QuoteLines(25), "corn.txt");
        *shown.Series = *GoldenSeries(expected.at("file"), expected.at("currency_format").get<std::string>());
        int cycle = 0;
        for (auto const& row : expected.at("cycles")) {
            cycles::CycleRecord& record = shown.Cycles->Cycles[++cycle];
            record.Weight = row.at(0);
            record.Period = row.at(1);
            record.Shift = row.at(2);
        }
        shown.Show();
        auto const& forecast = expected.at("forecast");
        QCOMPARE(shown.Lines("List1"), ToQtLines(forecast.at("list1").get<std::vector<std::string>>()));
        QCOMPARE(shown.Lines("List2"), ToQtLines(forecast.at("list2").get<std::vector<std::string>>()));
    }

    void TheChartTellsWhatItShows() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        QCOMPARE(shown.Description(), ExpectedDescription(shown));
        QVERIFY(shown.Description().startsWith(u"Forecast chart: quotes of 25 days from "));
        QVERIFY(shown.Description().contains(u"Last close 200.00."));
        QCOMPARE(shown.Chart().accessibleName(), u"Forecast chart"_s);
    }

    void TheChartTellsEveryColumn() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        auto const span = chart::ComputeForecastSpan(shown.Chart().Drawing().Width());
        auto const tip = [&](int column) {
            return ToolTipAt(shown.Chart(),
                             {static_cast<int>(span.X(column) / platform::pictures::TwipsPerPixel), 50});
        };
        QCOMPARE(tip(1),
                 u"Day 76, %1: Open 176.25, Close 176.00"_s.arg(ToQt(shown.Series->Working[76].Date)));
        QCOMPARE(tip(25), u"Day 100, %1: Open 200.25, Close 200.00"_s.arg(ToQt(shown.Series->LastQuoteDate)));
        QVERIFY(tip(26).startsWith(u"Forecast day 1, "));
        QVERIFY(tip(50).startsWith(u"Forecast day 25, "));
        QCOMPARE(ToolTipAt(shown.Chart(), {1, 50}), QString());
    }

    void ArrowKeysWalkAlongTheChart() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        shown.Chart().setFocus();
        QTest::keyClick(&shown.Chart(), Qt::Key_Left);
        QVERIFY(QToolTip::text().startsWith(u"Forecast day 25, "));
        QTest::keyClick(&shown.Chart(), Qt::Key_Home);
        QVERIFY(QToolTip::text().startsWith(u"Day 76, "));
    }

    void TheForecastIsComputedAnewWheneverTheWindowIsActivated() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        QStringList const before = shown.Lines("List2");
        shown.Cycles->Cycles[1].Period = 7;
        QCOMPARE(shown.Lines("List2"), before);
        shown.ActivateAgain();
        QVERIFY(shown.Lines("List2") != before);
        QCOMPARE(shown.Lines("List2").size(), 25);
        QCOMPARE(shown.Description(), ExpectedDescription(shown));
    }

    void AChangeOfSizeDrawsTheChartAnew() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        QSize const before = shown.Chart().Picture().size();
        shown.Window->resize(shown.Window->size() + QSize(100, 80));
        QTRY_COMPARE(shown.Chart().Picture().size(), before + QSize(100, 80));
        QCOMPARE(shown.Chart().Drawing().Width(), shown.Chart().width() * platform::pictures::TwipsPerPixel);
    }

    void ADateRangeOfAFewDaysListsThoseAlone() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        quotes::DateRange range{shown.Series->Master[41].Date, shown.Series->Master[50].Date};
        QCOMPARE(quotes::AdjustQuoteDateRange(*shown.Series, range), quotes::RangeChange::Narrowed);
        shown.Show();
        QCOMPARE(shown.Lines("List1").size(), 10);
        QVERIFY(shown.Lines("List1")[0].startsWith(u" 1  "));
        QCOMPARE(shown.Lines("List2").size(), 25);
        QVERIFY(shown.Description().startsWith(u"Forecast chart: quotes of 10 days from "));
        QCOMPARE(shown.Description(), ExpectedDescription(shown));
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void AFaultShowsOneMessageAndNoForecast() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Series->LastQuoteDate = "no date";
        shown.Show();
        shown.ActivateAgain();
        QCOMPARE(shown.Dialogs.Messages.size(), 1U);
        QCOMPARE(shown.Dialogs.Messages[0].Text, std::string("Type mismatch"));
        QCOMPARE(shown.Dialogs.Messages[0].Title, std::string("Quorvex"));
        QVERIFY(shown.Lines("List1").isEmpty());
        QVERIFY(shown.Lines("List2").isEmpty());
        QCOMPARE(shown.Description(), u"Type mismatch"_s);
        QCOMPARE(ToolTipAt(shown.Chart(), {200, 50}), QString());
    }

    void AFaultTakesTheLastForecastAway() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        QImage const before = shown.Chart().Picture().copy();
        shown.Series->LastQuoteDate = "no date";
        shown.ActivateAgain();
        QVERIFY(shown.Lines("List2").isEmpty());
        QCOMPARE(shown.Description(), u"Type mismatch"_s);
        QVERIFY(shown.Chart().Picture() != before);
    }

    void TheMenuHasPrintAndExit() {
        ShownForecast shown(QuoteLines(30), "corn.txt");
        shown.Show();
        auto const* bar = shown.Window->findChild<QMenuBar*>();
        QCOMPARE(bar->actions().size(), 1);
        QCOMPARE(bar->actions()[0]->text(), u"&File"_s);
        QStringList items;
        for (QAction const* item : shown.Window->findChild<QMenu*>(u"mnuFile"_s)->actions()) {
            items.append(item->objectName() + u' ' + item->text());
        }
        QCOMPARE(items, QStringList({u"mnuFilePrint &Print"_s, u"mnuFileExit E&xit"_s}));
    }

    void ExitAndEscapeCloseTheWindow() {
        ShownForecast shown(QuoteLines(30), "corn.txt");
        shown.Show();
        shown.Choose("mnuFileExit");
        QVERIFY(!shown.Window->isVisible());
        shown.Show();
        QTest::keyClick(shown.Window.get(), Qt::Key_Escape);
        QVERIFY(!shown.Window->isVisible());
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void OpenWaitsUntilTheWindowIsClosed() {
        ShownForecast shown(QuoteLines(30), "corn.txt");
        ModalAnswers answers;
        answers.Next([](QWidget& window) {
            QCOMPARE(QApplication::focusWidget()->objectName(), u"List1"_s);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        shown.Window->RunModal();
        QVERIFY(answers.IsDone());
        QCOMPARE(shown.Lines("List2").size(), 25);
    }

    void TabGoesFromListToListToTheChart() {
        ShownForecast shown(QuoteLines(30), "corn.txt");
        shown.Show();
        shown.Window->findChild<QListWidget*>(u"List1"_s)->setFocus();
        QStringList names;
        for (int step = 0; step < 4; ++step) {
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names.join(u' '), u"List1 List2 Pic1 List1"_s);
    }

    void EveryLineFitsIntoItsList() {
        ShownForecast shown(GoldenFile("quotes/q250.txt"), "q250.txt");
        shown.Show();
        for (char const* name : {"List1", "List2"}) {
            auto const* list = shown.Window->findChild<QListWidget*>(QString::fromLatin1(name));
            QVERIFY(list->sizeHintForColumn(0) <= list->viewport()->width());
        }
    }
};

template struct ListedWindowTest<frmForecastTest>;

} // namespace quorvex::tests

#include "frmForecastTest.moc"
