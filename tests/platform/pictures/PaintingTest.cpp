// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/Painting.h"

#include "platform/PictureEncoder.h"
#include "platform/pictures/QtPictureEncoder.h"
#include "text/RunTimeError.h"
#include "windows/WindowTest.h"

#include <QImage>
#include <QPainter>
#include <array>
#include <random>

namespace quorvex::tests {

using platform::Fill;
using platform::RecordingCanvas;
using platform::pictures::TwipsPerPixel;

namespace {

// The drawing at so many device pixels to the logical one.
QImage Painted(RecordingCanvas const& drawing, double scale = 1) {
    QImage image(static_cast<int>(drawing.Width() / TwipsPerPixel * scale),
                 static_cast<int>(drawing.Height() / TwipsPerPixel * scale), QImage::Format_RGB32);
    image.fill(Qt::green);
    QPainter painter(&image);
    platform::pictures::PaintDrawing(painter, drawing,
                                     {scale / TwipsPerPixel, platform::pictures::Medium::Pixels});
    return image;
}

// The same, painted as a whole picture.
QImage PaintedPicture(RecordingCanvas const& drawing, double scale, QImage::Format format) {
    QImage image = Painted(drawing, scale).convertToFormat(format);
    image.fill(Qt::green);
    platform::pictures::PaintPicture(image, drawing, scale / TwipsPerPixel);
    return image;
}

// Every kind of operation, inside the canvas, across its edges and far away.
class RandomDrawing {
public:
    explicit RandomDrawing(unsigned seed) : random_(seed) {
        Canvas.Rectangle(-500, -500, 2500, 200, Colour(), Fill::Filled); // which the next line wipes
        Canvas.Clear();
        Canvas.SetFont("Arial", 8, true);
        for (int operation = 0; operation < 1500; ++operation) {
            Draw(Number(9));
        }
    }

    RecordingCanvas Canvas{1507, 1213};

private:
    int Number(unsigned below) { return static_cast<int>(random_() % below); }

