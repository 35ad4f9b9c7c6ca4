// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/TextPrinting.h"

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

double ScreenDpi() {
    constexpr double UsualDpi = 96;
    QScreen const* screen = QGuiApplication::primaryScreen(); // a remote one may have gone
    return screen == nullptr ? UsualDpi : screen->logicalDotsPerInchY();
}

// Pages of a text, laid out as on the screen and painted in the paper's scale: Qt's own printing leaves
// indents as narrow as on the screen.
class TextPages {
public:
    TextPages(QTextDocument& document, QPagedPaintDevice& paper)
        : document_(document),
          paper_(paper),
          screenDpi_(ScreenDpi()) {
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
        pictures::RequirePrinted(painter.begin(&paper_));
        painter.scale(paper_.logicalDpiX() / screenDpi_, paper_.logicalDpiY() / screenDpi_);
        painter.translate(origin_);
        for (int page = 0; page < document_.pageCount(); ++page) {
            pictures::RequirePrinted(page == 0 || paper_.newPage());
            PaintPage(painter, page);
        }
        pictures::RequirePrinted(painter.end());
    }

private:
    [[nodiscard]] double Dots(double millimetres) const {
        return millimetres / MillimetresPerInch * screenDpi_;
    }

    // Page numbers are as high in dots as 9 points are on the screen.
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
        if (page + 1 == document_.pageCount()) {
            return; // nobody has to put a single page in order
        }
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

} // namespace

TextPrintDialog::TextPrintDialog(PrinterJob& job, bool hasSelection, QWidget* parent)
    : dialog_(&job.Device(), parent),
      hasSelection_(hasSelection) {
    dialog_.setObjectName(QStringLiteral("PrintDialog"));
    dialog_.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog_.setOption(QAbstractPrintDialog::PrintSelection, hasSelection);
    dialog_.setPrintRange(hasSelection ? QAbstractPrintDialog::Selection : QAbstractPrintDialog::AllPages);
}

PrintRange TextPrintDialog::Offered() const {
    return hasSelection_ ? PrintRange::Selection : PrintRange::All;
}

std::optional<PrintRange> TextPrintDialog::Show() {
    if (dialog_.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog_.printRange() == QAbstractPrintDialog::Selection ? PrintRange::Selection : PrintRange::All;
}

PrintedText::PrintedText(QTextEdit const& text) : whole_(text.document()->clone()) {
    if (text.textCursor().hasSelection()) {
        selection_ = std::make_unique<QTextDocument>();
        selection_->setResourceProvider([&whole = *whole_](QUrl const& name) {
            return whole.resource(QTextDocument::ImageResource, name);
        });
        QTextCursor(selection_.get()).insertFragment(text.textCursor().selection());
    }
}

void PrintedText::Print(PrintRange range, pictures::PrintJob& job) {
    TextPages(range == PrintRange::Selection ? *selection_ : *whole_, job.Device()).Paint();
    job.Finish();
}

void PrintedText::PrintAsChosen(PrinterJob& job, Dialogs& dialogs, QWidget* parent) {
    TextPrintDialog dialog(job, HasSelection(), parent);
    if (auto const range = dialogs.AskWhatToPrint(dialog)) {
        Print(*range, job);
    }
}

void PrintText(QTextEdit& text, std::string_view documentName, std::string_view folder, Dialogs& dialogs) {
    // Before any dialog: what happens to the text while one is open must not change what is printed.
    PrintedText printed(text);
    if (!HasPrinter()) {
        auto const job = StartSystemJob(documentName, folder, pictures::PdfPage(),
                                        [&dialogs](Message const& message) { dialogs.Show(message); });
        printed.Print(printed.HasSelection() ? PrintRange::Selection : PrintRange::All, *job);
        return;
    }
    PrinterJob job(documentName);
    printed.PrintAsChosen(job, dialogs, &text);
}

} // namespace quorvex::platform::qt
