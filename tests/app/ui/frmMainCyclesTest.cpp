// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the context menus of the cycle charts do.

#include "app/MenuTable.h"
#include "search/basSearch.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QRegularExpression>
#include <QSpinBox>
#include <utility>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QString const SevenZeros = u"0 0 0 0 0 0 0"_s;

QString const ReplaceQuestion =
    u"Write Parameter File|exclamation|Yes No|mine.dat already exists.\nDo you want to replace it?"_s;

void AskForChartMenu(RunningWindow& main, int chart) {
    main.Box(chart).setFocus();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(&main.Box(chart), &event);
    QCoreApplication::processEvents();
}

// Chooses the item of this letter in the chart's context menu and waits until its command is over, doing this
// with the window that it opens.
void ChooseInChart(RunningWindow& main, int chart, Qt::Key letter, ModalAnswers::Deed deed = {}) {
    main.Answers.Next([letter](QWidget& menu) { QTest::keyClick(&menu, letter); });
    if (deed) {
        main.Answers.Next(std::move(deed));
    }
    AskForChartMenu(main, chart);
}

void WaitForSearch(QWidget& window) {
    auto const* bar = window.findChild<QProgressBar*>(u"prgSearch"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!bar->isVisible(), 30'000);
}

// Notes the caption of the window, and closes it.
ModalAnswers::Deed NoteCaption(QStringList& captions) {
    return [&captions](QWidget& window) {
        captions.append(window.windowTitle());
        QTest::keyClick(&window, Qt::Key_Escape);
    };
}

// Takes what the search window finds, and the sentence that tells it.
ModalAnswers::Deed TakeBest(QString& sentence) {
    return [&sentence](QWidget& window) {
        WaitForSearch(window);
        sentence = window.findChild<QLabel*>(u"lblResult"_s)->text();
        QTest::keyClick(&window, Qt::Key_Return);
    };
}

ModalAnswers::Deed TypeParameterFile(std::string const& path) {
    return [path](QWidget& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
        name->setText(QString::fromStdString(path));
        QTest::keyClick(name, Qt::Key_Return);
    };
}

// The figures of the model as the grid shows them in a row.
QString GridRow(search::CycleModel const& model, int search::FoundCycle::*field) {
    QStringList texts;
    for (std::size_t cycle = 0; cycle < cycles::CycleCount; ++cycle) {
        texts.append(QString::number(cycle < model.Cycles.size() ? model.Cycles[cycle].*field : 0));
    }
    return texts.join(u' ');
}

// The percentage that the text tells, without zeros at its end.
QString PercentIn(QString const& text) {
    static QRegularExpression const percent(u"([0-9]+\\.[0-9]*?)0*%"_s);
    return percent.match(text).captured(1);
}

search::CycleModel BestOfThree(RunningWindow const& main) {
    return search::SearchMovingAverage(main.Data->Curves, main.Data->Quotes.WorkingCount, {},
                                       [] { return true; })
        .Models.at(2);
}

} // namespace

class frmMainCyclesTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheChartsOfferTheirItems() {
        RunningWindow main;
        for (int chart = 1; chart <= 4; ++chart) {
            QStringList items;
            main.Answers.Next([&items](QWidget& window) {
                for (QAction const* item : qobject_cast<QMenu*>(&window)->actions()) {
                    items.append(item->isSeparator() ? u"-"_s : item->text());
                }
                QTest::keyClick(&window, Qt::Key_Escape);
            });
            QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20},
                                    main.Box(chart).mapToGlobal(QPoint(20, 20)));
            QCoreApplication::sendEvent(&main.Box(chart), &event);
            QString const own = u"&Copy Image|Save Image &As..."_s;
            QString const find = u"&Find Best Cycles...|"_s;
            QString const write = u"&Write Parameter File...|-|"_s;
            QStringList const offered = {u"&Import...|-|"_s + own, find + write + own,
                                         find + u"&Test Forecast...|"_s + write + own, own};
            QCOMPARE(items.join(u'|'), offered.at(chart - 1));
        }
    }

    void WithoutQuotesFindBestCyclesAsksForThem() {
        RunningWindow main;
        ChooseInChart(main, 3, Qt::Key_F);
        QCOMPARE(main.Answers.Shown(),
                 QStringList({u"mnuPicture"_s,
                              OkMessage(u"Quorvex"_s, u"information"_s,
                                        u"Please use File Open option to load a quote data file"_s)}));
    }

    void WithoutQuotesTestForecastAsksForThem() {
        RunningWindow main;
        ChooseInChart(main, 3, Qt::Key_T);
        QCOMPARE(main.Answers.Shown(),
                 QStringList({u"mnuPicture"_s,
                              OkMessage(u"Quorvex"_s, u"information"_s,
                                        u"Please use File Open option to load a quote data file"_s)}));
    }

    void TestForecastLeavesEverythingAsItWas() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.TypeInto(1, 1, u"57"_s);
        main.TypeInto(1, 2, u"2"_s);
        QImage const before = main.Picture(3);
        static_cast<void>(main.Answers.TakeShown());
        QStringList captions;
        ChooseInChart(main, 3, Qt::Key_T, NoteCaption(captions));
        QCOMPARE(captions, QStringList(u"Quorvex - Test Forecast - [q250.txt]"_s));
        QCOMPARE(main.RowTexts(1), u"57 2 0 "_s + SevenZeros);
        QCOMPARE(main.Picture(3), before);
        QCOMPARE(main.Answers.Shown(), QStringList({u"mnuPicture"_s, u"frmTestForecast"_s}));
    }

    // From its own context menu, by mouse, by the menu key and by Shift+F10.
    void TheForecastChartIsTestedToo() {
        RunningWindow main;
        main.OpenQuotes("q137.txt");
        main.TypeInto(1, 1, u"100"_s);
        main.TypeInto(2, 1, u"20"_s);
        main.Choose("mnuRefresh");
        static_cast<void>(main.Answers.TakeShown());
        QStringList captions;
        main.Answers.Next([&](QWidget& forecast) {
            auto* chart = forecast.findChild<platform::qt::PictureBox*>(u"Pic1"_s);
            for (int way = 0; way < 3; ++way) {
                main.Answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_T); });
                main.Answers.Next(NoteCaption(captions));
                if (way == 2) {
                    QTest::keyClick(chart, Qt::Key_F10, Qt::ShiftModifier);
                } else {
                    QContextMenuEvent event(way == 0 ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard,
                                            {20, 20}, chart->mapToGlobal(QPoint(20, 20)));
                    QCoreApplication::sendEvent(chart, &event);
                }
            }
            QTest::keyClick(&forecast, Qt::Key_Escape);
        });
        main.Choose("mnuForecast");
        QCOMPARE(captions.count(u"Quorvex - Test Forecast - [q137.txt]"_s), 3);
        QCOMPARE(main.Answers.Shown().count(u"frmTestForecast"_s), 3);
        QCOMPARE(main.Answers.Shown().count(u"mnuPicture"_s), 3);
    }

    void WhatIsFoundStandsInTheGridAndIsDrawn_data() {
        QTest::addColumn<int>("chart");
        QTest::newRow("from the cycles") << 2;
        QTest::newRow("from the composite") << 3;
    }

    void WhatIsFoundStandsInTheGridAndIsDrawn() {
        QFETCH(int, chart);
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        for (int cycle = 1; cycle <= 5; ++cycle) {
            main.TypeInto(1, cycle, u"20"_s);
            main.TypeInto(2, cycle, QString::number(15 * cycle));
        }
        main.Choose("mnuRefresh");
        QImage const before = main.Picture(3);
        auto const model = BestOfThree(main);
        QString sentence;
        ChooseInChart(main, chart, Qt::Key_F, TakeBest(sentence));
        QCOMPARE(main.Answers.TakeShown(), QStringList({u"mnuPicture"_s, u"frmFindCycles"_s}));
        QCOMPARE(main.RowTexts(1), GridRow(model, &search::FoundCycle::Weight));
        QCOMPARE(main.RowTexts(2), GridRow(model, &search::FoundCycle::Period));
        QCOMPARE(main.RowTexts(3), GridRow(model, &search::FoundCycle::Shift));
        QVERIFY(main.Picture(3) != before);
        QVERIFY(main.Box(2).accessibleDescription().startsWith(u"3 component cycles over 250 days"));
        main.Choose("mnuCorrelation");
        QString const correlation = PercentIn(main.Answers.Shown().constLast());
        QVERIFY(!correlation.isEmpty());
        QCOMPARE(PercentIn(sentence), correlation);
    }

    void CancelLeavesEverythingAsItWas() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.TypeInto(1, 1, u"57"_s);
        main.TypeInto(1, 2, u"2"_s);
        main.TypeInto(1, 3, u"66"_s);
        QImage const before = main.Picture(3);
        ChooseInChart(main, 3, Qt::Key_F, [](QWidget& window) {
            WaitForSearch(window);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        QCOMPARE(main.RowTexts(1), u"57 2 66 "_s + SevenZeros);
        QCOMPARE(main.Picture(3), before);
        QVERIFY(!cycles::HasActiveCycle(main.Data->Cycles));
        // What the desktop may deliver when the window is gone.
        QEvent late(QEvent::WindowActivate);
        QCoreApplication::sendEvent(main.Window.get(), &late);
        QCoreApplication::processEvents();
        QCOMPARE(main.RowTexts(1), u"57 2 66 "_s + SevenZeros);
    }

    void TheBoxesOfTheSearchStayForTheNextCall() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        ChooseInChart(main, 2, Qt::Key_F, [](QWidget& window) {
            window.findChild<QSpinBox*>(u"spnCycles"_s)->setValue(7);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        ChooseInChart(main, 3, Qt::Key_F, [](QWidget& window) {
            QCOMPARE(window.findChild<QSpinBox*>(u"spnCycles"_s)->value(), 7);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        QVERIFY(main.Answers.IsDone());
    }

    // Keys and mouse do not come through to the chart then; assistive technology does.
    void NoItemRunsWhileADialogIsOpen() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        static_cast<void>(main.Answers.TakeShown());
        main.Answers.Next([&main](QWidget& legend) {
            for (app::MenuRow const& row : app::ChartMenuTable()) {
                main.Window->Run(row);
            }
            QTest::keyClick(&legend, Qt::Key_Escape);
        });
        main.Choose("mnuLegend");
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmLegend"_s));
    }

    void AWrittenParameterFileIsListedAndRead() {
        RunningWindow main;
        main.TypeInto(1, 1, u"25"_s);
        main.TypeInto(2, 1, u"40"_s);
        main.TypeInto(1, 2, u"75"_s);
        main.TypeInto(2, 2, u"17"_s);
        ChooseInChart(main, 3, Qt::Key_W, TypeParameterFile(main.Folder.File("mine")));
        QCOMPARE(main.Answers.TakeShown(), QStringList({u"mnuPicture"_s, u"SaveFileDialog"_s}));
        QVERIFY(main.Folder.Read("mine.dat").starts_with("25, 40, 0, 0\r\n75, 17, 0, 0\r\n0, 0, 0, 0\r\n"));
        main.Answers.Click(QMessageBox::No);
        main.Choose("mnuParametersNew");
        main.Answers.Choose(u"mine.dat"_s);
        main.Choose("mnuParametersOpen");
        QCOMPARE(main.RowTexts(1), u"25 75 0 "_s + SevenZeros);
        QCOMPARE(main.RowTexts(2), u"40 17 0 "_s + SevenZeros);
    }

    void AnExistingParameterFileIsReplacedOnlyOnRequestAndKept() {
        RunningWindow main;
        main.Folder.Write("mine.dat", "1, 40, 10, 0\r\n");
        main.TypeInto(1, 1, u"100"_s);
        std::string const path = main.Folder.File("mine.dat");
        main.Answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_W); });
        main.Answers.Next(TypeParameterFile(path));
        main.Answers.Click(QMessageBox::No);
        main.Answers.Next([&](QWidget& again) {
            QCOMPARE(main.Folder.Read("mine.dat"), std::string("1, 40, 10, 0\r\n"));
            TypeParameterFile(path)(again);
        });
        main.Answers.Click(QMessageBox::Yes);
        AskForChartMenu(main, 2);
        QCOMPARE(main.Answers.Shown(), QStringList({u"mnuPicture"_s, u"SaveFileDialog"_s, ReplaceQuestion,
                                                    u"SaveFileDialog"_s, ReplaceQuestion}));
        QVERIFY(main.Folder.Read("mine.dat").starts_with("100, 0, 0, 0\r\n"));
        QCOMPARE(main.Folder.Read("mine.dat~"), std::string("1, 40, 10, 0\r\n"));
    }

    void AGridWithoutWeightsIsNotWritten() {
        RunningWindow main;
        main.TypeInto(2, 1, u"40"_s);
        ChooseInChart(main, 2, Qt::Key_W);
        QCOMPARE(main.Answers.Shown(),
                 QStringList({u"mnuPicture"_s, OkMessage(u"Quorvex"_s, u"exclamation"_s,
                                                         u"Insufficient cycle parameters data to save"_s)}));
        QCOMPARE(main.Folder.EntryCount(), 0);
    }

    void AParameterFileThatCannotBeWrittenShowsTheDescription() {
        RunningWindow main;
        main.TypeInto(1, 1, u"100"_s);
        ChooseInChart(main, 2, Qt::Key_W, TypeParameterFile(main.Folder.File("gone/mine.dat")));
        QCOMPARE(main.Answers.Shown().constLast(), OkMessage(u"Quorvex"_s, u"none"_s, u"Path not found"_s));
    }
};

template struct ListedWindowTest<frmMainCyclesTest>;

} // namespace quorvex::tests

#include "frmMainCyclesTest.moc"
