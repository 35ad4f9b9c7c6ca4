// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/PrintedPdf.h"

#include "support/TemporaryFolder.h"

#include <QProcess>
#include <QXmlStreamReader>
#include <stdexcept>

namespace quorvex::tests {

namespace {

constexpr double PointsPerInch = 72;
constexpr int Dark = 128; // of 255

QByteArray Run(QString const& program, QStringList const& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() +
                                 " failed: " + process.readAllStandardError().toStdString());
    }
    return process.readAllStandardOutput();
}

double Inches(QXmlStreamReader const& element, char const* name) {
    return element.attributes().value(QLatin1String(name)).toDouble() / PointsPerInch;
}

std::vector<PrintedPage> ReadWords(QString const& file) {
    QXmlStreamReader reader(
        Run(QStringLiteral(QUORVEX_PDFTOTEXT), {QStringLiteral("-bbox"), file, QStringLiteral("-")}));
    std::vector<PrintedPage> pages;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("page")) {
            pages.push_back({QSizeF(Inches(reader, "width"), Inches(reader, "height")), {}, {}});
        } else if (reader.isStartElement() && reader.name() == QLatin1String("word")) {
            QRectF const box(QPointF(Inches(reader, "xMin"), Inches(reader, "yMin")),
                             QPointF(Inches(reader, "xMax"), Inches(reader, "yMax")));
            pages.back().Words.push_back({reader.readElementText(), box});
        }
    }
    if (reader.hasError()) {
        throw std::runtime_error(reader.errorString().toStdString());
    }
    return pages;
}

QImage Render(QString const& file, std::size_t page) {
    QString const number = QString::number(page + 1);
    QByteArray const picture = Run(QStringLiteral(QUORVEX_PDFTOPPM),
                                   {QStringLiteral("-gray"), QStringLiteral("-r"),
                                    QString::number(static_cast<int>(PictureResolution)),
                                    QStringLiteral("-f"), number, QStringLiteral("-l"), number, file});
    QImage const image = QImage::fromData(picture, "PGM");
    if (image.isNull()) {
        throw std::runtime_error("There is no picture of the page.");
    }
    return image.convertToFormat(QImage::Format_Grayscale8);
}

} // namespace

bool PrintedPage::IsDark(double x, double y) const {
    QPoint const dot(static_cast<int>(x * PictureResolution), static_cast<int>(y * PictureResolution));
    return Picture.rect().contains(dot) && qGray(Picture.pixel(dot)) < Dark;
}

QRectF PrintedPage::Ink() const {
    QRect ink;
    for (int y = 0; y < Picture.height(); ++y) {
        for (int x = 0; x < Picture.width(); ++x) {
            if (qGray(Picture.pixel(x, y)) < Dark) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return {QPointF(ink.topLeft()) / PictureResolution, QSizeF(ink.size()) / PictureResolution};
}

std::vector<PrintedPage> ReadPdf(std::string const& pdf) {
    TemporaryFolder const folder;
    folder.Write("printed.pdf", pdf);
    QString const file = QString::fromStdString(folder.File("printed.pdf"));
    auto pages = ReadWords(file);
    for (std::size_t page = 0; page < pages.size(); ++page) {
        pages[page].Picture = Render(file, page);
    }
    return pages;
}

QString WordsOf(std::string const& pdf) {
    QStringList words;
    for (PrintedPage const& page : ReadPdf(pdf)) {
        for (PrintedWord const& word : page.Words) {
            words.append(word.Text);
        }
    }
    return words.join(u' ');
}

} // namespace quorvex::tests
