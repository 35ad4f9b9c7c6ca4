// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QEvent>
#include <QMenuBar>
#include <QTimer>
#include <functional>

Q_DECLARE_METATYPE(std::function<void(quorvex::tests::RunningWindow&)>)

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

using Occasion = std::function<void(RunningWindow&)>;

void Refresh(RunningWindow& main) {
    main.Choose("mnuRefresh");
}

void GoAwayAndComeBack(RunningWindow& main) {
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    main.Window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(main.Window.get()));
}

void Enlarge(RunningWindow& main) {
    main.Window->resize(main.Window->size() + QSize(60, 40));
    QCoreApplication::processEvents();
}

void TypeWeights(RunningWindow& main, QStringList const& weights) {
    for (qsizetype index = 0; index < weights.size(); ++index) {
        main.TypeInto(1, static_cast<int>(index) + 1, weights[index]);
    }
}

QString const Zeros = u" 0 0 0 0 0 0 0"_s;

} // namespace

class frmMainRedrawTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void WhatWasTypedIsTakenUp_data() {
        QTest::addColumn<Occasion>("occasion");
        QTest::newRow("by Refresh") << Occasion(Refresh);
        QTest::newRow("when the window is activated") << Occasion(GoAwayAndComeBack);
        QTest::newRow("when the window changes its size") << Occasion(Enlarge);
    }

    void WhatWasTypedIsTakenUp() {
        QFETCH(Occasion, occasion);
        RunningWindow main;
        TypeWeights(main, {u"1"_s, u"3"_s});
        main.TypeInto(2, 1, u"12.6"_s);
        main.TypeInto(2, 2, u"30"_s);
        QCOMPARE(main.Data->Cycles.Cycles[1].Weight, 0.0);
        occasion(main);
        QTRY_COMPARE(main.RowTexts(1), u"25 75 0"_s + Zeros);
        QCOMPARE(main.RowTexts(2), u"13 30 0"_s + Zeros);
        QCOMPARE(main.Data->Cycles.Cycles[1].Weight, 25.0);
        QCOMPARE(main.Data->Cycles.Cycles[1].Period, 13.0);
        QVERIFY(main.Box(2).accessibleDescription().startsWith(
            u"2 component cycles over 100 days. Cycle 1: weight 25, period 13. Cycle 2: weight 75"));
    }

    void WeightsBecomePercentages_data() {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("percentages stay") << QStringList{u"50"_s, u"50"_s} << u"50 50 0"_s;
        QTest::newRow("three thirds") << QStringList{u"30"_s, u"30"_s, u"30"_s} << u"33 33 33"_s;
        QTest::newRow("above a hundred") << QStringList{u"100.4"_s, u"50"_s} << u"0 100 0"_s;
        QTest::newRow("a hundred") << QStringList{u"100"_s} << u"100 0 0"_s;
        QTest::newRow("negative") << QStringList{u"-1"_s, u"8"_s} << u"0 100 0"_s;
        QTest::newRow("not a number") << QStringList{u"abc"_s, u"8kg"_s} << u"0 100 0"_s;
        QTest::newRow("a decimal comma ends the number") << QStringList{u"2,9"_s, u"2"_s} << u"50 50 0"_s;
    }

    void WeightsBecomePercentages() {
        QFETCH(QStringList, typed);
        QFETCH(QString, shown);
        RunningWindow main;
        TypeWeights(main, typed);
        main.Choose("mnuRefresh");
        QCOMPARE(main.RowTexts(1), shown + Zeros);
    }

    void WithoutAnyWeightTypedPeriodsHaveNoEffect() {
        RunningWindow main;
        TypeWeights(main, {u"50"_s});
        main.TypeInto(2, 1, u"20"_s);
        main.Choose("mnuRefresh");
        QImage const cycles = main.Picture(2);
        QImage const composite = main.Picture(3);
        QString const description = main.Box(2).accessibleDescription();
        TypeWeights(main, {u"0"_s});
        main.TypeInto(2, 1, u"40.7"_s);
        main.Choose("mnuRefresh");
        QCOMPARE(main.Cell(2, 1).text(), u"40.7"_s);
        QCOMPARE(main.Picture(2), cycles);
        QCOMPARE(main.Picture(3), composite);
        QCOMPARE(main.Box(2).accessibleDescription(), description);
        TypeWeights(main, {u"50"_s});
        main.Choose("mnuRefresh");
        QCOMPARE(main.Cell(2, 1).text(), u"41"_s);
        QVERIFY(main.Picture(2) != cycles);
        QVERIFY(main.Picture(3) != composite);
    }

    // Weights that show how often the grid was read: 46 2 53 is once, 46 2 52 is twice.
    void EveryCommandReadsTheGridOnceAtMost_data() {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QString>("shown");
        for (char const* item :
             {"mnuFileEdit", "mnuFileConvertCSI", "mnuFileConvertBARCHART", "mnuFileConvertCustom",
              "mnuFileProperties", "mnuRefresh", "mnuForecast", "mnuCorrelation", "mnuPreferences",
              "mnuLegend", "mnuHelpReadMe", "mnuHelpAbout", "mnuParametersOpen"}) {
            QTest::newRow(item) << QByteArray(item) << u"46 2 53"_s;
        }
        for (char const* item : {"mnuParametersNew", "mnuHelpUserManual", "mnuParametersPrint"}) {
            QTest::newRow(item) << QByteArray(item) << u"57 2 66"_s;
        }
    }

    void EveryCommandReadsTheGridOnceAtMost() {
        QFETCH(QByteArray, item);
        QFETCH(QString, shown);
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Folder.Write("mine.dat", "1, 40, 10, 0\r\n");
        TypeWeights(main, {u"57"_s, u"2"_s, u"66"_s});
        if (item != "mnuRefresh" && item != "mnuCorrelation" && item != "mnuHelpUserManual" &&
            item != "mnuParametersPrint") {
            main.Answers.Escape();
        }
        main.Choose(item.constData());
        QVERIFY(main.Answers.IsDone());
        QCOMPARE(main.RowTexts(1), shown + Zeros);
        // What the desktop may deliver when the dialog is gone.
        QEvent late(QEvent::WindowActivate);
        QCoreApplication::sendEvent(main.Window.get(), &late);
        QCoreApplication::processEvents();
        QCOMPARE(main.RowTexts(1), shown + Zeros);
    }

    void AMessageThatClosesDoesNotReadTheGrid() {
        RunningWindow main;
        TypeWeights(main, {u"57"_s, u"2"_s, u"66"_s});
        main.Answers.NextMessage([&main](QWidget& message) {
            for (auto const type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
                QEvent event(type);
                QCoreApplication::sendEvent(main.Window.get(), &event);
            }
            QTest::keyClick(&message, Qt::Key_Return);
        });
        main.Choose("mnuCorrelation");
        QCOMPARE(main.Answers.Shown().size(), 1);
        QCOMPARE(main.RowTexts(1), u"57 2 66"_s + Zeros);
        GoAwayAndComeBack(main);
        QCOMPARE(main.RowTexts(1), u"46 2 53"_s + Zeros);
    }

    void ASizeThatChangesBehindAMessageIsDrawnAtOnceAndReadsTheGridAfterIt() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        TypeWeights(main, {u"57"_s, u"2"_s, u"66"_s});
        main.TypeInto(2, 1, u"20"_s);
        QSize const before = main.Picture(1).size();
        main.Answers.NextMessage([&](QWidget& message) {
            Enlarge(main);
            QVERIFY(main.Picture(1).width() > before.width());
            QCOMPARE(main.Picture(4).size(), main.Box(4).size());
            QCOMPARE(main.Box(1).Drawing().Width(),
                     main.Window->centralWidget()->width() * 15 * 0.97 + 120 * 0.97);
            QCOMPARE(main.RowTexts(1), u"57 2 66"_s + Zeros);
            QTest::keyClick(&message, Qt::Key_Return);
        });
        main.Choose("mnuHelpUserManual");
        QVERIFY(main.Answers.IsDone());
        QTRY_COMPARE(main.RowTexts(1), u"46 2 53"_s + Zeros);
        QVERIFY(main.Box(2).accessibleDescription().startsWith(u"1 component cycle over 60 days"));
    }

    void ASeriesOfNoDaysHasEmptyChartsThatSaySo() {
        RunningWindow main;
        main.Data->Quotes.QuoteFileName = "none.txt";
        TypeWeights(main, {u"100"_s});
        main.TypeInto(2, 1, u"20"_s);
        main.Choose("mnuRefresh");
        QCOMPARE(main.Box(1).accessibleDescription(), u"There are no quotes to show."_s);
        QCOMPARE(main.Box(4).accessibleDescription(), u"There are no quotes to show."_s);
    }

    void TheChartsFollowTheSizeOfTheWindow() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        QSize const before = main.Picture(1).size();
        Enlarge(main);
        QTRY_COMPARE(main.Picture(1).width(), main.Box(1).width());
        QVERIFY(main.Picture(1).width() > before.width());
        QVERIFY(main.Picture(1).height() > before.height());
        QCOMPARE(main.Box(1).Drawing().Width(),
                 main.Window->centralWidget()->width() * 15 * 0.97 + 120 * 0.97);
    }

    // As when the edge of the window is dragged faster than the charts are drawn.
    void ASizeThatComesWhileTheChartsAreDrawnIsTheOneThatStays() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        TypeWeights(main, {u"1"_s, u"3"_s}); // with weights a redraw lets waiting sizes through
        QSize const last(640, 480);
        QTimer::singleShot(0, main.Window.get(), [&] { main.Window->resize(last); });
        main.Window->resize(300, 400);
        QTRY_COMPARE(main.Window->size(), last);
        QTRY_COMPARE(main.Picture(1).size(), main.Box(1).size());
        QCOMPARE(main.Window->menuBar()->width(), last.width());
        QCOMPARE(main.Window->centralWidget()->width(), last.width());
    }

    void TheSameSizeGivesTheSamePictures() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuParametersAutomate2");
        std::array<QImage, 4> const before = {main.Picture(1), main.Picture(2), main.Picture(3),
                                              main.Picture(4)};
        GoAwayAndComeBack(main);
        for (int number = 1; number <= 4; ++number) {
            QCOMPARE(main.Picture(number), before.at(static_cast<std::size_t>(number - 1)));
        }
    }

    void TheCaptionNamesFolderAndFile() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        QString const caption =
            u"Quorvex - ["_s + QString::fromStdString(main.Folder.Text()) + u"q060.txt]"_s;
        QCOMPARE(main.Window->windowTitle(), caption);
        main.Window->setWindowTitle(u"something else"_s);
        main.Choose("mnuRefresh");
        QCOMPARE(main.Window->windowTitle(), caption);
    }

    void WhatIsTypedStaysUntilARedraw() {
        RunningWindow main;
        TypeWeights(main, {u"3"_s});
        QCoreApplication::processEvents();
        QCOMPARE(main.Cell(1, 1).text(), u"3"_s);
        QCOMPARE(main.Box(2).accessibleDescription(), u"No cycle is active."_s);
    }
};

template struct ListedWindowTest<frmMainRedrawTest>;

} // namespace quorvex::tests

#include "frmMainRedrawTest.moc"