    double Coordinate() {
        constexpr std::array<double, 4> Far = {1e9, -1e9, 2'000'000, -40'000};
        return Number(200) == 0 ? Far.at(random_() % Far.size()) : Number(90'000) / 50.0 - 150;
    }

    platform::Colour Colour() { return static_cast<platform::Colour>(Number(0x1000000)); }

    void Draw(int kind) {
        double const x = Coordinate();
        double const y = Coordinate();
        Fill const fill = Number(2) == 0 ? Fill::Filled : Fill::Outline;
        switch (kind) {
        case 0:
            Canvas.Point(x, y, Colour());
            break;
        case 1:
            Canvas.Line(x, y, x + Number(300), y, Colour());
            break;
        case 2:
            Canvas.Line(x, y, x, Coordinate(), Colour());
            break;
        case 3:
            Canvas.Line(x, y, Coordinate(), Coordinate(), Colour());
            break;
        case 4:
            Canvas.Rectangle(x, y, x + Number(120), y - Number(300), Colour(), fill);
            break;
        case 5:
            Canvas.Rectangle(x, y, Coordinate(), Coordinate(), Colour(), Fill::Outline);
            break;
        case 6:
            Canvas.SetForeColour(Colour());
            Canvas.SetTextPosition(x, y);
            Canvas.Print("1234.50");
            break;
        default:
            DrawCurve(Colour());
        }
    }

    void DrawCurve(platform::Colour colour) {
        Canvas.Point(Coordinate(), Coordinate(), colour);
        for (int points = Number(8); points >= 0; --points) {
            Canvas.LineTo(Coordinate(), Coordinate(), colour);
        }
    }

    std::minstd_rand random_;
};

// How many pixels of the column or row have exactly this colour.
int CountInColumn(QImage const& image, int x, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
}

int CountInRow(QImage const& image, int y, QRgb colour) {
    int count = 0;
    for (int x = 0; x < image.width(); ++x) {
        count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
}

constexpr QRgb Black = 0xFF000000;
constexpr QRgb White = 0xFFFFFFFF;

} // namespace

class PaintingTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void LevelAndUprightLinesAreOneDevicePixelWide_data() {
        QTest::addColumn<double>("scale");
        for (double const scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
            QTest::addRow("%g", scale) << scale;
        }
    }

    void LevelAndUprightLinesAreOneDevicePixelWide() {
        QFETCH(double, scale);
        RecordingCanvas drawing(1500, 1500);
        drawing.Line(0, 707, 1500, 707, 0);
        drawing.Rectangle(333, 1500, 338, 1335, 0, Fill::Outline); // a tick
        QImage const image = Painted(drawing, scale);
        QCOMPARE(CountInColumn(image, image.width() - 1, Black), 1);
        QCOMPARE(CountInRow(image, static_cast<int>(707 / TwipsPerPixel * scale), Black), image.width());
        QCOMPARE(CountInRow(image, image.height() - 2, Black), 1);
    }

    void NothingIsSmeared() {
        RecordingCanvas drawing(1500, 1500);
        drawing.Line(0, 707, 1500, 707, 0);
        drawing.Rectangle(300, 200, 400, 600, 0, Fill::Outline);
        QImage const image = Painted(drawing, 1.5);
        for (int y = 0; y < image.height(); ++y) {
            QCOMPARE(CountInRow(image, y, Black) + CountInRow(image, y, White), image.width());
        }
    }

    void AWickStandsInTheMiddleOfItsCandle() {
        for (int x = 700; x < 760; ++x) {
            RecordingCanvas drawing(1500, 1500);
            drawing.Rectangle(x, 100, x + 0.5, 400, 0, Fill::Outline);
            drawing.Rectangle(x - 50, 400, x + 50, 900, 0, Fill::Filled);
            QImage const image = Painted(drawing);
            int const wickRow = 10;
            int const bodyRow = 40;
            int left = 0;
            while (image.pixel(left, bodyRow) != Black) {
                ++left;
            }
            int const width = CountInRow(image, bodyRow, Black);
            QCOMPARE(CountInRow(image, wickRow, Black), 1);
            QCOMPARE(image.pixel(left + width / 2, wickRow), Black);
            QCOMPARE(width % 2, 1);
        }
    }

    void AHollowBodyIsWhiteInside() {
        RecordingCanvas drawing(1500, 1500);
        drawing.Rectangle(300, 300, 400, 900, 0, Fill::Outline);
        drawing.Rectangle(800, 300, 900, 900, 0, Fill::Filled);
        QImage const image = Painted(drawing);
        QCOMPARE(image.pixel(23, 40), White);
        QCOMPARE(image.pixel(56, 40), Black);
        QCOMPARE(CountInRow(image, 40, Black), 2 + 7);
    }

    void AFlatBodyIsALine() {
        RecordingCanvas drawing(1500, 1500);
        drawing.Rectangle(300, 700, 400, 700, 0, Fill::Outline);
        QImage const image = Painted(drawing);
        QCOMPARE(CountInColumn(image, 23, Black), 1);
    }

    void ACurveIsAntialiasedInItsColour() {
        RecordingCanvas drawing(1500, 1500);
        drawing.Point(0, 0, platform::Magenta);
        drawing.LineTo(700, 500, platform::Magenta);
        drawing.LineTo(1500, 1400, platform::Magenta);
        QImage const image = Painted(drawing);
        int between = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QRgb const pixel = image.pixel(x, y);
                QCOMPARE(qRed(pixel), 255);
                QCOMPARE(qBlue(pixel), 255);
                between += qGreen(pixel) > 0 && qGreen(pixel) < 255 ? 1 : 0;
            }
        }
        QVERIFY(between > 100);
    }

    void TextHasTheForeColourAndStaysOffTheEdge() {
        RecordingCanvas drawing(1500, 1500);
        drawing.SetForeColour(0xC00000);
        drawing.SetFont("Arial", 8, true);
        drawing.SetTextPosition(0, 0);
        drawing.Print("IIIII");
        QImage const image = Painted(drawing);
        QCOMPARE(CountInColumn(image, 0, White), image.height());
        QVERIFY(CountInRow(image, 7, 0xFFC00000) > 0);
        QCOMPARE(CountInRow(image, 20, White), image.width());
    }

    void AClearWipesWhatWasThere() {
        RecordingCanvas drawing(1500, 1500);
        drawing.Rectangle(0, 0, 1500, 1500, 0, Fill::Filled);
        drawing.Clear();
        QImage const image = Painted(drawing);
        for (int y = 0; y < image.height(); ++y) {
            QCOMPARE(CountInRow(image, y, White), image.width());
        }
    }

    void WhatLiesFarAwayDoesNoHarm() {
        RecordingCanvas drawing(1500, 1500);
        for (double const far : {1e9, -1e9, 1e300, -1e300}) {
            drawing.Rectangle(700, far, 701, -far, 0, Fill::Outline);
            drawing.Line(0, far, 1500, far, 0);
            drawing.Point(0, 700, 0);
            drawing.LineTo(800, far, 0);
            drawing.LineTo(1500, 700, 0);
            drawing.SetTextPosition(far, far);
            drawing.Print("far");
        }
        QImage const image = Painted(drawing);
        QCOMPARE(CountInColumn(image, 46, Black), image.height());
    }

