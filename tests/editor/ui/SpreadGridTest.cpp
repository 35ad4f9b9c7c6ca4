// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/ShownEditor.h"
#include "support/QuoteTexts.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QString Clipboard() {
    return QGuiApplication::clipboard()->text();
}

void SetClipboard(QString const& text) {
    QGuiApplication::clipboard()->setText(text);
}

} // namespace

class SpreadGridTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void ShowsHeadsRowsAndRowNumbers() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            QAbstractItemModel const& model = *shown.Grid().model();
            QStringList heads;
            QStringList texts;
            for (int column = 0; column < model.columnCount(); ++column) {
                heads.append(model.headerData(column, Qt::Horizontal).toString());
                texts.append(shown.Text(2, column + 1));
            }
            QCOMPARE(heads, QStringList({u"Date"_s, u"Open"_s, u"High"_s, u"Low"_s, u"Close"_s, u"Volume"_s,
                                         u"Open Interest"_s}));
            QCOMPARE(texts, QStringList({u"01/02/01"_s, u"102.25"_s, u"102.75"_s, u"102.00"_s, u"102.00"_s,
                                         u"1200"_s, u"3400"_s}));
            QCOMPARE(model.headerData(29, Qt::Vertical).toString(), u"30"_s);
            QVERIFY(shown.Grid().verticalHeader()->isVisible());
            QCOMPARE(shown.Cursor(), u"1,1"_s);
            QVERIFY(shown.Grid().hasFocus());
        });
    }

    // Qt itself asks for the cell under a cursor that is nowhere.
    void KeysInAGridWithoutRowsDoNothing() {
        RunningWindow main;
        int rows = -1;
        main.Answers.Next([&](QWidget& window) {
            auto* grid = window.findChild<QTableView*>(u"Spread"_s);
            rows = grid->model()->rowCount();
            for (auto const key : {Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Insert}) {
                QTest::keyClick(grid, key, Qt::ControlModifier);
            }
            QTest::keyClick(grid, Qt::Key_Delete);
            QTest::keyClick(grid, Qt::Key_Down);
            QTest::keyClick(grid, Qt::Key_F2);
            window.findChild<QAction*>(u"mnuFileExit"_s)->trigger();
        });
        main.Choose("mnuFileEdit");
        QCOMPARE(rows, 0);
        QCOMPARE(main.Answers.TakeShown(), QStringList{u"frmEdit"_s});
    }

    void EvenRowsArePaleYellowAndReadable() {
        QPalette const before = QApplication::palette();
        QPalette dark = before;
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(dark);
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(1, 1);
            QImage const picture = shown.Grid().viewport()->grab().toImage();
            auto const colours = [&](int row) {
                QRect const cell = shown.Grid().visualRect(shown.Grid().model()->index(row - 1, 1));
                QSet<QRgb> found;
                for (int x = cell.left(); x < cell.right(); ++x) {
                    found.insert(picture.pixel(x, cell.center().y()));
                }
                return found;
            };
            QVERIFY(colours(2).contains(qRgb(255, 255, 128)));
            QVERIFY(!colours(2).contains(qRgb(255, 255, 255)));
            QVERIFY(colours(3).contains(qRgb(0, 0, 0)));
            QVERIFY(!colours(3).contains(qRgb(255, 255, 128)));
            QVERIFY(colours(4).contains(qRgb(255, 255, 128)));
        });
        QApplication::setPalette(before);
    }

    void NumbersStandOnTheRight() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            for (int column = 1; column <= 7; ++column) {
                auto const alignment = shown.Grid()
                                           .model()
                                           ->index(0, column - 1)
                                           .data(Qt::TextAlignmentRole)
                                           .value<Qt::Alignment>();
                QCOMPARE(alignment.testFlag(Qt::AlignRight), column > 1);
            }
        });
    }

    void TheGridFollowsTheWindowAndStaysInside() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            auto& grid = shown.Grid();
            for (QSize const size : {QSize(1000, 700), QSize(500, 300), QSize(200, 120)}) {
                shown.Window->resize(size);
                QCoreApplication::processEvents();
                QSize const client = grid.parentWidget()->size();
                QCOMPARE(grid.width(), client.width()); // a pixel more than there is, but for the bound
                int const wanted = qRound((client.height() * 15 + 690) * 0.88 / 15);
                QCOMPARE(grid.height(), std::min(wanted, client.height()));
            }
        });
    }

    void ColumnsShareTheWidthAtOpening() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        int width = 0;
        shown.Run([&] {
            width = shown.Grid().columnWidth(0);
            QCOMPARE(width, qRound(shown.Grid().width() / 7.9));
            for (int column = 1; column < 7; ++column) {
                QCOMPARE(shown.Grid().columnWidth(column), width);
            }
            QVERIFY(!shown.Grid().horizontalScrollBar()->isVisible());
            shown.Window->resize(700, 500);
            QCoreApplication::processEvents();
            QCOMPARE(shown.Grid().columnWidth(0), width); // it does not follow
        });
    }

    void TypingReplacesACellAndEnterMovesDown() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"55.5"_s);
            QCOMPARE(shown.Text(2, 5), u"55.5"_s);
            QCOMPARE(shown.Cursor(), u"3,5"_s);
            QVERIFY(shown.Grid().hasFocus());
            shown.Press(Qt::Key_Enter);
            QCOMPARE(shown.Cursor(), u"4,5"_s);
            shown.Press(Qt::Key_Return, Qt::ShiftModifier);
            QCOMPARE(shown.Cursor(), u"3,5"_s);
            shown.Type(30, 5, u"1"_s);
            QCOMPARE(shown.Cursor(), u"30,5"_s); // there is nothing below
        });
    }

    void FTwoEditsWhatStandsThere() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 5);
            shown.Press(Qt::Key_F2);
            auto* cell = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            QVERIFY(cell != nullptr);
            QCOMPARE(cell->text(), u"102.00"_s);
            QCOMPARE(cell->accessibleName(), u"Close, row 2"_s);
            shown.Press(Qt::Key_End);
            shown.Press(Qt::Key_5);
            shown.Press(Qt::Key_Return);
            QCOMPARE(shown.Text(2, 5), u"102.005"_s);
        });
    }

    void EscapeGivesUpTheTypingAndNothingElse() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(1, 5, u"9"_s);
            shown.GoTo(2, 5);
            shown.Press(Qt::Key_7);
            shown.Press(Qt::Key_Escape);
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            shown.Press(Qt::Key_Escape);
            QVERIFY(shown.Window->isVisible());
            QCOMPARE(shown.Text(1, 5), u"9"_s);
        });
    }

    void ArrowsAndTabMove() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 2);
            shown.Press(Qt::Key_Down);
            shown.Press(Qt::Key_Right);
            QCOMPARE(shown.Cursor(), u"3,3"_s);
            shown.Press(Qt::Key_Tab);
            QCOMPARE(shown.Cursor(), u"3,4"_s);
            shown.Press(Qt::Key_4);
            shown.Press(Qt::Key_Tab); // takes the text over as well
            QCOMPARE(shown.Text(3, 4), u"4"_s);
            QCOMPARE(shown.Cursor(), u"3,5"_s);
            shown.Press(Qt::Key_Escape); // the next cell is being edited
            shown.Press(Qt::Key_5);
            shown.Press(Qt::Key_Up);
            QCOMPARE(shown.Text(3, 5), u"5"_s);
            QCOMPARE(shown.Cursor(), u"2,5"_s);
        });
    }

    void AClickMovesTheCursorAndADoubleClickEdits() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            QWidget* cells = shown.Grid().viewport();
            QPoint const place = shown.Grid().visualRect(shown.Grid().model()->index(3, 3)).center();
            QTest::mouseClick(cells, Qt::LeftButton, {}, place);
            QCOMPARE(shown.Cursor(), u"4,4"_s);
            QTest::mouseDClick(cells, Qt::LeftButton, {}, place);
            QCOMPARE(QApplication::focusWidget()->objectName(), u"CellEditor"_s);
        });
    }

    void DeleteEmptiesTheSelectedCells() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 5);
            shown.Press(Qt::Key_Right, Qt::ShiftModifier);
            shown.Press(Qt::Key_Down, Qt::ShiftModifier);
            shown.Press(Qt::Key_Delete);
            for (int row : {2, 3}) {
                QCOMPARE(shown.Text(row, 5) + shown.Text(row, 6), u""_s);
                QCOMPARE(shown.Text(row, 7), u"3400"_s);
            }
            QCOMPARE(shown.Text(4, 5), u"104.00"_s);
        });
    }

    void BlocksGoToTheClipboardAndBack() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.GoTo(2, 4);
            shown.Press(Qt::Key_Right, Qt::ShiftModifier);
            shown.Press(Qt::Key_Down, Qt::ShiftModifier);
            shown.Press(Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(Clipboard(), u"102.00\t102.00\n103.00\t103.00\n"_s);
            shown.Press(Qt::Key_X, Qt::ControlModifier);
            QCOMPARE(Clipboard(), u"102.00\t102.00\n103.00\t103.00\n"_s);
            QCOMPARE(shown.Text(3, 5), u""_s);
            shown.GoTo(10, 2);
            shown.Press(Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(shown.Text(10, 2), u"102.00"_s);
            QCOMPARE(shown.Text(11, 3), u"103.00"_s);
            SetClipboard(u"3/5/2002\t1,234.5\r\n"_s);
            shown.GoTo(1, 1);
            shown.Press(Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(shown.Text(1, 1), u"3/5/2002"_s);
            QCOMPARE(shown.Text(1, 2), u"1,234.5"_s);
        });
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmEdit"_s));
    }

    void PastingBehindTheLastRowTellsWhatIsMissing() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            SetClipboard(u"01/01/10\n01/02/10\n01/03/10\n"_s);
            shown.GoTo(29, 1);
            shown.Press(Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(shown.Text(29, 1), u"01/01/10"_s);
            QCOMPARE(shown.Text(30, 1), u"01/02/10"_s);
            QCOMPARE(shown.Grid().model()->rowCount(), 30);
        });
        QCOMPARE(shown.Answers.Shown().mid(1),
                 QStringList(OkMessage(u"Edit"_s, u"exclamation"_s,
                                       u"Cells beyond the last row or column of the grid were left out.\n"
                                       "Append Row adds a row at its end."_s)));
    }

    void CellsTellWhereTheyAre() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(&shown.Grid());
            QCOMPARE(grid->text(QAccessible::Name), u"Daily quotes"_s);
            QCOMPARE(grid->role(), QAccessible::Table);
            QAccessibleInterface* cell = grid->tableInterface()->cellAt(1, 6);
            QCOMPARE(cell->text(QAccessible::Name), u"3400"_s);
            QCOMPARE(cell->text(QAccessible::Description), u"Open Interest, row 2"_s);
        });
    }
};

template struct ListedWindowTest<SpreadGridTest>;

} // namespace quorvex::tests

#include "SpreadGridTest.moc"
