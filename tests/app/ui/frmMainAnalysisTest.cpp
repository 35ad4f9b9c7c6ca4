// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/RunningProgram.h"
#include "app/basCommands.h"
#include "platform/pictures/QtTexts.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;

namespace {

QString const NoQuotes =
    OkMessage(u"Quorvex"_s, u"information"_s, u"Please use File Open option to load a quote data file"_s);

// The program without a window, which does the same with the same file.
class Companion {
public:
    explicit Companion(int cycles) {
        core_.Open("q250.txt", GoldenFile("quotes/q250.txt"));
        app::ParametersAutomate(cycles, *core_.Data, core_.Outside);
    }

    [[nodiscard]] QString RowTexts(cycles::Parameter parameter) const {
        QStringList texts;
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            texts.append(ToQt(core_.Grid.Text(parameter, cycle)));
        }
        return texts.join(u' ');
    }

    [[nodiscard]] QString CorrelationText() {
        core_.Dialogs.Messages.clear();
        app::Correlation(*core_.Data, core_.Outside);
        return ToQt(core_.Dialogs.Messages.at(0).Text);
    }

private:
    app::RunningProgram core_;
};

} // namespace

class frmMainAnalysisTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void WithoutQuotesCommandsOnlyAskForThem_data() {
        QTest::addColumn<QByteArray>("item");
        for (char const* item : {"mnuParametersAutomate1", "mnuParametersAutomate2", "mnuParametersAutomate3",
                                 "mnuForecast", "mnuCorrelation"}) {
            QTest::newRow(item) << QByteArray(item);
        }
    }

    void WithoutQuotesCommandsOnlyAskForThem() {
        QFETCH(QByteArray, item);
        RunningWindow main;
        main.TypeInto(1, 1, u"7"_s);
        main.Choose(item.constData());
        QCOMPARE(main.Answers.Shown(), QStringList(NoQuotes));
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
    }

    void AutomateShowsTheFitInTheGrid_data() {
        QTest::addColumn<int>("count");
        QTest::newRow("one cycle") << 1;
        QTest::newRow("two cycles") << 2;
        QTest::newRow("three cycles") << 3;
    }

    void AutomateShowsTheFitInTheGrid() {
        QFETCH(int, count);
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        std::array<QImage, 4> const before = {main.Picture(1), main.Picture(2), main.Picture(3),
                                              main.Picture(4)};
        main.Choose(u"mnuParametersAutomate%1"_s.arg(count).toLatin1().constData());
        QVERIFY(main.Answers.Shown().isEmpty());
        Companion const expected(count);
        QCOMPARE(main.RowTexts(1), expected.RowTexts(cycles::Parameter::Weight));
        QCOMPARE(main.RowTexts(2), expected.RowTexts(cycles::Parameter::Period));
        QCOMPARE(main.RowTexts(3), expected.RowTexts(cycles::Parameter::Shift));
        QCOMPARE(main.RowTexts(4), expected.RowTexts(cycles::Parameter::Decay));
        QCOMPARE(main.Cell(2, 1).text(), u"14"_s);
        QCOMPARE(main.Picture(1), before[0]);
        for (int number = 2; number <= 4; ++number) {
            QVERIFY(main.Picture(number) != before.at(static_cast<std::size_t>(number - 1)));
        }
    }

    void AutomateReplacesTheCyclesThatWereThere() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.TypeInto(1, 9, u"50"_s);
        main.TypeInto(2, 9, u"77"_s);
        main.Choose("mnuRefresh");
        main.Choose("mnuParametersAutomate1");
        QCOMPARE(main.Cell(2, 9).text(), u"0"_s);
        QCOMPARE(main.Cell(1, 1).text(), u"100"_s);
    }

    void CorrelationTellsThePercentage() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.Choose("mnuParametersAutomate3");
        main.Choose("mnuCorrelation");
        Companion expected(3);
        QString const text = expected.CorrelationText();
        QCOMPARE(main.Answers.Shown(),
                 QStringList(OkMessage(u"Quorvex - Coefficient of Correlation"_s, u"information"_s, text)));
        QVERIFY(text.contains(u"composite cycle and the moving average         \n"));
        QVERIFY(text.contains(u"of the daily closes is ") && text.contains(u'%'));
    }

    void CorrelationWithoutCyclesHasInsufficientData() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.Choose("mnuCorrelation");
        QCOMPARE(main.Answers.Shown(), QStringList(OkMessage(u"Quorvex - Correlation"_s, u"information"_s,
                                                             u"Insufficient data to perform correlation"_s)));
    }

    void CorrelationAfterNewHasInsufficientData() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.Choose("mnuParametersAutomate3");
        main.Answers.Click(QMessageBox::No);
        main.Choose("mnuParametersNew");
        static_cast<void>(main.Answers.TakeShown());
        main.Choose("mnuCorrelation");
        QCOMPARE(main.Answers.Shown().join(u' '), OkMessage(u"Quorvex - Correlation"_s, u"information"_s,
                                                            u"Insufficient data to perform correlation"_s));
    }

    void CorrelationTakesUpWhatWasTyped() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.TypeInto(1, 1, u"7"_s);
        main.TypeInto(2, 1, u"20"_s);
        main.Choose("mnuCorrelation");
        QCOMPARE(main.Cell(1, 1).text(), u"100"_s);
        QVERIFY(cycles::HasActiveCycle(main.Data->Cycles));
    }

    void ForecastNeedsWeights() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.Choose("mnuForecast");
        QCOMPARE(main.Answers.Shown(),
                 QStringList(OkMessage(u"Quorvex"_s, u"exclamation"_s,
                                       u"Insufficient cycle parameters data to create forecast values"_s)));
    }

    void ForecastShowsItsWindow() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.Choose("mnuParametersAutomate3");
        QString title;
        main.Answers.Next([&title](QWidget& window) {
            title = window.windowTitle();
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuForecast");
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmForecast"_s));
        QCOMPARE(title, u"Quorvex Forecast - [q250.txt]"_s);
    }

    void ForecastUsesTheSameWindowEveryTime() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.Choose("mnuParametersAutomate1");
        QList<QWidget*> windows;
        for (int call = 1; call <= 2; ++call) {
            main.Answers.Next([&windows](QWidget& window) {
                windows.append(&window);
                window.close();
            });
            main.Choose("mnuForecast");
        }
        QCOMPARE(windows.size(), 2);
        QCOMPARE(windows[0], windows[1]);
    }

    void AFaultOfAFitShowsItsDescription() {
        RunningWindow main;
        main.OpenQuotes("corn.txt", QuoteLines(30));
        main.Data->Curves.MovingAverageCurve.Fill(0);
        main.Choose("mnuParametersAutomate1");
        QCOMPARE(main.Answers.Shown(),
                 QStringList(OkMessage(u"Quorvex"_s, u"none"_s, u"Division by zero"_s)));
        QCOMPARE(main.RowTexts(1), u"0 0 0 0 0 0 0 0 0 0"_s);
    }

    void TheUserManualIsAMessage() {
        RunningWindow main;
        main.Choose("mnuHelpUserManual");
        QCOMPARE(main.Answers.Shown(),
                 QStringList(OkMessage(u"Quorvex - Help"_s, u"none"_s,
                                       u"The trader is encouraged to print the User Manual using \n"
                                       u"Microsoft Word 2000. The document can be found at\n"
                                       u"the following location:\n"
                                       u"\n"
                                       u"   C:\\Veltrano\\Quorvex\\Quorvex-UserManual.doc\n"_s)));
    }
};

template struct ListedWindowTest<frmMainAnalysisTest>;

} // namespace quorvex::tests

#include "frmMainAnalysisTest.moc"