    void AWholePictureIsPixelByPixelWhatAPainterPaints_data() {
        QTest::addColumn<double>("scale");
        for (double const scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
            QTest::addRow("%g", scale) << scale;
        }
    }

    void AWholePictureIsPixelByPixelWhatAPainterPaints() {
        QFETCH(double, scale);
        for (unsigned seed = 1; seed <= 5; ++seed) {
            RandomDrawing const drawing(seed);
            QImage const expected = Painted(drawing.Canvas, scale);
            for (auto const format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
                QImage const picture = PaintedPicture(drawing.Canvas, scale, format);
                QCOMPARE(picture.convertToFormat(QImage::Format_RGB32), expected);
            }
        }
    }

    void WhatNoDrawingReachesStaysAsItWas() {
        RecordingCanvas drawing(300, 300);
        drawing.Clear();
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::green);
        platform::pictures::PaintPicture(picture, drawing, 1 / TwipsPerPixel);
        QCOMPARE(picture.pixelColor(19, 19), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(20, 19), QColor(Qt::green));
        QCOMPARE(picture.pixelColor(19, 20), QColor(Qt::green));
    }

    void ASheetWithoutAnExtentIsAFault() {
        RecordingCanvas const drawing(1500, 0);
        std::array<platform::PlacedDrawing, 1> const placed = {{{0, 0, &drawing}}};
        platform::pictures::QtPictureEncoder encoder;
        for (auto const kind :
             {platform::PictureKind::Png, platform::PictureKind::Svg, platform::PictureKind::Pdf}) {
            QVERIFY_THROWS_EXCEPTION(text::RunTimeError,
                                     static_cast<void>(encoder.Encode({1500, 0, placed}, kind)));
        }
    }

    void APngHasTheChartsInsideTheirBorders() {
        RecordingCanvas drawing(1500, 1500);
        drawing.Rectangle(-3000, -3000, 3000, 3000, 0xFF0000, Fill::Filled); // beyond the box
        std::array<platform::PlacedDrawing, 1> const placed = {{{150, 150, &drawing}}};
        platform::pictures::QtPictureEncoder encoder;
        auto const png = encoder.Encode({1800, 1800, placed}, platform::PictureKind::Png);
        QImage const image = QImage::fromData(QByteArray::fromStdString(png), "PNG");
        QCOMPARE(image.size(), QSize(120, 120));
        QCOMPARE(image.pixel(9, 60), White);
        QCOMPARE(image.pixel(10, 60), 0xFF000000 | platform::pictures::BorderColour);
        QCOMPARE(image.pixel(11, 60), 0xFFFF0000);
        QCOMPARE(image.pixel(110, 60), White);
    }

    void APngIsWhiteWhereItsSizeIsRoundedUp() {
        RecordingCanvas drawing(1500, 1500);
        drawing.Clear();
        std::array<platform::PlacedDrawing, 1> const placed = {{{0, 0, &drawing}}};
        platform::pictures::QtPictureEncoder encoder;
        auto const png = encoder.Encode({1503, 1503, placed}, platform::PictureKind::Png);
        QImage const image = QImage::fromData(QByteArray::fromStdString(png), "PNG");
        QCOMPARE(image.size(), QSize(101, 101));
        QCOMPARE(CountInColumn(image, 100, White), 101);
        QCOMPARE(CountInRow(image, 100, White), 101);
    }

    // Which have no rows of 32 bits, or a painter that counts in larger units.
    void OtherPicturesArePaintedByAPainter_data() {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<int>("ratio");
        QTest::addRow("24 bits") << QImage::Format_RGB888 << 1;
        QTest::addRow("16 bits") << QImage::Format_RGB16 << 1;
        QTest::addRow("dense") << QImage::Format_RGB32 << 2;
    }

    void OtherPicturesArePaintedByAPainter() {
        QFETCH(QImage::Format, format);
        QFETCH(int, ratio);
        RecordingCanvas drawing(1500, 1500);
        drawing.Rectangle(300, 300, 900, 900, 0xFF0000, Fill::Filled);
        QImage picture(100 * ratio, 100 * ratio, format);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::green);
        platform::pictures::PaintPicture(picture, drawing, 1.0 / TwipsPerPixel);
        QCOMPARE(picture.pixelColor(40 * ratio, 40 * ratio), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(10 * ratio, 10 * ratio), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(100 * ratio - 1, 100 * ratio - 1), QColor(Qt::white));
    }
};

template struct ListedWindowTest<PaintingTest>;

} // namespace quorvex::tests

#include "PaintingTest.moc"
