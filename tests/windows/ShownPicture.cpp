// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/ShownPicture.h"

#include "platform/pictures/Painting.h"

#include <QTest>
#include <cmath>
#include <stdexcept>

namespace quorvex::tests {

namespace {

using platform::pictures::TwipsPerPixel;

constexpr double ColumnWidth = 30 * TwipsPerPixel;

} // namespace

int TenColumns::ColumnAt(double place) const {
    return static_cast<int>(std::lround(place / ColumnWidth));
}

double TenColumns::PlaceOf(int column) const {
    return column * ColumnWidth;
}

std::string TenColumns::Describe(int column) const {
    switch (column) {
    case 7:
        return "<b>bold</b>";
    case 10:
        return {};
    default:
        return "Column " + std::to_string(column) + "\nValue: 1.5";
    }
}

ShownPicture::ShownPicture() {
    Window.resize(Width, Height);
    Box.setGeometry(0, 0, Width, Height);
    Box.SetReadings(&Readings);
    Box.OfferSaving(Files, Dialogs, QStringLiteral("Some chart"));
    Window.show();
    Window.activateWindow();
    if (!QTest::qWaitForWindowActive(&Window)) {
        throw std::logic_error("The window does not come up");
    }
}

void ShownPicture::Draw() {
    platform::RecordingCanvas& drawing = Box.Drawing();
    drawing.Resize(Width * TwipsPerPixel, Height * TwipsPerPixel);
    drawing.Clear();
    drawing.Rectangle(30 * TwipsPerPixel, 15 * TwipsPerPixel, 60 * TwipsPerPixel, 45 * TwipsPerPixel,
                      0x0000FF, platform::Fill::Filled);
    Box.ShowDrawing();
}

} // namespace quorvex::tests
