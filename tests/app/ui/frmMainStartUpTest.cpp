// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/layout/basLayout.h"
#include "platform/pictures/Painting.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QFrame>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::TwipsPerPixel;

namespace {

// The frame that the layout counts in, in twips.
constexpr double FrameWidth = 120;
constexpr double FrameHeight = 690;

int TickCount(platform::qt::PictureBox& box) {
    return static_cast<int>(std::ranges::count(box.Drawing().Operations(),
                                               platform::DrawingOperation::Kind::Rectangle,
                                               &platform::DrawingOperation::What));
}

// Whether a tick of so many columns stands at the lower edge of the picture where the column is.
bool HasTick(QImage const& picture, int column, int columns) {
    int const x = column * picture.width() / (columns + 1);
    int const y = picture.height() - 3;
    for (int near = x - 2; near <= x + 2; ++near) {
        if (picture.pixelColor(near, y) == Qt::black) {
            return true;
        }
    }
    return false;
}

bool IsNear(double pixels, double twips) {
    return std::abs(pixels - twips / TwipsPerPixel) <= 1;
}

void VerifyPlace(QRect const& place, QString const& name, app::layout::Rectangle const& expected) {
    bool const isThere = IsNear(place.left(), expected.Left) && IsNear(place.top(), expected.Top) &&
                         IsNear(place.left() + place.width(), expected.Left + expected.Width) &&
                         IsNear(place.top() + place.height(), expected.Top + expected.Height);
    QVERIFY2(isThere, qPrintable(u"%1 is at %2,%3 in the size %4 x %5"_s.arg(name)
                                     .arg(place.left())
                                     .arg(place.top())
                                     .arg(place.width())
                                     .arg(place.height())));
}

QRect PlaceOf(RunningWindow const& main, QString const& name) {
    auto const* control = main.Window->findChild<QWidget*>(name);
    return control == nullptr ? QRect() : control->geometry();
}

} // namespace

class frmMainStartUpTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheCaptionIsTheNameOfTheProgram() {
        RunningWindow main;
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
        QCOMPARE(main.Window->objectName(), u"frmMain"_s);
        QVERIFY(main.Answers.Shown().isEmpty());
    }

    void TheChartsAreDrawnOnce() {
        RunningWindow main;
        QTRY_VERIFY(main.Box(2).Drawing().ClearCount() > 0);
        QTest::qWait(0);
        for (int box = 1; box <= 4; ++box) {
            QCOMPARE(main.Box(box).Drawing().ClearCount(), 1);
        }
    }

    void EveryCellHoldsZero() {
        RunningWindow main;
        for (int row = 1; row <= 4; ++row) {
            QCOMPARE(main.RowTexts(row), u"0 0 0 0 0 0 0 0 0 0"_s);
        }
    }

    void HeadersNumberTheCyclesAndRowsAreCalledByTheirParameters() {
        RunningWindow main;
        QCOMPARE(main.RowTexts(0), u"Cycle 1 Cycle 2 Cycle 3 Cycle 4 Cycle 5 Cycle 6 Cycle 7 Cycle 8 Cycle 9 "
                                   u"Cycle 10"_s);
        QCOMPARE(main.Cell(1, 0).text(), u"Weight"_s);
        QCOMPARE(main.Cell(2, 0).text(), u"Period"_s);
        QCOMPARE(main.Cell(3, 0).text(), u"Shift"_s);
        QCOMPARE(main.Cell(4, 0).text(), u"Decay"_s);
        for (int row = 0; row <= 4; ++row) {
            for (int cycle = 0; cycle <= cycles::CycleCount; ++cycle) {
                if (row > 0 || cycle > 0) {
                    QCOMPARE(main.Cell(row, cycle).isReadOnly(), row == 0 || cycle == 0);
                }
            }
        }
    }

    void TheWindowStandsInTheMiddleOfTheScreen() {
        RunningWindow main;
        QPoint const off =
            main.Window->frameGeometry().center() - main.Window->screen()->availableGeometry().center();
        QVERIFY2(off.manhattanLength() <= 4, qPrintable(u"%1,%2"_s.arg(off.x()).arg(off.y())));
    }

    void TheChartsHaveAHundredColumns() {
        RunningWindow main;
        for (int number = 1; number <= 4; ++number) {
            QCOMPARE(TickCount(main.Box(number)), 100);
            QImage const picture = main.Picture(number);
            QCOMPARE(picture.size(), main.Box(number).size());
            for (int const column : {1, 37, 50, 100}) {
                QVERIFY(HasTick(picture, column, 100));
            }
            QVERIFY(!picture.allGray() || picture.pixelColor(picture.width() / 2, 3) == Qt::white);
        }
    }

    void TheChartsTellThatTheyAreEmpty() {
        RunningWindow main;
        QCOMPARE(main.Box(1).accessibleDescription(), u"No quote file is open."_s);
        QCOMPARE(main.Box(2).accessibleDescription(), u"No cycle is active."_s);
        QCOMPARE(main.Box(3).accessibleDescription(), u"No cycle is active."_s);
        QCOMPARE(main.Box(4).accessibleDescription(), u"No quote file is open."_s);
    }

    void EveryControlStandsWhereTheLayoutWantsIt_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("as it starts") << QSize();
        QTest::newRow("narrow") << QSize(640, 700);
        QTest::newRow("wide") << QSize(1900, 600);
        QTest::newRow("large") << QSize(2561, 1443);
    }

    void EveryControlStandsWhereTheLayoutWantsIt() {
        QFETCH(QSize, size);
        RunningWindow main;
        if (size.isValid()) {
            main.Window->resize(size);
            QTRY_COMPARE(main.Window->size(), size);
        }
        QWidget const& client = *main.Window->centralWidget();
        auto const layout = app::layout::LayoutMainWindow(client.width() * TwipsPerPixel + FrameWidth,
                                                          client.height() * TwipsPerPixel + FrameHeight,
                                                          app::layout::IconStripHeight);
        VerifyPlace(PlaceOf(main, u"picIcon"_s), u"picIcon"_s,
                    {0, 0, layout.IconStripWidth, app::layout::IconStripHeight});
        VerifyPlace(PlaceOf(main, u"Frame1"_s), u"Frame1"_s, layout.Grid.Frame1);
        VerifyPlace(PlaceOf(main, u"Shape1"_s), u"Shape1"_s, layout.Grid.Shape1);
        for (std::size_t row = 0; row < layout.Grid.Cells.size(); ++row) {
            for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
                // The lines above a cell and on its left belong to it.
                QString const name = u"Text%1_%2"_s.arg(row).arg(cycle);
                VerifyPlace(PlaceOf(main, name).adjusted(-1, -1, 0, 0), name,
                            layout.Grid.Cells.at(row)[cycle]);
            }
        }
        for (std::size_t box = 0; box < layout.Charts.size(); ++box) {
            QString const name = u"Pic%1"_s.arg(box + 1);
            VerifyPlace(PlaceOf(main, name), name, layout.Charts.at(box));
        }
    }

    void TheLowestChartEndsInsideTheWindow() {
        RunningWindow main;
        for (int const height : {500, 650, 900, 1300}) {
            main.Window->resize(900, height);
            QTRY_COMPARE(main.Window->height(), height);
            QWidget const& client = *main.Window->centralWidget();
            QVERIFY(main.Box(4).geometry().bottom() < client.height());
            QVERIFY(main.Box(4).geometry().bottom() > client.height() - 40);
            QVERIFY(main.Box(1).geometry().right() < client.width());
        }
    }

    void EveryCellIsLargeEnoughForItsText() {
        RunningWindow main;
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            QLineEdit const& header = main.Cell(0, cycle);
            QVERIFY(header.fontMetrics().horizontalAdvance(header.text()) <= header.width());
            QVERIFY(header.fontMetrics().height() <= header.height());
        }
        for (int row = 1; row <= 4; ++row) {
            QLineEdit const& caption = main.Cell(row, 0);
            QVERIFY(caption.fontMetrics().horizontalAdvance(caption.text()) <= caption.width());
        }
    }

    void AWindowThatIsTooSmallForItsChartsComesBack() {
        RunningWindow main;
        QImage const before = main.Picture(1);
        QSize const size = main.Window->size();
        for (QSize const& tiny : {QSize(60, 60), QSize(1, 1)}) {
            main.Window->resize(tiny);
            QCoreApplication::processEvents();
            main.Choose("mnuRefresh");
        }
        QVERIFY(main.Picture(1).isNull());
        QVERIFY(main.Answers.Shown().isEmpty());
        main.Window->resize(size);
        QTRY_COMPARE(main.Picture(1), before);
    }

    void TwoProgramsLiveSideBySide() {
        RunningWindow one;
        RunningWindow other;
        other.TypeInto(1, 1, u"50"_s);
        other.TypeInto(2, 1, u"20"_s);
        other.Choose("mnuRefresh");
        one.Choose("mnuRefresh");
        QCOMPARE(other.Cell(1, 1).text(), u"100"_s);
        QCOMPARE(one.Cell(1, 1).text(), u"0"_s);
        QCOMPARE(one.Data->Cycles.Cycles[1].Period, 0.0);
    }
};

template struct ListedWindowTest<frmMainStartUpTest>;

} // namespace quorvex::tests

#include "frmMainStartUpTest.moc"
