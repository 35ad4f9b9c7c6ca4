// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/QtPictureEncoder.h"

#include "platform/basSvg.h"
#include "platform/pictures/HeadlessApplication.h"
#include "platform/pictures/Painting.h"
#include "text/RunTimeError.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <cmath>

namespace quorvex::platform::pictures {

namespace {

constexpr int PixelsPerInch = 96;
constexpr int PointsPerInch = 72;

void Require(bool isDone) {
    if (!isDone) {
        throw text::RunTimeError(text::Fault::InvalidProcedureCall);
    }
}

QSize PixelSize(PictureSheet const& sheet) {
    return {static_cast<int>(std::ceil(sheet.Width / TwipsPerPixel)),
            static_cast<int>(std::ceil(sheet.Height / TwipsPerPixel))};
}

void PaintBorder(QPainter& painter, QRectF const& box, Medium medium) {
    bool const onPixels = medium == Medium::Pixels;
    painter.setPen(QPen(ToQt(BorderColour), onPixels ? 0 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(onPixels ? box.adjusted(0, 0, -1, -1) : box);
}

void PaintSheet(QPainter& painter, PictureSheet const& sheet, PaintScale scale) {
    painter.fillRect(QRectF(0, 0, sheet.Width * scale.UnitsPerTwip, sheet.Height * scale.UnitsPerTwip),
                     Qt::white);
    for (PlacedDrawing const& placed : sheet.Drawings) {
        QPointF corner(placed.Left * scale.UnitsPerTwip, placed.Top * scale.UnitsPerTwip);
        QSizeF size(placed.Drawing->Width() * scale.UnitsPerTwip,
                    placed.Drawing->Height() * scale.UnitsPerTwip);
        if (scale.On == Medium::Pixels) {
            corner = corner.toPoint();
            size = size.toSize();
        }
        painter.save();
        painter.translate(corner);
        painter.setClipRect(QRectF(QPointF(), size));
        PaintDrawing(painter, *placed.Drawing, scale);
        painter.setClipping(false);
        PaintBorder(painter, QRectF(QPointF(), size), scale.On);
        painter.restore();
    }
}

void PaintSheetOn(QPaintDevice& device, PictureSheet const& sheet, Medium medium) {
    QPainter painter;
    Require(painter.begin(&device));
    PaintSheet(painter, sheet, {1 / TwipsPerPixel, medium});
    Require(painter.end());
}

void WritePng(PictureSheet const& sheet, QBuffer& output) {
    constexpr double InchesPerMetre = 1000 / 25.4;
    QImage image(PixelSize(sheet), QImage::Format_RGB32);
    Require(!image.isNull());
    image.fill(Qt::white); // the sheet ends within the last row and column, whose middle it may not reach
    image.setDotsPerMeterX(static_cast<int>(std::lround(PixelsPerInch * InchesPerMetre)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    PaintSheetOn(image, sheet, Medium::Pixels);
    Require(image.save(&output, "PNG"));
}

void WritePdf(PictureSheet const& sheet, QBuffer& output) {
    QPdfWriter writer(&output);
    writer.setTitle(QStringLiteral("Quorvex"));
    writer.setResolution(PixelsPerInch);
    QSizeF const points(sheet.Width * PointsPerInch / TwipsPerInch,
                        sheet.Height * PointsPerInch / TwipsPerInch);
    writer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    PaintSheetOn(writer, sheet, Medium::Vectors);
}

} // namespace

std::string QtPictureEncoder::Encode(PictureSheet const& sheet, PictureKind kind) {
    if (kind == PictureKind::Svg) {
        return SvgOf(sheet);
    }
    auto const application = StartApplicationWithoutDisplay();
    QBuffer output;
    Require(!PixelSize(sheet).isEmpty() && output.open(QIODevice::WriteOnly));
    if (kind == PictureKind::Png) {
        WritePng(sheet, output);
    } else {
        WritePdf(sheet, output);
    }
    return output.data().toStdString();
}

} // namespace quorvex::platform::pictures
