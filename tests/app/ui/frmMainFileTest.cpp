// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostFile.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "windows/PaintedLabel.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QDir>
#include <QListWidget>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>
#include <filesystem>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QString CaptionOf(RunningWindow const& main, QString const& name) {
    return u"Quorvex - [%1%2]"_s.arg(QString::fromStdString(main.Folder.Text()), name);
}

// Runs the event loop until the deed has ended it. Returns the exit code, -1 when nothing ended it.
int RunUntilEnded(std::function<void()> const& deed) {
    constexpr int Patience = 3000;
    QTimer::singleShot(0, qApp, deed);
    QTimer::singleShot(Patience, qApp, [] { QCoreApplication::exit(-1); });
    return QApplication::exec();
}

} // namespace

class frmMainFileTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void OpenWithoutFilesTellsThatThereAreNone() {
        RunningWindow main;
        main.Folder.Write("mine.dat", "1, 2, 3, 4\r\n");
        main.Choose("mnuFileOpen");
        QCOMPARE(main.Answers.Shown(), QStringList(OkMessage(u"Quorvex"_s, u"exclamation"_s,
                                                             u"Cannot find daily quote text files."_s)));
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
    }

    void OpenDrawsTheChosenFile() {
        RunningWindow main;
        QImage const before = main.Picture(1);
        main.Folder.Write("other.TXT", "");
        main.OpenQuotes("q060.txt");
        QVERIFY(main.Answers.IsDone());
        QCOMPARE(main.Window->windowTitle(), CaptionOf(main, u"q060.txt"_s));
        QCOMPARE(main.Data->Quotes.WorkingCount, 60);
        QVERIFY(main.Picture(1) != before);
        QVERIFY(main.Box(1).accessibleDescription().startsWith(u"Daily bar chart of 60 days, "));
    }

    void OpenListsTheFilesInTheOrderOfTheFileSystem() {
        RunningWindow main;
        for (char const* name : {"b.txt", "a.TXT", "c.Txt", "none.dat"}) {
            main.Folder.Write(name, "");
        }
        QStringList offered;
        main.Answers.Next([&offered](QWidget& window) {
            auto const* list = window.findChild<QListWidget*>(u"lstFiles"_s);
            for (int row = 0; row < list->count(); ++row) {
                offered.append(list->item(row)->text());
            }
            ClickButton(window, u"cmdCancel"_s);
        });
        main.Choose("mnuFileOpen");
        QStringList expected;
        for (std::string const& name : main.Files.List(main.Folder.Text(), "*.txt")) {
            expected.append(QString::fromStdString(name));
        }
        QCOMPARE(offered, expected);
        QCOMPARE(offered.size(), 3);
    }

    void ACancelledOpenLeavesNoFileOpen() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Answers.Escape();
        main.Choose("mnuFileOpen");
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmQuotes"_s));
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
        QCOMPARE(main.Data->Quotes.WorkingCount, 0);
        QCOMPARE(main.Box(1).accessibleDescription(), u"No quote file is open."_s);
    }

    // Assistive technology can choose items that keys and mouse cannot reach.
    void AnItemChosenWhileADialogIsOpenDoesNothing() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Answers.Next([&main](QWidget& window) {
            main.Item(u"mnuFileClose"_s).trigger();
            main.Item(u"mnuFileOpen"_s).trigger();
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Answers.NextMessage([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); });
        main.Choose("mnuFileSaveAs");
        QCOMPARE(main.Answers.Shown().size(), 2); // the box and the message that no name is no good
        QCOMPARE(main.Data->Quotes.QuoteFileName, std::string("q060.txt"));
        QCOMPARE(main.Data->Quotes.WorkingCount, 60);
    }

    void FewerThanTwentyFiveLinesAreRefused() {
        RunningWindow main;
        main.Folder.Write("few24.txt", GoldenFile("quotes/few24.txt"));
        main.Answers.Choose(u"few24.txt"_s);
        main.Choose("mnuFileOpen");
        QCOMPARE(main.Answers.Shown(),
                 QStringList({u"frmQuotes"_s,
                              OkMessage(u"Quorvex Requirements"_s, u"information"_s,
                                        u"A minimum of 25 daily quotes is required to perform cyclical "
                                        u"analysis"_s)}));
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
        QCOMPARE(main.Box(1).accessibleDescription(), u"No quote file is open."_s);
    }

    void TwentyFiveLinesAreEnough() {
        RunningWindow main;
        main.OpenQuotes("q025.txt");
        QCOMPARE(main.Data->Quotes.QuoteCount, 25);
        QCOMPARE(main.Window->windowTitle(), CaptionOf(main, u"q025.txt"_s));
    }

    void AFileThatWentMeanwhileShowsTheDescription() {
        RunningWindow main;
        main.Folder.Write("gone.txt", QuoteLines(30));
        main.Answers.Next([&main](QWidget& window) {
            std::filesystem::remove(main.Folder.File("gone.txt"));
            auto* list = window.findChild<QListWidget*>(u"lstFiles"_s);
            list->setCurrentRow(0);
            QTest::keyClick(list, Qt::Key_Return);
        });
        main.Choose("mnuFileOpen");
        QCOMPARE(main.Answers.Shown(),
                 QStringList({u"frmQuotes"_s, OkMessage(u"Quorvex"_s, u"none"_s, u"File not found"_s)}));
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
    }

    void SaveAsWritesTheQuotesUnderTheNewName() {
        RunningWindow main;
        main.OpenQuotes("corn.txt", QuoteLines(30));
        main.Answers.Type(u"  copy.TXT "_s);
        main.Choose("mnuFileSaveAs");
        QCOMPARE(main.Answers.Shown(), QStringList(u"Save As...|Save corn.txt As...|corn.txt"_s));
        QCOMPARE(main.Folder.Read("copy.TXT"), QuoteLines(30));
        QCOMPARE(main.Window->windowTitle(), CaptionOf(main, u"copy.TXT"_s));
    }

    // In names of files and folders, what means something to Qt stands for itself.
    void CaptionAndPromptShowNamesLetterForLetter() {
        RunningWindow main;
        std::string const inner = std::string(ChangesInName) + '/';
        std::string const file = std::string("S&P") + MarkupInName + ChangesInName + ".txt";
        auto const name = QString::fromStdString(file);
        std::string const folder = main.Folder.File(inner);
        std::filesystem::create_directory(folder);
        main.Data->Settings.DataPath = folder;
        main.Folder.Write(inner + file, QuoteLines(30));
        main.Answers.Choose(name);
        main.Choose("mnuFileOpen");
        QCOMPARE(main.Window->windowHandle()->title(),
                 u"Quorvex - [%1%2]"_s.arg(QString::fromStdString(folder), name));
        bool isPlain = false;
        main.Answers.Next([&isPlain, &name](QWidget& box) {
            isPlain = ShowsLetterForLetter(*box.findChild<QLabel*>(), u"Save %1 As..."_s.arg(name));
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        main.Choose("mnuFileSaveAs");
        QVERIFY(isPlain);
    }

    // The path is longer than the 260 letters that Windows takes without being asked.
    void NamesOfOtherAlphabetsAndLongPathsAreOpenedAndSaved() {
        constexpr int Depth = 3;
        constexpr int Letters = 90;
        RunningWindow main;
        QString const name = u"\u5C0F\u9EA6 \u03A3\u03AF\u03C4\u03BF\u03C2"_s; // wheat, in Chinese and Greek
        QString place = QString::fromStdString(main.Folder.Text());
        for (int depth = 1; depth <= Depth; ++depth) {
            place += QString(Letters, u'\u0395') + QDir::separator();
            std::filesystem::create_directory(platform::disk::HostPath(place.toStdString()));
        }
        main.Data->Settings.DataPath = place.toStdString();
        main.Files.Replace((place + name + u".txt"_s).toStdString(), QuoteLines(30));
        main.Answers.Choose(name + u".txt"_s);
        main.Choose("mnuFileOpen");
        QCOMPARE(main.Window->windowTitle(), u"Quorvex - [%1%2.txt]"_s.arg(place, name));
        main.Answers.Next([&name](QWidget& box) { // Qt Test has no keys for these letters
            auto* edit = box.findChild<QLineEdit*>();
            edit->setText(name + u" 2.txt"_s);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        main.Choose("mnuFileSaveAs");
        QCOMPARE(main.Window->windowTitle(), u"Quorvex - [%1%2 2.txt]"_s.arg(place, name));
        QCOMPARE(main.Files.Length((place + name + u" 2.txt"_s).toStdString()), QuoteLines(30).size());
    }

    void SaveAsRefusesABadName_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("too short") << u".txt"_s;
        QTest::newRow("another extension") << u"quotes.csv"_s;
        QTest::newRow("no extension") << u"abc"_s;
        QTest::newRow("three letters with a point") << u"q.tx"_s;
        QTest::newRow("nothing") << QString();
    }

    void SaveAsRefusesABadName() {
        QFETCH(QString, name);
        RunningWindow main;
        main.OpenQuotes("corn.txt", QuoteLines(30));
        main.Answers.Type(name);
        main.Choose("mnuFileSaveAs");
        QCOMPARE(main.Answers.Shown().mid(1),
                 QStringList(OkMessage(u"Quorvex"_s, u"critical"_s, u"Invalid data file name"_s)));
        QCOMPARE(main.Folder.EntryCount(), 1);
        QCOMPARE(main.Window->windowTitle(), CaptionOf(main, u"corn.txt"_s));
    }

    void ACancelledSaveAsIsABadName() {
        RunningWindow main;
        main.OpenQuotes("corn.txt", QuoteLines(30));
        main.Answers.Escape();
        main.Choose("mnuFileSaveAs");
        QCOMPARE(main.Answers.Shown().mid(1),
                 QStringList(OkMessage(u"Quorvex"_s, u"critical"_s, u"Invalid data file name"_s)));
        QCOMPARE(main.Folder.EntryCount(), 1);
    }

    void SaveAsShowsWhyItCouldNotWrite() {
        RunningWindow main;
        main.OpenQuotes("corn.txt", QuoteLines(30));
        main.Answers.Type(u"nowhere/corn.txt"_s);
        main.Choose("mnuFileSaveAs");
        QCOMPARE(main.Answers.Shown().mid(1),
                 QStringList(OkMessage(u"Quorvex"_s, u"none"_s, u"Path not found"_s)));
        QCOMPARE(main.Window->windowTitle(), CaptionOf(main, u"corn.txt"_s));
    }

    void CloseEmptiesTheBoxesOfQuotesAndResidualOnly() {
        RunningWindow main;
        main.OpenQuotes("q250.txt");
        main.Choose("mnuParametersAutomate3");
        std::array<QImage, 4> const before = {main.Picture(1), main.Picture(2), main.Picture(3),
                                              main.Picture(4)};
        main.Choose("mnuFileClose");
        QVERIFY(main.Answers.Shown().isEmpty());
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
        QVERIFY(main.Picture(1) != before[0]);
        QCOMPARE(main.Picture(2), before[1]);
        QCOMPARE(main.Picture(3), before[2]);
        QVERIFY(main.Picture(4) != before[3]);
        QCOMPARE(main.Box(1).accessibleDescription(), u"No quote file is open."_s);
        QVERIFY(main.Box(2).accessibleDescription().startsWith(u"3 component cycles over 250 days"));
        QVERIFY(main.Box(3).accessibleDescription().startsWith(u"Composite estimate cycle over 250 days"));
        QCOMPARE(main.Box(4).accessibleDescription(), u"No quote file is open."_s);
        // Nothing but the three reference lines is left: the middle one goes from edge to edge.
        QImage const empty = main.Picture(1);
        QCOMPARE(empty.pixelColor(empty.width() / 3, empty.height() / 8), QColor(Qt::white));
        QCOMPARE(empty.pixelColor(empty.width() / 3, empty.height() - 2), QColor(Qt::white));
    }

    void CloseWithoutAFileDoesNoHarm() {
        RunningWindow main;
        main.Choose("mnuFileClose");
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
        QVERIFY(main.Answers.Shown().isEmpty());
    }

    void PrintPrintsALoadedFileTwice() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuFilePrint");
        QVERIFY(main.Answers.Shown().isEmpty());
        QCOMPARE(main.Printing.Documents.size(), 2U);
        QCOMPARE(main.Printing.Documents[1].Name, std::string("q060 chart"));
        QVERIFY(main.Printing.Documents[1].IsEnded);
        QCOMPARE(main.Printing.HourglassCount, 0);
    }

    void PrintWithoutAFilePrintsAfterItsMessage() {
        RunningWindow main;
        std::size_t printedBefore = 1;
        main.Answers.NextMessage([&](QWidget& message) {
            printedBefore = main.Printing.Documents.size();
            QTest::keyClick(&message, Qt::Key_Return);
        });
        main.Choose("mnuFilePrint");
        QCOMPARE(main.Answers.Shown(), QStringList(OkMessage(u"Quorvex - Print Chart"_s, u"information"_s,
                                                             u"Please load a quote data file"_s)));
        QCOMPARE(printedBefore, 0U);
        QCOMPARE(main.Printing.Documents.size(), 1U);
    }

    void PrintShowsWhatWentWrong() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Printing.Sheet.FailingText = 4;
        main.Choose("mnuFilePrint");
        QCOMPARE(main.Answers.Shown(), QStringList(OkMessage(u"Quorvex"_s, u"none"_s, u"Printer error"_s)));
        QCOMPARE(main.Printing.Documents.size(), 1U);
        QCOMPARE(main.Printing.HourglassCount, 0);
    }

    void PrintSetupStartsTheControlPanel() {
        RunningWindow main;
        main.Choose("mnuFilePrintSetup");
        QCOMPARE(main.Launcher.Started, std::vector<std::string>{"CONTROL.EXE"});
        QVERIFY(main.Answers.Shown().isEmpty());
    }

    void PrintSetupTellsThatThereIsNothingToStart() {
        RunningWindow main;
        main.Launcher.HasPrograms = false;
        main.Choose("mnuFilePrintSetup");
        QCOMPARE(main.Answers.Shown(), QStringList(OkMessage(u"Quorvex"_s, u"none"_s, u"File not found"_s)));
    }

    void ExitEndsAtOnceWithoutAQuestion() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Choose("mnuParametersAutomate1");
        main.TypeInto(1, 2, u"30"_s);
        QSignalSpy const ended(qApp, &QCoreApplication::aboutToQuit);
        QCOMPARE(RunUntilEnded([&main] { main.Item(u"mnuFileExit"_s).trigger(); }), 0);
        QCOMPARE(ended.size(), 1);
        QVERIFY(main.Answers.Shown().isEmpty());
        QCOMPARE(main.Folder.EntryCount(), 1);
    }

    void ClosingTheWindowEndsAtOnceWithoutAQuestion() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.TypeInto(1, 2, u"30"_s);
        QCOMPARE(RunUntilEnded([&main] { main.Window->close(); }), 0);
        QVERIFY(main.Answers.Shown().isEmpty());
        QCOMPARE(main.Folder.EntryCount(), 1);
    }
};

template struct ListedWindowTest<frmMainFileTest>;

} // namespace quorvex::tests

#include "frmMainFileTest.moc"
