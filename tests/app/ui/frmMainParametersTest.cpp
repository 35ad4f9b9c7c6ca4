// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/Golden.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <filesystem>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QString const NothingToSave =
    OkMessage(u"Quorvex"_s, u"exclamation"_s, u"Insufficient cycle parameters data to save"_s);
QString const SaveQuestion = u"Save Parameter File|none|Yes No Cancel|Save current cycle parameters data?"_s;
QString const NameQuestion = u"Save As...|Save current cycle parameters file:|"_s;

void TypeCycle(RunningWindow& main, int cycle, QString const& weight, QString const& period) {
    main.TypeInto(1, cycle, weight);
    main.TypeInto(2, cycle, period);
}

void OpenParameters(RunningWindow& main, std::string const& name, std::string const& content) {
    main.Folder.Write(name, content);
    main.Answers.Choose(QString::fromStdString(name));
    main.Choose("mnuParametersOpen");
}

void VerifyCleared(RunningWindow& main) {
    for (int row = 1; row <= 4; ++row) {
        QCOMPARE(main.RowTexts(row), u"0 0 0 0 0 0 0 0 0 0"_s);
    }
    QVERIFY(!cycles::HasActiveCycle(main.Data->Cycles));
    QVERIFY(main.Data->Cycles.ParameterFileName.empty());
    for (int const number : {2, 3}) {
        QCOMPARE(main.Box(number).accessibleDescription(), u"No cycle is active."_s);
    }
}

} // namespace

class frmMainParametersTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void NewClearsAGridWithoutWeightsWithoutAsking() {
        RunningWindow main;
        main.TypeInto(2, 3, u"40"_s);
        main.Choose("mnuParametersNew");
        QVERIFY(main.Answers.Shown().isEmpty());
        VerifyCleared(main);
    }

    void NewClearsCyclesAndTheirChartsWhenNothingIsToBeSaved() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuParametersAutomate2");
        std::array<QImage, 4> const before = {main.Picture(1), main.Picture(2), main.Picture(3),
                                              main.Picture(4)};
        main.Answers.Click(QMessageBox::No);
        main.Choose("mnuParametersNew");
        QCOMPARE(main.Answers.Shown(), QStringList(SaveQuestion));
        VerifyCleared(main);
        QCOMPARE(main.Picture(1), before[0]);
        QVERIFY(main.Picture(2) != before[1]);
        QVERIFY(main.Picture(3) != before[2]);
        QVERIFY(main.Picture(4) != before[3]);
        QCOMPARE(main.Picture(3), main.Picture(2));
        QCOMPARE(main.Box(4).accessibleDescription(), u"No cycle is active."_s);
        QVERIFY(main.Box(1).accessibleDescription().startsWith(u"Daily bar chart of 60 days"));
    }

    void ACancelledNewClearsNothing_data() {
        QTest::addColumn<bool>("byEscape");
        QTest::newRow("by Cancel") << false;
        QTest::newRow("by Escape") << true;
    }

    void ACancelledNewClearsNothing() {
        QFETCH(bool, byEscape);
        RunningWindow main;
        TypeCycle(main, 1, u"100"_s, u"20"_s);
        main.Choose("mnuRefresh");
        QImage const before = main.Picture(2);
        if (byEscape) {
            main.Answers.Escape();
        } else {
            main.Answers.Click(QMessageBox::Cancel);
        }
        main.Choose("mnuParametersNew");
        QCOMPARE(main.Answers.Shown(), QStringList(SaveQuestion));
        QCOMPARE(main.Cell(2, 1).text(), u"20"_s);
        QCOMPARE(main.Picture(2), before);
        QVERIFY(cycles::HasActiveCycle(main.Data->Cycles));
    }

    void NewSavesUnderANameWhenThereIsNone() {
        RunningWindow main;
        TypeCycle(main, 1, u"100"_s, u"20"_s);
        main.Answers.Click(QMessageBox::Yes);
        main.Answers.Type(u"mine.dat"_s);
        main.Choose("mnuParametersNew");
        QCOMPARE(main.Answers.Shown(),
                 QStringList({SaveQuestion, NameQuestion,
                              OkMessage(u"Save As..."_s, u"none"_s,
                                        u"Cycle parameters file  successfully saved"_s)}));
        VerifyCleared(main);
        QCOMPARE(main.Folder.EntryCount(), 0);
    }

    void NewClearsEvenWhenNoNameIsGiven() {
        RunningWindow main;
        TypeCycle(main, 1, u"100"_s, u"20"_s);
        main.Answers.Click(QMessageBox::Yes);
        main.Answers.Escape();
        main.Choose("mnuParametersNew");
        QCOMPARE(main.Answers.Shown(), QStringList({SaveQuestion, NameQuestion}));
        VerifyCleared(main);
    }

    void NewSavesANamedSetWithoutAskingForTheName() {
        RunningWindow main;
        OpenParameters(main, "three.dat", GoldenFile("params/three.dat"));
        static_cast<void>(main.Answers.TakeShown());
        main.Answers.Click(QMessageBox::Yes);
        main.Choose("mnuParametersNew");
        QCOMPARE(main.Answers.Shown(), QStringList(SaveQuestion));
        VerifyCleared(main);
        QCOMPARE(main.Folder.Read("three.dat"), GoldenFile("params/three.dat"));
    }

    void OpenWithoutFilesTellsThatThereAreNone() {
        RunningWindow main;
        main.Folder.Write("corn.txt", "");
        main.Choose("mnuParametersOpen");
        QCOMPARE(main.Answers.Shown(), QStringList(OkMessage(u"Quorvex"_s, u"exclamation"_s,
                                                             u"Cannot find Cycle Parameter text files."_s)));
    }

    void OpenWithoutFilesShowsTheOpenSetAgain() {
        RunningWindow main;
        OpenParameters(main, "three.dat", GoldenFile("params/three.dat"));
        static_cast<void>(main.Answers.TakeShown());
        std::string const name = main.Data->Cycles.ParameterFileName;
        QString const weights = main.RowTexts(1);
        QVERIFY(std::filesystem::remove(main.Folder.File("three.dat")));
        main.TypeInto(2, 1, u"17"_s);
        main.Choose("mnuParametersOpen");
        QCOMPARE(main.Answers.Shown(), QStringList(OkMessage(u"Quorvex"_s, u"exclamation"_s,
                                                             u"Cannot find Cycle Parameter text files."_s)));
        QCOMPARE(main.Data->Cycles.ParameterFileName, name);
        QCOMPARE(main.RowTexts(1), weights);
        QCOMPARE(main.RowTexts(2), u"80 79 15 0 0 0 0 0 0 0"_s);
    }

    void OpenShowsTheCyclesOfTheFile() {
        RunningWindow main;
        OpenParameters(main, "three.dat", GoldenFile("params/three.dat"));
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmParameter"_s));
        QCOMPARE(main.RowTexts(1), u"47 22 31 0 0 0 0 0 0 0"_s); // percentages of 54, 26 and 36
        QCOMPARE(main.RowTexts(2), u"80 79 15 0 0 0 0 0 0 0"_s);
        QCOMPARE(main.RowTexts(3), u"19 -2 9 0 0 0 0 0 0 0"_s);
        QCOMPARE(main.RowTexts(4), u"6 0 5 0 0 0 0 0 0 0"_s);
        QVERIFY(main.Box(2).accessibleDescription().startsWith(u"3 component cycles over 100 days"));
        QCOMPARE(main.Data->Cycles.ParameterFileName, main.Folder.File("three.dat"));
    }

    void OpenLeavesTheCyclesBeyondTheFile() {
        RunningWindow main;
        for (int cycle = 1; cycle <= 5; ++cycle) {
            TypeCycle(main, cycle, u"20"_s, QString::number(10 * cycle));
        }
        main.Choose("mnuRefresh");
        OpenParameters(main, "three.dat", GoldenFile("params/three.dat"));
        QCOMPARE(main.RowTexts(1), u"35 17 23 13 13 0 0 0 0 0"_s);
        QCOMPARE(main.RowTexts(2), u"80 79 15 40 50 0 0 0 0 0"_s);
    }

    // Closing the message activates the window behind it, whose redraw takes the grid for the truth.
    void OpenOfElevenLinesKeepsTheTenThatWereRead() {
        RunningWindow main;
        TypeCycle(main, 1, u"100"_s, u"33"_s);
        main.Choose("mnuRefresh");
        OpenParameters(main, "eleven.dat", GoldenFile("params/eleven.dat"));
        QCOMPARE(main.Answers.Shown(),
                 QStringList(
                     {u"frmParameter"_s, OkMessage(u"Quorvex"_s, u"none"_s, u"Subscript out of range"_s)}));
        QCOMPARE(main.RowTexts(1), u"1 4 6 22 13 12 3 13 1 26"_s);
        QCOMPARE(main.RowTexts(2), u"22 45 26 52 67 8 69 23 84 26"_s);
        QCOMPARE(main.Data->Cycles.Cycles[10].Period, 26.0);
    }

    void OpenOfFractionsShowsThemRounded() {
        RunningWindow main;
        OpenParameters(main, "half.dat", "12.5, 40.4, 1.5, 0\r\n13.5, 20.5, 2.5, 0\r\n74, 10, 0, 0\r\n");
        QCOMPARE(main.RowTexts(1), u"12 14 74 0 0 0 0 0 0 0"_s);
        QCOMPARE(main.RowTexts(2), u"40 20 10 0 0 0 0 0 0 0"_s);
        QCOMPARE(main.RowTexts(3), u"2 2 0 0 0 0 0 0 0 0"_s);
    }

    void ACancelledOpenForgetsTheNameAndKeepsTheCycles() {
        RunningWindow main;
        OpenParameters(main, "three.dat", GoldenFile("params/three.dat"));
        QString const weights = main.RowTexts(1);
        main.Answers.Escape();
        main.Choose("mnuParametersOpen");
        QVERIFY(main.Data->Cycles.ParameterFileName.empty());
        QCOMPARE(main.RowTexts(1), weights);
        QCOMPARE(main.Data->Cycles.Cycles[3].Period, 15.0);
    }

    void SaveAndSaveAsNeedWeights() {
        RunningWindow main;
        main.TypeInto(2, 1, u"20"_s);
        main.Choose("mnuParametersSave");
        main.Choose("mnuParametersSaveAs");
        QCOMPARE(main.Answers.Shown(), QStringList({NothingToSave, NothingToSave}));
    }

    void SaveEndsWithoutAWord() {
        RunningWindow main;
        TypeCycle(main, 1, u"50"_s, u"20"_s);
        main.Choose("mnuParametersSave");
        QVERIFY(main.Answers.Shown().isEmpty());
        QCOMPARE(main.Folder.EntryCount(), 0);
    }

    void SaveAsAsksUntilTheNameIsGood() {
        RunningWindow main;
        TypeCycle(main, 1, u"50"_s, u"20"_s);
        main.Answers.Type(u"a.da"_s);
        main.Answers.Type(u"cycles.txt"_s);
        main.Answers.Type(u"cycles.DAT"_s);
        main.Choose("mnuParametersSaveAs");
        QString const invalid =
            OkMessage(u"Quorvex"_s, u"exclamation"_s, u"Invalid cycle parameters file (*.dat)"_s);
        QCOMPARE(main.Answers.Shown(),
                 QStringList({NameQuestion, invalid, NameQuestion, invalid, NameQuestion,
                              OkMessage(u"Save As..."_s, u"none"_s,
                                        u"Cycle parameters file  successfully saved"_s)}));
        QCOMPARE(main.Folder.EntryCount(), 0);
        QVERIFY(main.Data->Cycles.ParameterFileName.empty());
    }

    void SaveAsNamesTheCurrentFile() {
        RunningWindow main;
        OpenParameters(main, "three.dat", GoldenFile("params/three.dat"));
        QString const name = QString::fromStdString(main.Folder.File("three.dat"));
        static_cast<void>(main.Answers.TakeShown());
        main.Answers.Type(u"other.dat"_s);
        main.Choose("mnuParametersSaveAs");
        QCOMPARE(main.Answers.Shown(),
                 QStringList({NameQuestion + name,
                              OkMessage(u"Save As..."_s, u"none"_s,
                                        u"Cycle parameters file %1 successfully saved"_s.arg(name))}));
    }

    void SaveAsWithoutANameEndsWithoutAWord() {
        RunningWindow main;
        TypeCycle(main, 1, u"50"_s, u"20"_s);
        main.Answers.Escape();
        main.Choose("mnuParametersSaveAs");
        QCOMPARE(main.Answers.Shown(), QStringList(NameQuestion));
    }

    void PrintDoesNothing() {
        RunningWindow main;
        TypeCycle(main, 1, u"7"_s, u"20"_s);
        QImage const before = main.Picture(2);
        main.Choose("mnuParametersPrint");
        QVERIFY(main.Answers.Shown().isEmpty());
        QCOMPARE(main.Cell(1, 1).text(), u"7"_s);
        QCOMPARE(main.Picture(2), before);
        QVERIFY(main.Launcher.Started.empty());
    }
};

template struct ListedWindowTest<frmMainParametersTest>;

} // namespace quorvex::tests

#include "frmMainParametersTest.moc"
