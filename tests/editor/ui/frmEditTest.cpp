// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/ShownEditor.h"
#include "support/QuoteTexts.h"
#include "windows/WindowTest.h"

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QString CaptionsOf(QMenu const& menu) {
    QStringList captions;
    for (QAction const* item : menu.actions()) {
        captions.append(item->isSeparator() ? u"-"_s : item->text() + u' ' + item->objectName());
    }
    return captions.join(u'|');
}

// As at a keyboard: whatever has the focus in the editor gets the key.
void PressKeys(ShownEditor const& shown, QList<Qt::Key> const& keys) {
    for (Qt::Key const key : keys) {
        QTest::keyClick(shown.Window->windowHandle(), key);
    }
}

// Opens the menu by Alt and its letter, and chooses by the letter of the item.
void ChooseByKeys(ShownEditor& shown, Qt::Key menu, Qt::Key item) {
    shown.Answers.Next([item](QWidget& open) { QTest::keyClick(&open, item); });
    QTest::keyClick(shown.Window->windowHandle(), menu, Qt::AltModifier);
    QTRY_VERIFY(shown.Answers.IsDone());
}

QLabel& StatusOf(ShownEditor const& shown) {
    return *shown.Window->findChild<QLabel*>(u"StatusLine"_s);
}

} // namespace

class frmEditTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void CarriesItsCaptions() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Series->QuoteFileName = "corn.txt";
        shown.Run([&] {
            QCOMPARE(shown.Window->windowTitle(), u"Quorvex - Edit - [corn.txt]"_s);
            QCOMPARE(
                CaptionsOf(*shown.Window->findChild<QMenu*>(u"mnuFile"_s)),
                u"&Save mnuFileSave|Save &As... mnuFileSaveAs|-|&Print mnuFilePrint|-|E&xit mnuFileExit"_s);
            QCOMPARE(CaptionsOf(*shown.Window->findChild<QMenu*>(u"mnuEdit"_s)),
                     u"&Insert Row mnuEditInsert|&Append Row mnuEditAppend|-|&Delete Row mnuEditDelete|"
                     "&Help mnuEditHelp"_s);
            QStringList menus;
            for (QAction const* menu : shown.Window->findChild<QMenuBar*>()->actions()) {
                menus.append(menu->text());
            }
            QCOMPARE(menus, QStringList({u"&File"_s, u"&Edit"_s}));
        });
    }

    void TheNameInTheCaptionIsShownLetterForLetter() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Series->QuoteFileName = "a[*].txt";
        shown.Run([&] { QCOMPARE(shown.Window->windowHandle()->title(), u"Quorvex - Edit - [a[*].txt]"_s); });
    }

    void WithoutAnOpenFileIsEmpty() {
        ShownEditor shown("", "");
        shown.Run([&] {
            QCOMPARE(shown.Window->windowTitle(), u"Quorvex - Edit"_s);
            QCOMPARE(shown.Grid().model()->rowCount(), 0);
            shown.Choose("mnuEditInsert");
            shown.Choose("mnuEditDelete");
            shown.Choose("mnuEditAppend");
            QCOMPARE(shown.Text(1, 2), u"0.00"_s);
            QCOMPARE(shown.Cursor(), u"1,1"_s);
        });
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s));
    }

    void RowCommandsDropWhatWasTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.Choose("mnuEditAppend");
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            QCOMPARE(shown.Cursor(), u"31,1"_s);
            QVERIFY(shown.Grid()
                        .visualRect(shown.Grid().currentIndex())
                        .intersects(shown.Grid().viewport()->rect()));
            shown.GoTo(3, 4);
            shown.Choose("mnuEditInsert");
            QCOMPARE(shown.Text(3, 1), u""_s);
            QCOMPARE(shown.Text(4, 1), u"01/03/01"_s);
            QCOMPARE(shown.Cursor(), u"3,4"_s);
            shown.Answers.Click(QMessageBox::Yes);
            shown.Choose("mnuEditDelete");
            QCOMPARE(shown.Text(3, 1), u"01/03/01"_s);
            QCOMPARE(shown.Grid().model()->rowCount(), 31);
        });
        QCOMPARE(shown.Answers.Shown().mid(1),
                 QStringList(u"Delete Row|question|Yes No|Delete row no. 3?"_s));
    }

    void ANewSizeAndComingBackDropWhatWasTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.Window->resize(shown.Window->size() + QSize(30, 30));
            QCoreApplication::processEvents();
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            shown.Type(2, 5, u"555"_s);
            shown.ComeBack();
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
        });
    }

    void AMessageOfItsOwnKeepsWhatWasTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.Type(4, 3, u"abc"_s);
            shown.Choose("mnuFileSave");
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            QCOMPARE(shown.Cursor(), u"4,3"_s);
            shown.Choose("mnuEditHelp");
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            shown.ComeBack(); // a desktop may tell more than once that the box has closed
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            PressKeys(shown, {Qt::Key_Down});
            shown.ComeBack(); // this is another matter
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
        });
        QCOMPARE(shown.Answers.Shown().at(1), OkMessage(u"Edit - Invalid Data Entry"_s, u"exclamation"_s,
                                                        u"Invalid data entry on row 4"_s));
        QVERIFY(
            shown.Answers.Shown().at(2).startsWith(u"Quorvex - Edit Help|information|OK|\n\n\nQuorvex"_s));
        QCOMPARE(shown.Folder.Read("corn.txt"), QuoteLines(30));
    }

    void AMessageThatClosesLateKeepsWhatWasTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            QWidget other;
            other.setWindowModality(Qt::ApplicationModal); // else the box would keep it from becoming active
            shown.Answers.Next([](QWidget&) {});           // it stays open
            shown.Answers.NextMessage([&](QWidget& box) {
                QTest::keyClick(&box, Qt::Key_Return);
                other.show(); // the desktop does not give the editor back at once
                other.activateWindow();
                QCoreApplication::processEvents();
            });
            shown.Choose("mnuEditHelp");
            QVERIFY(!shown.Window->isActiveWindow());
            other.hide();
            shown.Window->activateWindow();
            QCoreApplication::processEvents();
            QVERIFY(shown.Window->isActiveWindow());
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            PressKeys(shown, {Qt::Key_Down});
            shown.ComeBack();
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
        });
    }

    void ANewSizeBehindAMessageKeepsWhatWasTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.Answers.NextMessage([&](QWidget& box) {
                shown.Window->resize(600, 400);
                QCoreApplication::processEvents();
                QTest::keyClick(&box, Qt::Key_Return);
            });
            shown.Choose("mnuEditHelp");
            QCOMPARE(shown.Grid().width(), 600);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
        });
    }

    void SaveWritesWhatIsBeingTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 5);
            shown.Press(Qt::Key_7); // and no Enter
            shown.Choose("mnuFileSave");
        });
        std::string const written = shown.Folder.Read("corn.txt");
        QVERIFY(written.find("01/02/01, 102.25, 102.75, 102.00, 7.00, 1200, 3400\r\n") != std::string::npos);
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s));
        QCOMPARE(shown.Series->Master[2].Close, 102.0);
    }

    void TypingGoesOnBehindACommandOfTheMenu_data() {
        QTest::addColumn<Qt::Key>("menu");
        QTest::addColumn<Qt::Key>("item");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::newRow("Append") << Qt::Key_E << Qt::Key_A << 31 << 1;
        QTest::newRow("Insert") << Qt::Key_E << Qt::Key_I << 2 << 5;
        QTest::newRow("Help") << Qt::Key_E << Qt::Key_H << 2 << 5;
        QTest::newRow("Save") << Qt::Key_F << Qt::Key_S << 2 << 5;
        QTest::newRow("Print") << Qt::Key_F << Qt::Key_P << 2 << 5;
    }

    void TypingGoesOnBehindACommandOfTheMenu() {
        QFETCH(Qt::Key, menu);
        QFETCH(Qt::Key, item);
        QFETCH(int, row);
        QFETCH(int, column);
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 5);
            PressKeys(shown, {Qt::Key_7}); // and no Enter
            ChooseByKeys(shown, menu, item);
            QCOMPARE(shown.Cursor(), u"%1,%2"_s.arg(row).arg(column));
            // These would leave the editor if the menu bar had the keyboard.
            PressKeys(shown, {Qt::Key_F, Qt::Key_X, Qt::Key_Return});
            QVERIFY(shown.Window->isVisible());
            QCOMPARE(shown.Text(row, column), u"fx"_s);
        });
    }

    void TypingGoesOnBehindAQuestionOfTheMenu_data() {
        QTest::addColumn<Qt::Key>("menu");
        QTest::addColumn<Qt::Key>("item");
        QTest::addColumn<Qt::Key>("answer");
        QTest::newRow("Delete") << Qt::Key_E << Qt::Key_D << Qt::Key_Return;
        QTest::newRow("Delete, refused") << Qt::Key_E << Qt::Key_D << Qt::Key_Escape;
        QTest::newRow("Save As, given up") << Qt::Key_F << Qt::Key_A << Qt::Key_Escape;
    }

    void TypingGoesOnBehindAQuestionOfTheMenu() {
        QFETCH(Qt::Key, menu);
        QFETCH(Qt::Key, item);
        QFETCH(Qt::Key, answer);
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 5);
            PressKeys(shown, {Qt::Key_7});
            shown.Answers.Next([&](QWidget& open) { QTest::keyClick(&open, item); });
            shown.Answers.Next([&](QWidget& box) { QTest::keyClick(&box, answer); });
            QTest::keyClick(shown.Window->windowHandle(), menu, Qt::AltModifier);
            QTRY_VERIFY(shown.Answers.IsDone());
            PressKeys(shown, {Qt::Key_F, Qt::Key_X, Qt::Key_Return});
            QVERIFY(shown.Window->isVisible());
            QCOMPARE(shown.Text(2, 5), u"fx"_s);
        });
    }

    void AMenuThatIsLeftReturnsToWhatIsBeingTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 5);
            PressKeys(shown, {Qt::Key_7});
            ChooseByKeys(shown, Qt::Key_E, Qt::Key_Escape); // which closes the menu and stays in the bar
            QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
            auto const isTyping = [] {
                QWidget const* focused = QApplication::focusWidget();
                return focused != nullptr && focused->objectName() == u"CellEditor"_s;
            };
            for (int presses = 0; presses < 3 && !isTyping(); ++presses) {
                PressKeys(shown, {Qt::Key_Escape}); // out of the bar
            }
            PressKeys(shown, {Qt::Key_5, Qt::Key_Return});
            QCOMPARE(shown.Text(2, 5), u"75"_s);
        });
    }

    void ARefusedSaveLeavesTheKeyboardAtTheCell() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(4, 3, u"x"_s);
            shown.GoTo(2, 5);
            PressKeys(shown, {Qt::Key_7});
            ChooseByKeys(shown, Qt::Key_F, Qt::Key_S);
            QCOMPARE(shown.Cursor(), u"4,3"_s);
            PressKeys(shown, {Qt::Key_8, Qt::Key_Return});
            QCOMPARE(shown.Text(4, 3), u"8"_s);
        });
        QVERIFY(shown.Answers.Shown().contains(
            OkMessage(u"Edit - Invalid Data Entry"_s, u"exclamation"_s, u"Invalid data entry on row 4"_s)));
    }

    void TheStatusLineTellsHowASaveEnded() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        QString const path = QString::fromStdString(shown.Series->QuoteFileName);
        shown.Run([&] {
            QCOMPARE(StatusOf(shown).text(), u""_s);
            shown.Choose("mnuFileSave");
            QCOMPARE(StatusOf(shown).text(), u"30 rows saved to "_s + path);
            shown.Type(12, 6, u"abc"_s);
            QCOMPARE(StatusOf(shown).text(), u""_s); // no longer all that stands in the grid
            shown.Choose("mnuFileSave");
            QCOMPARE(StatusOf(shown).text(), u"Not saved: row 12, Volume is not a number"_s);
            shown.Type(12, 6, u"1"_s);
            shown.Series->QuoteFileName = shown.Folder.File("none/corn.txt");
            shown.Choose("mnuFileSave");
            QCOMPARE(StatusOf(shown).text(), u"Not saved: Path not found"_s);
        });
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s)); // and no box
    }

    void TheStatusLineForgetsWhenTheGridChanges() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        auto const savedAnd = [&](std::function<void()> const& deed) {
            shown.Choose("mnuFileSave");
            QVERIFY(!StatusOf(shown).text().isEmpty());
            deed();
        };
        shown.Run([&] {
            savedAnd([&] { shown.Choose("mnuEditAppend"); });
            QCOMPARE(StatusOf(shown).text(), u""_s);
            shown.Answers.Click(QMessageBox::Yes);
            shown.Choose("mnuEditDelete");
            savedAnd([&] { shown.Press(Qt::Key_Delete); });
            QCOMPARE(StatusOf(shown).text(), u""_s);
            shown.ComeBack(); // which fills the grid from the copy
            savedAnd([&] { shown.ComeBack(); });
            QVERIFY(!StatusOf(shown).text().isEmpty()); // the grid still shows what was saved
        });
        shown.Run([&] { QCOMPARE(StatusOf(shown).text(), u""_s); });
    }

    void TheStatusLineHasTheStripBelowTheGrid() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            for (QSize const size : {QSize(940, 680), QSize(1200, 800), QSize(300, 120)}) {
                shown.Window->resize(size);
                QCoreApplication::processEvents();
                QWidget const& client = *shown.Grid().parentWidget();
                QRect const strip(0, shown.Grid().height(), client.width(),
                                  client.height() - shown.Grid().height());
                QCOMPARE(StatusOf(shown).geometry(), strip);
            }
            shown.Window->resize(940, 680);
            QCoreApplication::processEvents();
            QVERIFY(StatusOf(shown).height() >= StatusOf(shown).fontMetrics().height());
        });
    }

    void TheStatusLineIsAStatusBarToScreenReaders() {
        ShownEditor shown(QuoteLines(30), std::string("S&P ") + MarkupInName + "500.txt");
        shown.Run([&] {
            shown.Choose("mnuFileSave");
            QAccessibleInterface* line = QAccessible::queryAccessibleInterface(&StatusOf(shown));
            QCOMPARE(line->role(), QAccessible::StatusBar);
            QCOMPARE(line->text(QAccessible::Name), StatusOf(shown).text());
            QCOMPARE(StatusOf(shown).textFormat(), Qt::PlainText);
        });
    }

    void SaveAsWritesAndTakesTheName() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        std::string const path = shown.Folder.File("new.txt");
        shown.Run([&] {
            QString const caption = shown.Window->windowTitle();
            shown.Type(2, 5, u"7"_s);
            shown.Answers.Type(QString::fromStdString(path));
            shown.Choose("mnuFileSaveAs");
            QCOMPARE(shown.Window->windowTitle(), caption);
            QCOMPARE(shown.Text(2, 5), u"7.00"_s); // shown as it was written
        });
        QCOMPARE(shown.Series->QuoteFileName, path);
        QVERIFY(shown.Folder.Read("new.txt").find(", 7.00, 1200, 3400\r\n") != std::string::npos);
        QCOMPARE(shown.Folder.Read("corn.txt"), QuoteLines(30));
    }

    void OpensAnewEachTime() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Choose("mnuEditAppend");
            shown.Choose("mnuFileExit");
            QVERIFY(!shown.Window->isVisible());
        });
        shown.Run([&] {
            QCOMPARE(shown.Grid().model()->rowCount(), 30);
            QCOMPARE(shown.Cursor(), u"1,1"_s);
        });
        QCOMPARE(shown.Answers.Shown(), QStringList({u"frmEdit"_s, u"frmEdit"_s}));
    }

    void RefusesTheRowBehindFiveHundred() {
        ShownEditor shown(QuoteLines(500), "corn.txt");
        shown.Run([&] {
            shown.Choose("mnuEditAppend");
            QCOMPARE(shown.Grid().model()->rowCount(), 500);
        });
        QCOMPARE(shown.Answers.Shown().mid(1),
                 QStringList(OkMessage(u"Edit"_s, u"exclamation"_s,
                                       u"Maximum number of daily quotes (500) has been reached."_s)));
    }

    void PrintsTheGrid() {
        ShownEditor shown(QuoteLines(51), "corn.txt");
        shown.Run([&] {
            shown.Type(1, 5, u"7"_s);
            shown.Choose("mnuFilePrint");
            QCOMPARE(shown.Text(1, 5), u"7"_s);
        });
        QCOMPARE(shown.Printer.Documents.size(), 1U);
        QVERIFY(shown.Printer.Documents[0].IsEnded);
        QCOMPARE(shown.Printer.Documents[0].Pages.size(), 2U);
        QCOMPARE(shown.Printer.Documents[0].Pages[0].Texts.at(15).Text, std::string("7.00"));
        QCOMPARE(shown.Printer.HourglassCount, 0);
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s));
    }

    void TellsThatThePrinterFails() {
        ShownEditor shown(QuoteLines(51), "corn.txt");
        shown.Printer.Sheet.FailingText = 30;
        shown.Run([&] { shown.Choose("mnuFilePrint"); });
        QCOMPARE(shown.Answers.Shown().mid(1),
                 QStringList(OkMessage(u"Quorvex"_s, u"none"_s, u"Printer error"_s)));
        QCOMPARE(shown.Printer.HourglassCount, 0);
    }

    void ACommandWaitsForTheOneBefore() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Answers.NextMessage([&](QWidget& box) {
                shown.Choose("mnuEditAppend"); // as assistive technology can
                QCOMPARE(shown.Grid().model()->rowCount(), 30);
                QTest::keyClick(&box, Qt::Key_Return);
            });
            shown.Choose("mnuEditHelp");
            shown.Choose("mnuEditAppend");
            QCOMPARE(shown.Grid().model()->rowCount(), 31);
        });
    }
};

template struct ListedWindowTest<frmEditTest>;

} // namespace quorvex::tests

#include "frmEditTest.moc"
