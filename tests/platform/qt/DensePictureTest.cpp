// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/ShownPicture.h"
#include "windows/WindowTest.h"

namespace quorvex::tests {

// Runs on a screen with four pixels to a logical one.
class DensePictureTest final : public WindowTest {
    Q_OBJECT

public:
    static constexpr char const* ScaleFactor = "2";

private Q_SLOTS:

    void ThePictureHasThePixelsOfTheScreen() {
        ShownPicture shown;
        shown.Draw();
        QCOMPARE(shown.Box.devicePixelRatioF(), 2.0);
        QImage const& picture = shown.Box.Picture();
        QCOMPARE(picture.size(), QSize(2 * ShownPicture::Width, 2 * ShownPicture::Height));
        QCOMPARE(picture.devicePixelRatio(), 2.0);
    }

    void TheDrawingHasItsPlaceInDevicePixels() {
        ShownPicture shown;
        shown.Draw();
        QImage const& picture = shown.Box.Picture();
        QCOMPARE(picture.pixelColor(62, 32), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(118, 88), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(57, 60), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(125, 60), QColor(Qt::white));
    }

    // Painted in logical pixels and enlarged, every line would be two pixels wide.
    void AHairlineIsOneDevicePixelWide() {
        ShownPicture shown;
        platform::RecordingCanvas& drawing = shown.Box.Drawing();
        drawing.Resize(4500, 1800);
        drawing.Clear();
        drawing.Line(0, 900, 4500, 900, platform::Black);
        shown.Box.ShowDrawing();
        QImage const& picture = shown.Box.Picture();
        int dark = 0;
        for (int y = 0; y < picture.height(); ++y) {
            dark += picture.pixelColor(300, y) == Qt::black ? 1 : 0;
        }
        QCOMPARE(dark, 1);
    }

    void TheScreenShowsThePictureAsItIs() {
        ShownPicture shown;
        shown.Draw();
        QImage const screen = shown.Box.grab().toImage();
        QCOMPARE(screen.size(), shown.Box.Picture().size());
        QCOMPARE(screen.pixelColor(62, 32), QColor(Qt::blue));
    }
};

template struct ListedWindowTest<DensePictureTest>;

} // namespace quorvex::tests

#include "DensePictureTest.moc"
