// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/TextPrinting.h"

#include "platform/qt/SystemJob.h"
#include "text/RunTimeError.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <cmath>
#include <memory>

namespace quorvex::platform::qt {

namespace {

constexpr double PaperMargin = 20; // in millimetres
constexpr double MillimetresPerInch = 25.4;

void Require(bool isPrinted) {
    if (!isPrinted) {
        throw text::RunTimeError(text::Fault::PrinterError);
    }
}

std::unique_ptr<QTextDocument> PartOf(QTextEdit const& text, bool isSelection) {
    if (!isSelection) {
        return std::unique_ptr<QTextDocument>(text.document()->clone());
    }
    auto part = std::make_unique<QTextDocument>();
    part->setResourceProvider([&document = *text.document()](QUrl const& name) {
        return document.resource(QTextDocument::ImageResource, name);
    });
    QTextCursor(part.get()).insertFragment(text.textCursor().selection());
    return part;
}

// Pages of a text, laid out as on the screen and painted in the paper's scale: Qt's own printing leaves
// indents as narrow as on the screen.
class TextPages {
public:
    TextPages(QTextDocument& document, QPagedPaintDevice& paper)
        : document_(document),
          paper_(paper),
          screenDpi_(QGuiApplication::primaryScreen()->logicalDotsPerInchY()) {
        QPageLayout const layout = paper.pageLayout();
        QSizeF const size = layout.fullRect(QPageLayout::Millimeter).size();
        QMarginsF const taken = layout.margins(QPageLayout::Millimeter);
        origin_ = {Dots(PaperMargin - taken.left()), Dots(PaperMargin - taken.top())};
        // Whole dots, as the layout counts them: a page must not show the edge of the next one.
        body_ = {std::floor(Dots(size.width() - 2 * PaperMargin)),
                 std::floor(Dots(size.height() - 2 * PaperMargin))};
        document_.setUseDesignMetrics(true); // letters are to stand as well at the paper's resolution
        document_.setDocumentMargin(0);
        document_.setPageSize(body_);
    }

    void Paint() {
        QPainter painter;
        Require(painter.begin(&paper_));
        painter.scale(paper_.logicalDpiX() / screenDpi_, paper_.logicalDpiY() / screenDpi_);
        painter.translate(origin_);
        for (int page = 0; page < document_.pageCount(); ++page) {
            Require(page == 0 || paper_.newPage());
            PaintPage(painter, page);
        }
        Require(painter.end());
    }

private:
    [[nodiscard]] double Dots(double millimetres) const {
        return millimetres / MillimetresPerInch * screenDpi_;
    }

    // Of the pages, as high in dots as 9 points are on the screen.
    [[nodiscard]] QFont NumberFont() const {
        QFont font = QGuiApplication::font();
        font.setPixelSize(static_cast<int>(std::lround(9 * screenDpi_ / 72)));
        return font;
    }

    void PaintPage(QPainter& painter, int page) {
        painter.save();
        painter.translate(0, -page * body_.height());
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, Qt::black);
        // Without the last dot, which shares pixels with the first one of the next page.
        context.clip = QRectF(0, page * body_.height(), body_.width(), body_.height() - 1);
        painter.setClipRect(context.clip);
        document_.documentLayout()->draw(&painter, context);
        painter.restore();
        painter.setFont(NumberFont());
        QRectF const below(0, body_.height(), body_.width(), Dots(PaperMargin / 2));
        painter.drawText(below, Qt::AlignRight | Qt::AlignBottom, QString::number(page + 1));
    }

    QTextDocument& document_;
    QPagedPaintDevice& paper_;
    double screenDpi_;
    QPointF origin_;
    QSizeF body_;
};

void PrintPart(QTextEdit const& text, bool isSelection, PrintJob& job) {
    auto const part = PartOf(text, isSelection);
    TextPages(*part, job.Device()).Paint();
    job.Finish();
}

} // namespace

void OfferRanges(QPrintDialog& dialog, bool hasSelection) {
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, hasSelection);
    dialog.setPrintRange(hasSelection ? QAbstractPrintDialog::Selection : QAbstractPrintDialog::AllPages);
}

void PrintText(QTextEdit& text, std::string_view documentName, std::string_view folder, Dialogs& dialogs) {
    bool const hasSelection = text.textCursor().hasSelection();
    if (!HasPrinter()) {
        auto const job = StartSystemJob(documentName, folder, PdfPage(),
                                        [&dialogs](Message const& message) { dialogs.Show(message); });
        PrintPart(text, hasSelection, *job);
        return;
    }
    PrinterJob job(documentName);
    QPrintDialog dialog(&job.Device(), &text);
    OfferRanges(dialog, hasSelection);
    if (dialog.exec() == QDialog::Accepted) {
        PrintPart(text, dialog.printRange() == QAbstractPrintDialog::Selection, job);
    }
}

} // namespace quorvex::platform::qt
