// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QMenu>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QString FocusName() {
    QWidget const* focus = QApplication::focusWidget();
    return focus == nullptr ? QString() : focus->objectName();
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

// What can have the focus, in reading order.
QStringList ReadingOrder() {
    QStringList names = {u"imgOpen"_s,    u"imgClose"_s, u"imgEdit"_s,
                         u"imgConvert"_s, u"imgPrint"_s, u"imgProperties"_s};
    for (int row = 1; row <= 4; ++row) {
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            names.append(u"Text%1_%2"_s.arg(row).arg(cycle));
        }
    }
    return names + QStringList{u"Pic1"_s, u"Pic2"_s, u"Pic3"_s, u"Pic4"_s};
}

} // namespace

class GridPanelTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TabGoesThroughTheWindowInReadingOrder() {
        RunningWindow main;
        main.Window->findChild<QWidget*>(u"imgOpen"_s)->setFocus();
        for (QString const& name : ReadingOrder()) {
            QCOMPARE(FocusName(), name);
            Press(Qt::Key_Tab);
        }
        QCOMPARE(FocusName(), u"imgOpen"_s);
    }

    void BacktabGoesTheOtherWay() {
        RunningWindow main;
        main.Window->findChild<QWidget*>(u"Pic4"_s)->setFocus();
        QStringList names = ReadingOrder();
        while (!names.isEmpty()) {
            QCOMPARE(FocusName(), names.takeLast());
            Press(Qt::Key_Backtab, Qt::ShiftModifier);
        }
    }

    void UpAndDownMoveBetweenTheRows() {
        RunningWindow main;
        main.Cell(1, 3).setFocus();
        Press(Qt::Key_Down);
        QCOMPARE(FocusName(), u"Text2_3"_s);
        Press(Qt::Key_Down);
        Press(Qt::Key_Down);
        QCOMPARE(FocusName(), u"Text4_3"_s);
        Press(Qt::Key_Down);
        QCOMPARE(FocusName(), u"Text4_3"_s);
        for (int step = 0; step < 5; ++step) {
            Press(Qt::Key_Up);
        }
        QCOMPARE(FocusName(), u"Text1_3"_s);
    }

    void EnterMovesDown_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter of the number pad") << Qt::Key_Enter;
    }

    void EnterMovesDown() {
        QFETCH(Qt::Key, key);
        RunningWindow main;
        main.Cell(2, 10).setFocus();
        Press(key);
        QCOMPARE(FocusName(), u"Text3_10"_s);
    }

    void TypingReplacesTheTextOfACellThatIsEntered() {
        RunningWindow main;
        main.Cell(1, 1).setFocus(Qt::TabFocusReason);
        QTest::keyClicks(QApplication::focusWidget(), u"50"_s);
        Press(Qt::Key_Down);
        QTest::keyClicks(QApplication::focusWidget(), u"20"_s);
        Press(Qt::Key_Tab);
        QTest::keyClicks(QApplication::focusWidget(), u"40"_s);
        QCOMPARE(main.Cell(1, 1).text(), u"50"_s);
        QCOMPARE(main.Cell(2, 1).text(), u"20"_s);
        QCOMPARE(main.Cell(2, 2).text(), u"40"_s);
    }

    void HeadersAndCaptionsTakeNoFocus() {
        RunningWindow main;
        main.Cell(1, 1).setFocus();
        QTest::mouseClick(&main.Cell(0, 4), Qt::LeftButton);
        QTest::mouseClick(&main.Cell(3, 0), Qt::LeftButton);
        QCOMPARE(FocusName(), u"Text1_1"_s);
    }

    void AClickIntoACellReachesItThroughTheOutline() {
        RunningWindow main;
        QWidget* client = main.Window->centralWidget();
        QPoint const place = main.Cell(4, 7).geometry().center();
        QCOMPARE(client->childAt(place), &main.Cell(4, 7));
        QTest::mouseClick(client->childAt(place), Qt::LeftButton);
        QCOMPARE(FocusName(), u"Text4_7"_s);
    }

    void ARedrawLeavesTheCursorOfACellThatKeepsItsText() {
        RunningWindow main;
        main.TypeInto(1, 1, u"100"_s);
        main.Cell(1, 1).setCursorPosition(1);
        main.Choose("mnuRefresh");
        QCOMPARE(main.Cell(1, 1).cursorPosition(), 1);
        QCOMPARE(FocusName(), u"Text1_1"_s);
    }

    void CellsAndCaptionsHaveAccessibleNames() {
        RunningWindow main;
        QCOMPARE(main.Cell(1, 3).accessibleName(), u"Cycle 3 Weight"_s);
        QCOMPARE(main.Cell(2, 10).accessibleName(), u"Cycle 10 Period"_s);
        QCOMPARE(main.Cell(3, 1).accessibleName(), u"Cycle 1 Shift"_s);
        QCOMPARE(main.Cell(4, 7).accessibleName(), u"Cycle 7 Decay"_s);
        QCOMPARE(main.Cell(0, 7).accessibleName(), u"Cycle 7"_s);
        QCOMPARE(main.Cell(4, 0).accessibleName(), u"Decay"_s);
    }

    void CaptionsStandInFrontOfTheirRows() {
        RunningWindow main;
        for (int row = 1; row <= 4; ++row) {
            QRect const caption = main.Cell(row, 0).geometry();
            QRect const first = main.Cell(row, 1).geometry();
            QCOMPARE(caption.top(), first.top());
            QCOMPARE(caption.height(), first.height());
            QVERIFY(caption.right() < first.left());
        }
    }

    void AltAndALetterRunACommandOfTheBar() {
        RunningWindow main;
        main.TypeInto(1, 1, u"7"_s);
        Press(Qt::Key_R, Qt::AltModifier);
        QCOMPARE(main.Cell(1, 1).text(), u"100"_s);
        Press(Qt::Key_O, Qt::AltModifier);
        QVERIFY(QTest::qWaitForWindowActive(main.Window.get()));
        Press(Qt::Key_C, Qt::AltModifier);
        QString const noQuotes = OkMessage(u"Quorvex"_s, u"information"_s,
                                           u"Please use File Open option to load a quote data file"_s);
        QCOMPARE(main.Answers.Shown(), QStringList({noQuotes, noQuotes}));
    }

    void AltAndALetterOpenAMenuWhoseLettersChoose() {
        RunningWindow main;
        main.Folder.Write("corn.txt", "");
        main.Answers.Next([](QWidget& window) {
            QCOMPARE(window.objectName(), u"mnuFile"_s);
            QTest::keyClick(&window, Qt::Key_O);
        });
        main.Answers.Escape();
        main.Cell(1, 1).setFocus();
        Press(Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(main.Answers.IsDone());
        QTRY_COMPARE(main.Answers.Shown(), QStringList({u"mnuFile"_s, u"frmQuotes"_s}));
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    }
};

template struct ListedWindowTest<GridPanelTest>;

} // namespace quorvex::tests

#include "GridPanelTest.moc"
