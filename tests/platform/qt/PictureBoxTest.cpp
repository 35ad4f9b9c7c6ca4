// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/ModalAnswers.h"
#include "windows/ShownPicture.h"
#include "windows/ToolTips.h"
#include "windows/WindowTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolTip>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QColor const BorderColour(0x80, 0x80, 0x80);
QColor const FocusColour(0x00, 0x66, 0xCC);

// Asks for the context menu, which stays until it is answered.
void AskForMenu(QWidget& box, QContextMenuEvent::Reason reason) {
    QPoint const place(100, 50);
    QContextMenuEvent event(reason, place, box.mapToGlobal(place));
    QCoreApplication::sendEvent(&box, &event);
}

int CursorDots(QWidget& box, int x) {
    QImage const shown = box.grab().toImage();
    int dots = 0;
    for (int y = 1; y < shown.height() - 1; ++y) {
        dots += shown.pixelColor(x, y) == FocusColour ? 1 : 0;
    }
    return dots;
}

// Which pixels along the edges of the box are no border of one pixel.
QString BorderFaults(QImage const& screen, QRect const& box) {
    QString faults;
    auto const require = [&](QPoint pixel, bool isBorder) {
        if ((screen.pixelColor(pixel) == BorderColour) != isBorder) {
            faults += u" %1,%2"_s.arg(pixel.x()).arg(pixel.y());
        }
    };
    for (int x = box.left(); x <= box.right(); ++x) {
        require({x, box.top() - 1}, false);
        require({x, box.top()}, true);
        require({x, box.bottom()}, true);
        require({x, box.bottom() + 1}, false);
    }
    for (int y = box.top(); y <= box.bottom(); ++y) {
        require({box.left() - 1, y}, false);
        require({box.left(), y}, true);
        require({box.right(), y}, true);
        require({box.right() + 1, y}, false);
    }
    QRect const inside = box.adjusted(1, 1, -1, -1);
    for (int x = inside.left(); x <= inside.right(); ++x) {
        require({x, inside.top()}, false);
        require({x, inside.bottom()}, false);
    }
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        require({inside.left(), y}, false);
        require({inside.right(), y}, false);
    }
    return faults;
}

} // namespace

class PictureBoxTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void NothingShowsBeforeTheDrawingIsDone() {
        ShownPicture shown;
        QVERIFY(!shown.Box.ShowDrawing());
        QVERIFY(shown.Box.Picture().isNull());
        shown.Box.Drawing().Resize(4500, 1800);
        shown.Box.Drawing().Clear();
        QVERIFY(shown.Box.Picture().isNull());
        QVERIFY(shown.Box.ShowDrawing());
        QVERIFY(!shown.Box.Picture().isNull());
        QVERIFY(!shown.Box.ShowDrawing());
    }

    void TheDrawingFillsTheBox() {
        ShownPicture shown;
        shown.Draw();
        QImage const& picture = shown.Box.Picture();
        QCOMPARE(picture.size(), shown.Box.size());
        QCOMPARE(picture.pixelColor(45, 30), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(31, 16), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(28, 30), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(63, 30), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(45, 48), QColor(Qt::white));
    }

    void TheBoxIsWhiteWithAThinBorder() {
        ShownPicture shown;
        shown.Draw();
        shown.Box.clearFocus();
        QImage const screen = shown.Box.grab().toImage();
        for (QPoint const corner : {QPoint(0, 0), QPoint(299, 0), QPoint(0, 119), QPoint(299, 119)}) {
            QCOMPARE(screen.pixelColor(corner), BorderColour);
        }
        QCOMPARE(screen.pixelColor(1, 1), QColor(Qt::white));
        QCOMPARE(screen.pixelColor(45, 30), QColor(Qt::blue));
        shown.Box.setFocus();
        QCOMPARE(shown.Box.grab().toImage().pixelColor(0, 0), FocusColour);
    }

    void TheBorderIsOnePixelOnAllSidesAtEveryScale_data() {
        QTest::addColumn<double>("scale");
        for (double const scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
            QTest::addRow("%g", scale) << scale;
        }
    }

    void TheBorderIsOnePixelOnAllSidesAtEveryScale() {
        QFETCH(double, scale);
        ShownPicture shown;
        shown.Draw();
        shown.Box.clearFocus();
        for (int step = 0; step < 16; ++step) {
            QRect const place(1 + step, 2 + step, 100 + step % 4, 60 + step % 5);
            shown.Box.setGeometry(place);
            QImage screen((QSizeF(shown.Window.size()) * scale).toSize(), QImage::Format_RGB32);
            screen.setDevicePixelRatio(scale);
            shown.Window.render(&screen);
            QRect const box(QPoint(qRound(place.x() * scale), qRound(place.y() * scale)),
                            QPoint(qRound((place.x() + place.width()) * scale) - 1,
                                   qRound((place.y() + place.height()) * scale) - 1));
            QCOMPARE(BorderFaults(screen, box), QString());
        }
    }

    void RestingThePointerTellsTheColumn() {
        ShownPicture shown;
        shown.Draw();
        QCOMPARE(ToolTipAt(shown.Box, {92, 20}), u"Column 3\nValue: 1.5"_s);
        QCOMPARE(ToolTipAt(shown.Box, {118, 20}), u"Column 4\nValue: 1.5"_s);
        QVERIFY(ToolTipAt(shown.Box, {210, 20}).contains(u"&lt;b&gt;bold"));
        QCOMPARE(ToolTipAt(shown.Box, {299, 20}), QString());
        QCOMPARE(ToolTipAt(shown.Box, {2, 20}), QString());
    }

    void WithoutReadingsThereIsNothingToTell() {
        ShownPicture shown;
        shown.Draw();
        shown.Box.SetReadings(nullptr);
        shown.Box.setFocus();
        QCOMPARE(ToolTipAt(shown.Box, {92, 20}), QString());
        QTest::keyClick(&shown.Box, Qt::Key_Left);
        QCOMPARE(QToolTip::text(), QString());
        QCOMPARE(CursorDots(shown.Box, 270), 0);
    }

    void ArrowKeysMoveACursorThatTellsItsColumn() {
        ShownPicture shown;
        shown.Draw();
        shown.Box.setFocus();
        QTest::keyClick(&shown.Box, Qt::Key_Left);
        QTest::keyClick(&shown.Box, Qt::Key_Left);
        QVERIFY(QToolTip::text().startsWith(u"Column 9\n"));
        QVERIFY(CursorDots(shown.Box, 270) > 20);
        QTest::keyClick(&shown.Box, Qt::Key_Home);
        QVERIFY(QToolTip::text().startsWith(u"Column 1\n"));
        QVERIFY(CursorDots(shown.Box, 30) > 20);
        QCOMPARE(CursorDots(shown.Box, 270), 0);
        QTest::keyClick(&shown.Box, Qt::Key_Right);
        QVERIFY(QToolTip::text().startsWith(u"Column 2\n"));
    }

    void TheCursorGoesWithTheFocus() {
        ShownPicture shown;
        QWidget other(&shown.Window);
        other.setFocusPolicy(Qt::StrongFocus);
        other.show();
        shown.Draw();
        shown.Box.setFocus();
        QTest::keyClick(&shown.Box, Qt::Key_Home);
        other.setFocus();
        QTRY_COMPARE(QToolTip::text(), QString());
        QCOMPARE(CursorDots(shown.Box, 30), 0);
        shown.Box.setFocus();
        QCOMPARE(CursorDots(shown.Box, 30), 0);
    }

    void TheMenuOffersCopyAndSave() {
        ShownPicture shown;
        ModalAnswers answers;
        QStringList items;
        answers.Next([&items](QWidget& window) {
            for (QAction const* item : qobject_cast<QMenu*>(&window)->actions()) {
                items.append(item->objectName() + u' ' + item->text());
            }
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        AskForMenu(shown.Box, QContextMenuEvent::Mouse);
        QCOMPARE(answers.Shown(), QStringList(u"mnuPicture"_s));
        QCOMPARE(items,
                 QStringList({u"mnuPictureCopy &Copy Image"_s, u"mnuPictureSaveAs Save Image &As..."_s}));
    }

    void TheMenuOfABoxWithoutFilesOffersCopyAlone() {
        platform::qt::PictureBox box(nullptr);
        box.resize(100, 100);
        box.show();
        ModalAnswers answers;
        answers.Next([](QWidget& window) {
            QCOMPARE(window.actions().size(), 1);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        AskForMenu(box, QContextMenuEvent::Keyboard);
        QVERIFY(answers.IsDone());
    }

    void TheMenuComesUpWhereItWasAskedFor() {
        ShownPicture shown;
        ModalAnswers answers;
        for (auto const& [reason, place] : {std::pair(QContextMenuEvent::Mouse, QPoint(100, 50)),
                                            std::pair(QContextMenuEvent::Keyboard, QPoint(150, 60))}) {
            QPoint const expected = shown.Box.mapToGlobal(place);
            answers.Next([expected](QWidget& window) {
                QVERIFY((window.pos() - expected).manhattanLength() <= 4);
                QTest::keyClick(&window, Qt::Key_Escape);
            });
            AskForMenu(shown.Box, reason);
        }
        QVERIFY(answers.IsDone());
    }

    void CommandsOfTheWindowStandAboveALine_data() {
        QTest::addColumn<bool>("byF10");
        QTest::newRow("by the context-menu key") << false;
        QTest::newRow("by Shift+F10") << true;
    }

    void CommandsOfTheWindowStandAboveALine() {
        QFETCH(bool, byF10);
        ShownPicture shown;
        QStringList run;
        shown.Box.OfferCommands({{u"mnuFirst"_s, u"&First..."_s, [&run] { run.append(u"first"_s); }},
                                 {u"mnuSecond"_s, u"&Second"_s, [&run] { run.append(u"second"_s); }}});
        ModalAnswers answers;
        QStringList items;
        answers.Next([&items](QWidget& window) {
            for (QAction const* item : qobject_cast<QMenu*>(&window)->actions()) {
                items.append(item->isSeparator() ? u"-"_s : item->objectName() + u' ' + item->text());
            }
            QTest::keyClick(&window, Qt::Key_S);
            QTest::keyClick(&window, Qt::Key_Return); // two items have this letter
        });
        if (byF10) {
            QTest::keyClick(&shown.Box, Qt::Key_F10, Qt::ShiftModifier);
        } else {
            AskForMenu(shown.Box, QContextMenuEvent::Keyboard);
        }
        QVERIFY(answers.IsDone());
        QCOMPARE(items,
                 QStringList({u"mnuFirst &First..."_s, u"mnuSecond &Second"_s, u"-"_s,
                              u"mnuPictureCopy &Copy Image"_s, u"mnuPictureSaveAs Save Image &As..."_s}));
        QCOMPARE(run, QStringList(u"second"_s));
    }

    void ACommandOfTheWindowRunsByMouse() {
        ShownPicture shown;
        int runs = 0;
        shown.Box.OfferCommands({{u"mnuOnly"_s, u"Only"_s, [&runs] { ++runs; }}});
        ModalAnswers answers;
        answers.Next([](QWidget& window) {
            auto* menu = qobject_cast<QMenu*>(&window);
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[0]).center());
        });
        AskForMenu(shown.Box, QContextMenuEvent::Mouse);
        QCOMPARE(runs, 1);
    }

    void CopyPutsThePictureOnTheClipboard() {
        ShownPicture shown;
        shown.Draw();
        ModalAnswers answers;
        answers.Next([](QWidget& window) { QTest::keyClick(&window, Qt::Key_C); });
        AskForMenu(shown.Box, QContextMenuEvent::Keyboard);
        QImage const copied = QGuiApplication::clipboard()->image();
        QCOMPARE(copied.size(), shown.Box.size());
        QCOMPARE(copied.convertToFormat(QImage::Format_RGB32),
                 shown.Box.Picture().convertToFormat(QImage::Format_RGB32));
    }

    void EscapeLeavesTheClipboardAlone() {
        ShownPicture shown;
        shown.Draw();
        QGuiApplication::clipboard()->setText(u"kept"_s);
        ModalAnswers answers;
        answers.Next([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
        AskForMenu(shown.Box, QContextMenuEvent::Mouse);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"kept"_s);
    }

    void TheBoxIsAChartToPeopleWhoDoNotSeeIt() {
        ShownPicture shown;
        shown.Box.setAccessibleName(u"Some chart"_s);
        shown.Box.setAccessibleDescription(u"What it shows"_s);
        QAccessibleInterface* box = QAccessible::queryAccessibleInterface(&shown.Box);
        QVERIFY(box != nullptr);
        QCOMPARE(box->role(), QAccessible::Chart);
        QCOMPARE(box->text(QAccessible::Name), u"Some chart"_s);
        QCOMPARE(box->text(QAccessible::Description), u"What it shows"_s);
        QVERIFY(box->state().focusable);
    }
};

template struct ListedWindowTest<PictureBoxTest>;

} // namespace quorvex::tests

#include "PictureBoxTest.moc"
