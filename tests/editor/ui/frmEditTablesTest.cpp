// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/ShownEditor.h"
#include "support/QuoteTexts.h"
#include "windows/WindowTest.h"

#include <QClipboard>
#include <QMenu>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

void Paste(ShownEditor const& shown, QString const& text) {
    QGuiApplication::clipboard()->setText(text);
    shown.Press(Qt::Key_V, Qt::ControlModifier);
}

} // namespace

class frmEditTablesTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void ATableWithHeadingsBecomesRowsAndIsOneStep() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(30, 4);
            Paste(shown, u"Datum;Eröffnung;Hoch;Tief;Schluss\r\n18.03.2002;11,5;13;10;12\r\n"
                         "15.03.2002;1;3;1;2,25\r\n"_s);
            QCOMPARE(shown.Grid().model()->rowCount(), 31);
            QCOMPARE(shown.Text(30, 1), u"03/15/02"_s);
            QCOMPARE(shown.Text(30, 5), u"2.25"_s);
            QCOMPARE(shown.Text(31, 2), u"11.50"_s);
            QCOMPARE(shown.Cursor(), u"30,1"_s);
            QCOMPARE(
                shown.Status(),
                u"2 days pasted into rows 30 to 31 over 1 other day; Undo brings it back. Their volume and "
                u"open "
                "interest are not saved, those of the loaded rows are; Import... takes them into the file"_s);
            shown.ComeBack(); // which drops what is typed
            QCOMPARE(shown.Text(31, 2), u"11.50"_s);
            shown.Press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(shown.Grid().model()->rowCount(), 30);
            QCOMPARE(shown.Text(30, 1), u"02/09/01"_s);
            shown.Press(Qt::Key_Y, Qt::ControlModifier);
            QCOMPARE(shown.Text(31, 2), u"11.50"_s);
        });
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s));
    }

    void ATableFillsAnEmptyGridFromTheMenu() {
        ShownEditor shown("", "");
        shown.Run([&] {
            QGuiApplication::clipboard()->setText(
                u"Date,Open,High,Low,Close\n2002-03-15,1,3,1,2\n2002-03-18,1,3,1,2\n"_s);
            shown.Answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_P); });
            shown.Press(Qt::Key_F10, Qt::ShiftModifier);
            QTRY_VERIFY(shown.Answers.IsDone());
            QCOMPARE(shown.Grid().model()->rowCount(), 2);
            QCOMPARE(shown.Text(2, 1), u"03/18/02"_s);
        });
    }

    void WhatIsRefusedIsToldAndChangesNothing() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 1);
            Paste(shown, u"Date,Open,High,Low,Close\n03/05/2002,1,3,1,2\n04/05/2002,1,3,1,2\n"_s);
            Paste(shown, u"Date,Open,High,Low,Close\n2002-03-15,0,3,1,2\n"_s);
            QCOMPARE(shown.Text(2, 1) + shown.Text(3, 1), u"01/02/0101/03/01"_s);
        });
        QStringList const told = shown.Answers.Shown().mid(1);
        QCOMPARE(told.size(), 2);
        for (QString const& message : told) {
            QVERIFY(message.startsWith(u"Edit|exclamation|OK|The table was not pasted.\nLine 2: "_s) ||
                    message.contains(u"month, day, year or day, month, year"_s));
        }
    }

    // Whatever stands in them: another program's rows would be read as a table, or refused.
    void CellsOfTheGridGoInAsTheyStand() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        QStringList const typed = {u"3/2/2020"_s, u"2,345"_s, u"1,5"_s, u"\"x\""_s, u"abc"_s};
        shown.Run([&] {
            for (int column = 1; column <= typed.size(); ++column) {
                shown.Type(3, column, typed[column - 1]);
            }
            shown.GoTo(2, 1);
            for (int step = 0; step < 6; ++step) {
                shown.Press(Qt::Key_Right, Qt::ShiftModifier);
            }
            shown.Press(Qt::Key_Down, Qt::ShiftModifier);
            shown.Press(Qt::Key_C, Qt::ControlModifier);
            shown.GoTo(10, 1);
            shown.Press(Qt::Key_V, Qt::ControlModifier);
            for (int column = 1; column <= 7; ++column) {
                QCOMPARE(shown.Text(10, column), shown.Text(2, column));
                QCOMPARE(shown.Text(11, column), shown.Text(3, column));
            }
            QCOMPARE(shown.Text(11, 2), u"2,345"_s);
            QCOMPARE(shown.Status(), u""_s);
        });
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s));
    }

    void HowTheGridReadsCellsOfOthersIsTold() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 2);
            Paste(shown, u"2,345\t3\n"_s);
            QCOMPARE(shown.Text(2, 2), u"2,345"_s);
            QCOMPARE(shown.Status(), u"Pasted as it stands: 2,345 is read as 2345"_s);
            Paste(shown, u"2.345\t3\n"_s);
            QCOMPARE(shown.Status(), u""_s);
        });
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s));
    }
};

template struct ListedWindowTest<frmEditTablesTest>;

} // namespace quorvex::tests

#include "frmEditTablesTest.moc"
