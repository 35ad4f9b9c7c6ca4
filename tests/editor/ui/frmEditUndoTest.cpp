// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/ShownEditor.h"
#include "support/QuoteTexts.h"
#include "windows/WindowTest.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

void PressControl(ShownEditor const& shown, Qt::Key key, Qt::KeyboardModifiers more = {}) {
    shown.Press(key, Qt::ControlModifier | more);
}

QStringList ItemsOf(QWidget const& menu) {
    QStringList items;
    for (QAction const* item : menu.actions()) {
        QString const keys = item->shortcut().toString(QKeySequence::PortableText);
        items.append(item->isSeparator() ? u"-"_s
                                         : item->objectName() + u' ' + item->text() + u' ' + keys +
                                               (item->isEnabled() ? u""_s : u" grey"_s));
    }
    return items;
}

// Opens the context menu of the cells by keys and does this in it.
void WithMenu(ShownEditor& shown, std::function<void(QWidget&)> const& deed) {
    shown.Answers.Next(deed);
    shown.Press(Qt::Key_F10, Qt::ShiftModifier);
    QTRY_VERIFY(shown.Answers.IsDone());
}

void ChooseFromMenu(ShownEditor& shown, Qt::Key letter) {
    WithMenu(shown, [letter](QWidget& menu) { QTest::keyClick(&menu, letter); });
}

} // namespace

class frmEditUndoTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void ControlZAndControlYUndoAndRedoWhatWasTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.Type(9, 3, u"7"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(9, 3), u"109.75"_s);
            QCOMPARE(shown.Cursor(), u"9,3"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            QCOMPARE(shown.Cursor(), u"2,5"_s);
            PressControl(shown, Qt::Key_Z); // there is no more
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            PressControl(shown, Qt::Key_Y);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            PressControl(shown, Qt::Key_Z, Qt::ShiftModifier);
            QCOMPARE(shown.Text(9, 3), u"7"_s);
            QCOMPARE(shown.Cursor(), u"9,3"_s);
            PressControl(shown, Qt::Key_Y);
            QVERIFY(shown.Grid().hasFocus());
        });
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s));
    }

    void WhileACellIsTypedTheKeysBelongToTheTyping() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.GoTo(3, 5);
            shown.Press(Qt::Key_F2);
            auto* cell = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            QVERIFY(cell != nullptr);
            shown.Press(Qt::Key_End);
            shown.Press(Qt::Key_8);
            QCOMPARE(cell->text(), u"103.008"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(cell->text(), u"103.00"_s);
            for (int presses = 0; presses < 3; ++presses) {
                PressControl(shown, Qt::Key_Z); // nothing is left of the typing
            }
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            PressControl(shown, Qt::Key_Y);
            QCOMPARE(cell->text(), u"103.008"_s);
            PressControl(shown, Qt::Key_Z, Qt::ShiftModifier);
            QCOMPARE(QApplication::focusWidget(), cell);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
        });
    }

    void PasteCutAndDeleteAreOneStepEach() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            QGuiApplication::clipboard()->setText(u"1\t2\n3\t4\n"_s);
            shown.GoTo(5, 2);
            PressControl(shown, Qt::Key_V);
            QCOMPARE(shown.Text(6, 3), u"4"_s);
            shown.GoTo(6, 3);
            PressControl(shown, Qt::Key_X);
            QCOMPARE(shown.Text(6, 3), u""_s);
            shown.GoTo(1, 1);
            shown.Press(Qt::Key_Delete);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(1, 1), u"01/01/01"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(6, 3), u"4"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(5, 2), u"105.25"_s);
            QCOMPARE(shown.Text(6, 3), u"106.75"_s);
        });
    }

    void RowCommandsAndWhatTheyDroppedComeBack() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.Choose("mnuEditAppend");
            shown.GoTo(3, 4);
            shown.Answers.Click(QMessageBox::Yes);
            shown.Choose("mnuEditDelete");
            QCOMPARE(shown.Grid().model()->rowCount(), 30);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Grid().model()->rowCount(), 31);
            QCOMPARE(shown.Text(3, 1), u"01/03/01"_s);
            QCOMPARE(shown.Cursor(), u"3,1"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Grid().model()->rowCount(), 30);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            PressControl(shown, Qt::Key_Y);
            PressControl(shown, Qt::Key_Y);
            QCOMPARE(shown.Grid().model()->rowCount(), 30);
            QCOMPARE(shown.Text(3, 1), u"01/04/01"_s);
        });
    }

    void WhatComingBackAndANewSizeDroppedComesBack() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.ComeBack();
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            shown.Window->resize(shown.Window->size() + QSize(30, 30));
            QCoreApplication::processEvents();
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
        });
    }

    void ARefusedSavesSortIsAStep() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(30, 1, u"01/01/01"_s);
            shown.Choose("mnuFileSave"); // two rows of one date, side by side now
            QCOMPARE(shown.Text(2, 1), u"01/01/01"_s);
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(2, 1), u"01/02/01"_s);
            QCOMPARE(shown.Text(30, 1), u"01/01/01"_s);
        });
    }

    void WhatWasUndoneBehindASaveIsSavedNext() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"7"_s);
            shown.Choose("mnuFileSave");
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            shown.ComeBack(); // the copy went back as well
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            shown.Choose("mnuFileSave");
        });
        QVERIFY(shown.Folder.Read("corn.txt").find("102.00, 102.00, 1200, 3400\r\n") != std::string::npos);
    }

    void TheStatusLineForgetsWhenAStepIsUndone() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            auto const* status = shown.Window->findChild<QLabel*>(u"StatusLine"_s);
            shown.Type(2, 5, u"7"_s);
            shown.Choose("mnuFileSave");
            QVERIFY(!status->text().isEmpty());
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(status->text(), u""_s);
        });
    }

    void OpensWithoutAnythingToUndo() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] { shown.Type(2, 5, u"7"_s); });
        shown.Run([&] {
            PressControl(shown, Qt::Key_Z);
            PressControl(shown, Qt::Key_Y);
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
        });
    }

    void TheCellsHaveAMenu() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            QStringList items;
            shown.GoTo(2, 5);
            WithMenu(shown, [&](QWidget& menu) {
                items = ItemsOf(menu);
                QTest::keyClick(&menu, Qt::Key_Escape);
            });
            QCOMPARE(items,
                     QStringList({u"mnuCellsUndo &Undo Ctrl+Z grey"_s, u"mnuCellsRedo &Redo Ctrl+Y grey"_s,
                                  u"-"_s, u"mnuCellsCut Cu&t Ctrl+X"_s, u"mnuCellsCopy &Copy Ctrl+C"_s,
                                  u"mnuCellsPaste &Paste Ctrl+V"_s, u"mnuCellsClear C&lear Del"_s, u"-"_s,
                                  u"mnuCellsRestore Restore Un&saved Edits  grey"_s,
                                  u"mnuCellsForget &Forget Unsaved Edits...  grey"_s}));
            shown.Type(2, 5, u"7"_s);
            WithMenu(shown, [&](QWidget& menu) {
                items = ItemsOf(menu);
                QTest::keyClick(&menu, Qt::Key_Escape);
            });
            QCOMPARE(items.at(0), u"mnuCellsUndo &Undo Ctrl+Z"_s);
        });
        QCOMPARE(shown.Answers.Shown(), QStringList({u"frmEdit"_s, u"mnuCells"_s, u"mnuCells"_s}));
    }

    void TheMenuUndoesAndRedoes() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"7"_s);
            ChooseFromMenu(shown, Qt::Key_U);
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            QVERIFY(shown.Grid().hasFocus());
            ChooseFromMenu(shown, Qt::Key_R);
            QCOMPARE(shown.Text(2, 5), u"7"_s);
        });
    }

    void TheMenuWorksOnTheSelectedCells() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 4);
            shown.Press(Qt::Key_Right, Qt::ShiftModifier);
            ChooseFromMenu(shown, Qt::Key_C);
            QCOMPARE(QGuiApplication::clipboard()->text(), u"102.00\t102.00\n"_s);
            ChooseFromMenu(shown, Qt::Key_L);
            QCOMPARE(shown.Text(2, 4) + shown.Text(2, 5), u""_s);
            shown.GoTo(3, 2);
            ChooseFromMenu(shown, Qt::Key_P);
            QCOMPARE(shown.Text(3, 3), u"102.00"_s);
            shown.GoTo(3, 3);
            ChooseFromMenu(shown, Qt::Key_T);
            QCOMPARE(shown.Text(3, 3), u""_s);
        });
    }

    void TheMenuOpensAtTheMouse() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            QWidget* const cells = shown.Grid().viewport();
            QPoint const place = shown.Grid().visualRect(shown.Grid().model()->index(3, 3)).center();
            QPoint corner;
            shown.Answers.Next([&](QWidget& menu) {
                corner = menu.pos();
                QTest::keyClick(&menu, Qt::Key_Escape);
            });
            QTest::mouseClick(cells, Qt::RightButton, {}, place);
            QContextMenuEvent event(QContextMenuEvent::Mouse, place, cells->mapToGlobal(place));
            QCoreApplication::sendEvent(cells, &event);
            QVERIFY(shown.Answers.IsDone());
            QCOMPARE(corner, cells->mapToGlobal(place));
            QCOMPARE(shown.Cursor(), u"4,4"_s);
        });
    }

    void AMenuThatIsLeftKeepsWhatWasTyped() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            WithMenu(shown, [](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_Escape); });
            shown.ComeBack(); // as a desktop tells that the menu has closed
            QCOMPARE(shown.Text(2, 5), u"555"_s);
        });
    }

    void AnEmptyGridHasAMenuToo() {
        ShownEditor shown("", "");
        shown.Run([&] {
            shown.Choose("mnuEditAppend");
            PressControl(shown, Qt::Key_Z);
            QCOMPARE(shown.Grid().model()->rowCount(), 0);
            QStringList items;
            WithMenu(shown, [&](QWidget& menu) {
                items = ItemsOf(menu);
                QTest::keyClick(&menu, Qt::Key_R);
            });
            QCOMPARE(items.filter(u"grey"_s).size(), 6);
            QCOMPARE(shown.Grid().model()->rowCount(), 1);
            QCOMPARE(shown.Text(1, 2), u"0.00"_s);
        });
    }
};

template struct ListedWindowTest<frmEditUndoTest>;

} // namespace quorvex::tests

#include "frmEditUndoTest.moc"
