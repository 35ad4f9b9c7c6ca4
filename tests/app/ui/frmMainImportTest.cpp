// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The ways in for vendors' tables: dropped, pasted, chosen.

#include "import/ui/ShownImport.h"
#include "support/QuoteTexts.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>
#include <functional>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

// What a file manager hands over: the files, and their addresses as a text beside them.
std::unique_ptr<QMimeData> FilesOf(RunningWindow const& main, QStringList const& names) {
    auto data = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (QString const& name : names) {
        urls.append(QUrl::fromLocalFile(QString::fromStdString(main.Folder.File(name.toStdString()))));
    }
    data->setUrls(urls);
    return data;
}

// Drops the data on the place of the window as a desktop does. Returns whether they were taken.
bool Drop(RunningWindow& main, QMimeData const& data, QPoint place) {
    QWidget* target = main.Window->childAt(place);
    target = target == nullptr ? main.Window.get() : target;
    QDragEnterEvent enter(target->mapFrom(main.Window.get(), place), Qt::CopyAction | Qt::MoveAction, &data,
                          Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    drop.ignore();
    QApplication::sendEvent(main.Window.get(), &drop);
    return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
}

ModalAnswers::Deed Import() {
    return [](QWidget& window) {
        auto const* bar = window.findChild<QProgressBar*>(u"prgImport"_s);
        QTRY_VERIFY(!bar->isVisible());
        QTest::mouseClick(window.findChild<QPushButton*>(u"cmdImport"_s), Qt::LeftButton);
    };
}

void WaitForCommand(RunningWindow& main) {
    QTRY_VERIFY(main.Answers.IsDone() && QApplication::activeModalWidget() == nullptr);
    QCoreApplication::processEvents();
}

QString CaptionWith(RunningWindow const& main, QString const& name) {
    return u"Quorvex - [%1%2]"_s.arg(QString::fromStdString(main.Folder.Text()), name);
}

void Paste(QWidget& receiver) {
    QTest::keyClick(&receiver, Qt::Key_V, Qt::ControlModifier);
}

void CopyText(std::string const& text) {
    QApplication::clipboard()->setText(QString::fromStdString(text));
}

} // namespace

class frmMainImportTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void ADroppedTableIsImportedAndOpen_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("on the first chart") << u"Pic1"_s;
        QTest::newRow("on a cell") << u"Text2_3"_s;
        QTest::newRow("on a caption of the grid") << u"Text0_1"_s;
        QTest::newRow("on the tool strip") << u"picIcon"_s;
    }

    void ADroppedTableIsImportedAndOpen() {
        QFETCH(QString, name);
        RunningWindow main;
        auto const* target = main.Window->findChild<QWidget*>(name);
        QPoint const place = target->mapTo(main.Window.get(), target->rect().center());
        main.Folder.Write("wheat.csv", TableHead + TableRows(60));
        QImage const before = main.Picture(1);
        main.Answers.Next(Import());
        QVERIFY(Drop(main, *FilesOf(main, {u"wheat.csv"_s}), place));
        WaitForCommand(main);
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmImport"_s));
        QCOMPARE(main.Window->windowTitle(), CaptionWith(main, u"wheat.txt"_s));
        QCOMPARE(main.Data->Quotes.WorkingCount, 60);
        QVERIFY(main.Picture(1) != before);
        QVERIFY(main.Box(1).accessibleDescription().startsWith(u"Daily bar chart of 60 days, "));
    }

    void ADroppedQuoteFileIsOpenAtOnce() {
        RunningWindow main;
        main.Folder.Write("Rising.txt", QuoteLines(40));
        QVERIFY(Drop(main, *FilesOf(main, {u"Rising.txt"_s}), {550, 400}));
        WaitForCommand(main);
        QCOMPARE(main.Answers.Shown(), QStringList());
        QCOMPARE(main.Window->windowTitle(), CaptionWith(main, u"Rising.txt"_s));
        QCOMPARE(main.Data->Quotes.WorkingCount, 40);
    }

    void TheGridStaysWhenAnotherContractIsOpened() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.TypeInto(1, 1, u"40"_s);
        main.TypeInto(2, 1, u"25"_s);
        main.TypeInto(1, 2, u"60"_s);
        main.TypeInto(2, 2, u"9"_s);
        main.Folder.Write("Rising.txt", QuoteLines(40));
        QVERIFY(Drop(main, *FilesOf(main, {u"Rising.txt"_s}), {550, 400}));
        WaitForCommand(main);
        QCOMPARE(main.RowTexts(1), u"40 60 0 0 0 0 0 0 0 0"_s);
        QCOMPARE(main.RowTexts(2), u"25 9 0 0 0 0 0 0 0 0"_s);
        QVERIFY(main.Box(2).accessibleDescription().startsWith(u"2 component cycles over 40 days"));
    }

    void SeveralFilesAreShownInTurn() {
        RunningWindow main;
        main.Folder.Write("wheat.csv", TableHead + TableRows(60));
        main.Folder.Write("corn.csv", TableHead + TableRows(70));
        main.Answers.Escape();
        main.Answers.Click(QMessageBox::Yes);
        main.Answers.Next(Import());
        QVERIFY(Drop(main, *FilesOf(main, {u"wheat.csv"_s, u"corn.csv"_s}), {550, 400}));
        WaitForCommand(main);
        QCOMPARE(main.Answers.Shown(),
                 QStringList({u"frmImport"_s,
                              u"Import|question|Yes No|One file is left.\nDo you want to go on with it?"_s,
                              u"frmImport"_s}));
        QCOMPARE(main.Window->windowTitle(), CaptionWith(main, u"corn.txt"_s));
    }

    void WhatIsNoTableIsNotTaken() {
        RunningWindow main;
        QMimeData word;
        word.setText(u"word"_s);
        QVERIFY(!Drop(main, word, {550, 400}));
        QMimeData address;
        address.setUrls({QUrl(u"https://example.org/wheat.csv"_s)});
        QVERIFY(!Drop(main, address, {550, 400}));
        QMimeData picture;
        picture.setImageData(QImage(3, 3, QImage::Format_RGB32));
        QVERIFY(!Drop(main, picture, {550, 400}));
    }

    void NothingIsTakenWhileADialogIsOpen() {
        RunningWindow main;
        main.Folder.Write("Rising.txt", QuoteLines(40));
        bool isTaken = true;
        main.Answers.Next([&](QWidget& legend) {
            isTaken = Drop(main, *FilesOf(main, {u"Rising.txt"_s}), {550, 400});
            QTest::keyClick(&legend, Qt::Key_Escape);
        });
        main.Choose("mnuLegend");
        QVERIFY(!isTaken);
        QVERIFY(!main.Data->Quotes.HasQuotes());
    }

    void APastedTableIsImportedAndOpen_data() {
        QTest::addColumn<bool>("isInCell");
        QTest::newRow("on a chart") << false;
        QTest::newRow("in a cell") << true;
    }

    void APastedTableIsImportedAndOpen() {
        QFETCH(bool, isInCell);
        RunningWindow main;
        CopyText(TableHead + TableRows(60));
        QWidget& receiver = isInCell ? static_cast<QWidget&>(main.Cell(1, 1)) : main.Box(1);
        receiver.setFocus();
        main.Answers.Next(Import());
        Paste(receiver);
        WaitForCommand(main);
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmImport"_s));
        QCOMPARE(main.Window->windowTitle(), CaptionWith(main, u"Pasted.txt"_s));
        QCOMPARE(main.Data->Quotes.WorkingCount, 60);
        QCOMPARE(main.Cell(1, 1).text(), u"0"_s);
    }

    void CopiedFilesArePasted() {
        RunningWindow main;
        main.Folder.Write("wheat.csv", TableHead + TableRows(60));
        QApplication::clipboard()->setMimeData(FilesOf(main, {u"wheat.csv"_s}).release());
        main.Answers.Next(Import());
        Paste(main.Box(1));
        WaitForCommand(main);
        QCOMPARE(main.Window->windowTitle(), CaptionWith(main, u"wheat.txt"_s));
    }

    // A spreadsheet puts a line end behind a cell that is copied.
    void AWordIsPastedIntoTheCell() {
        RunningWindow main;
        CopyText("42\n");
        main.Cell(1, 1).setFocus();
        main.Cell(1, 1).selectAll();
        Paste(main.Cell(1, 1));
        QCoreApplication::processEvents();
        QCOMPARE(main.Cell(1, 1).text().trimmed(), u"42"_s);
        Paste(main.Box(1));
        QCoreApplication::processEvents();
        QCOMPARE(main.Answers.Shown(), QStringList());
    }

    void TheContextMenuOfTheQuotesImportsAChosenFile_data() {
        QTest::addColumn<int>("way");
        QTest::newRow("mouse") << 0;
        QTest::newRow("menu key") << 1;
        QTest::newRow("Shift+F10") << 2;
    }

    void TheContextMenuOfTheQuotesImportsAChosenFile() {
        QFETCH(int, way);
        RunningWindow main;
        main.Folder.Write("wheat.csv", TableHead + TableRows(60));
        main.Answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_I); });
        main.Answers.Next([&](QWidget& dialog) {
            auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
            name->setText(QString::fromStdString(main.Folder.File("wheat.csv")));
            QTest::keyClick(name, Qt::Key_Return);
        });
        main.Answers.Next(Import());
        main.Box(1).setFocus();
        if (way == 2) {
            QTest::keyClick(&main.Box(1), Qt::Key_F10, Qt::ShiftModifier);
        } else {
            QContextMenuEvent event(way == 0 ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard,
                                    {20, 20}, main.Box(1).mapToGlobal(QPoint(20, 20)));
            QCoreApplication::sendEvent(&main.Box(1), &event);
        }
        WaitForCommand(main);
        QCOMPARE(main.Answers.Shown(), QStringList({u"mnuPicture"_s, u"OpenFileDialog"_s, u"frmImport"_s}));
        QCOMPARE(main.Window->windowTitle(), CaptionWith(main, u"wheat.txt"_s));
    }

    void CloseLeavesEverythingAsItWas() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.TypeInto(1, 1, u"57"_s);
        main.TypeInto(1, 2, u"2"_s);
        QImage const before = main.Picture(1);
        main.Folder.Write("wheat.csv", TableHead + TableRows(60));
        main.Answers.Escape();
        QVERIFY(Drop(main, *FilesOf(main, {u"wheat.csv"_s}), {550, 400}));
        WaitForCommand(main);
        QCOMPARE(main.Window->windowTitle(), CaptionWith(main, u"q060.txt"_s));
        QCOMPARE(main.RowTexts(1), u"57 2 0 0 0 0 0 0 0 0"_s);
        QCOMPARE(main.Picture(1), before);
    }

    void AnUpdateShowsTheNewDays() {
        RunningWindow main;
        std::string const all = TableRows(60);
        main.Folder.Write("wheat.csv", TableHead + all.substr(all.find("2024-06-26")));
        main.Answers.Next(Import());
        QVERIFY(Drop(main, *FilesOf(main, {u"wheat.csv"_s}), {550, 400}));
        WaitForCommand(main);
        QCOMPARE(main.Data->Quotes.LastQuoteDate, std::string("06/26/24"));
        CopyText(TableHead + all);
        main.Answers.Next([](QWidget& window) {
            auto* update = window.findChild<QPushButton*>(u"cmdUpdate"_s);
            QTRY_VERIFY(update->isEnabled());
            QTest::mouseClick(update, Qt::LeftButton);
        });
        Paste(main.Box(1));
        WaitForCommand(main);
        QCOMPARE(main.Window->windowTitle(), CaptionWith(main, u"wheat.txt"_s));
        QCOMPARE(main.Data->Quotes.LastQuoteDate, std::string("06/28/24"));
        QCOMPARE(main.Data->Quotes.WorkingCount, 60);
    }
};

template struct ListedWindowTest<frmMainImportTest>;

} // namespace quorvex::tests

#include "frmMainImportTest.moc"
