// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/ui/basRichTextView.h"

#include "auxiliary/ui/RichTextPictures.h"
#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"

#include <QFrame>
#include <QImage>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextTable>
#include <algorithm>
#include <variant>

namespace quorvex::auxiliary::ui {

namespace {

using platform::pictures::ToQt;
using platform::pictures::TwipsPerPixel;

double Pixels(int twips) {
    return twips / TwipsPerPixel;
}

Qt::Alignment AlignmentOf(richtext::Alignment alignment) {
    switch (alignment) {
    case richtext::Alignment::Right:
        return Qt::AlignRight;
    case richtext::Alignment::Centre:
        return Qt::AlignHCenter;
    case richtext::Alignment::Justified:
        return Qt::AlignJustify;
    case richtext::Alignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

QTextOption::TabType TabTypeOf(richtext::TabKind kind) {
    switch (kind) {
    case richtext::TabKind::Right:
        return QTextOption::RightTab;
    case richtext::TabKind::Centre:
        return QTextOption::CenterTab;
    case richtext::TabKind::Decimal:
        return QTextOption::DelimiterTab;
    case richtext::TabKind::Left:
        break;
    }
    return QTextOption::LeftTab;
}

class Builder {
public:
    Builder(richtext::RichTextDocument const& document, QTextDocument& shown)
        : document_(document),
          shown_(shown) {}

    void Build() {
        QTextCursor cursor(&shown_);
        cursor.beginEditBlock(); // one change instead of one for each piece
        AddBlocks(document_.Blocks, cursor);
        cursor.endEditBlock();
    }

private:
    // Every document and cell begins with an empty block, and one stands behind every table: a paragraph
    // there goes into it.
    void AddBlocks(std::vector<richtext::Block> const& blocks, QTextCursor& cursor) {
        bool isInEmptyBlock = true;
        int spaceAfter = 0; // of the block before
        for (richtext::Block const& block : blocks) {
            if (auto const* paragraph = std::get_if<richtext::Paragraph>(&block.Content)) {
                AddParagraph(*paragraph, cursor, isInEmptyBlock);
                isInEmptyBlock = false;
                spaceAfter = paragraph->Format.SpaceAfter;
            } else {
                AddTable(std::get<richtext::Table>(block.Content), spaceAfter, cursor);
                isInEmptyBlock = true;
                spaceAfter = 0;
            }
        }
    }

    void AddParagraph(richtext::Paragraph const& paragraph, QTextCursor& cursor, bool isInEmptyBlock) {
        QTextBlockFormat const format = FormatOf(paragraph.Format);
        if (isInEmptyBlock) {
            cursor.setBlockFormat(format);
        } else {
            cursor.insertBlock(format);
        }
        if (!paragraph.Marker.empty()) {
            cursor.insertText(ToQt(paragraph.Marker) + u'\t', MarkerFormat(paragraph));
        }
        for (richtext::Inline const& part : paragraph.Content) {
            if (auto const* run = std::get_if<richtext::TextRun>(&part)) {
                cursor.insertText(ToQt(run->Text), FormatOf(run->Style));
            } else {
                AddPicture(std::get<richtext::Picture>(part), cursor);
            }
        }
    }

    QTextCharFormat MarkerFormat(richtext::Paragraph const& paragraph) const {
        for (richtext::Inline const& part : paragraph.Content) {
            if (auto const* run = std::get_if<richtext::TextRun>(&part)) {
                return FormatOf(run->Style);
            }
        }
        return FormatOf(richtext::CharacterStyle());
    }

    void AddPicture(richtext::Picture const& picture, QTextCursor& cursor) const {
        QImage const image = QImage::fromData(QByteArray::fromStdString(picture.Png), "PNG");
        if (image.isNull()) {
            return; // a damaged picture leaves its place empty
        }
        QString const name = QStringLiteral("picture-%1").arg(image.cacheKey());
        shown_.addResource(QTextDocument::ImageResource, QUrl(name), image);
        QTextImageFormat format;
        format.setName(name);
        if (picture.Width > 0 && picture.Height > 0) {
            format.setWidth(Pixels(picture.Width));
            format.setHeight(Pixels(picture.Height));
        }
        cursor.insertImage(format);
    }

    // Qt leaves no room of the paragraph's between it and a table.
    void AddTable(richtext::Table const& table, int spaceBefore, QTextCursor& cursor) {
        QTextTableFormat format = FormatOf(table);
        format.setTopMargin(Pixels(spaceBefore));
        QTextTable* shown = cursor.insertTable(static_cast<int>(table.Rows.size()),
                                               static_cast<int>(table.ColumnWidths.size()), format);
        for (std::size_t row = 0; row < table.Rows.size(); ++row) {
            for (richtext::TableCell const& cell : table.Rows[row].Cells) {
                AddCell(cell, static_cast<int>(row), *shown);
            }
        }
        cursor.setPosition(shown->lastPosition() + 1);
    }

    void AddCell(richtext::TableCell const& cell, int row, QTextTable& table) {
        if (cell.ColumnSpan > 1) {
            table.mergeCells(row, cell.Column, 1, cell.ColumnSpan);
        }
        QTextTableCell shown = table.cellAt(row, cell.Column);
        QTextTableCellFormat format = shown.format().toTableCellFormat();
        if (cell.Shading) {
            format.setBackground(platform::pictures::ToQt(*cell.Shading));
        }
        shown.setFormat(format);
        QTextCursor cursor = shown.firstCursorPosition();
        AddBlocks(cell.Blocks, cursor);
    }

    static bool HasBorders(richtext::Table const& table) {
        return std::ranges::any_of(table.Rows, [](richtext::TableRow const& row) {
            return std::ranges::any_of(row.Cells, [](richtext::TableCell const& cell) {
                return std::ranges::any_of(cell.Borders,
                                           [](richtext::Border const& border) { return border.Width > 0; });
            });
        });
    }

    static QTextTableFormat FormatOf(richtext::Table const& table) {
        constexpr double Padding = 4;
        QTextTableFormat format;
        QList<QTextLength> widths;
        for (int const width : table.ColumnWidths) {
            widths.append(QTextLength(QTextLength::FixedLength, Pixels(width)));
        }
        format.setColumnWidthConstraints(widths);
        format.setCellPadding(Padding);
        format.setCellSpacing(0);
        format.setBorder(HasBorders(table) ? 1 : 0);
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setLeftMargin(Pixels(table.Rows.front().Left));
        int headers = 0;
        while (headers < static_cast<int>(table.Rows.size()) &&
               table.Rows[static_cast<std::size_t>(headers)].IsHeader) {
            ++headers;
        }
        format.setHeaderRowCount(headers);
        return format;
    }

    QTextBlockFormat FormatOf(richtext::ParagraphFormat const& paragraph) const {
        QTextBlockFormat format;
        format.setAlignment(AlignmentOf(paragraph.Alignment));
        format.setLeftMargin(Pixels(paragraph.LeftIndent));
        format.setRightMargin(Pixels(paragraph.RightIndent));
        format.setTextIndent(Pixels(paragraph.FirstLineIndent));
        format.setTopMargin(Pixels(paragraph.SpaceBefore));
        format.setBottomMargin(Pixels(paragraph.SpaceAfter));
        if (paragraph.PageBreakBefore) {
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        }
        format.setTabPositions(TabsOf(paragraph));
        return format;
    }

    // Qt counts tab stops from where the line begins, which is meant to be the first one here; a hanging
    // indent is a stop as well.
    QList<QTextOption::Tab> TabsOf(richtext::ParagraphFormat const& paragraph) const {
        QList<QTextOption::Tab> tabs;
        if (paragraph.FirstLineIndent < 0) {
            tabs.append(QTextOption::Tab(Pixels(-paragraph.FirstLineIndent), QTextOption::LeftTab));
        }
        int const lineStart = paragraph.LeftIndent + paragraph.FirstLineIndent;
        for (richtext::TabStop const& stop : document_.Rulers.at(paragraph.Ruler)) {
            tabs.append(QTextOption::Tab(Pixels(stop.Position - lineStart), TabTypeOf(stop.Kind), u'.'));
        }
        return tabs;
    }

    QTextCharFormat FormatOf(richtext::CharacterStyle const& style) const {
        QTextCharFormat format;
        format.setFontFamilies({ToQt(document_.Fonts.at(style.Font))});
        format.setFontPointSize(style.HalfPoints / 2.0);
        format.setFontWeight(style.Bold ? QFont::Bold : QFont::Normal);
        format.setFontItalic(style.Italic);
        format.setFontUnderline(style.Underline);
        format.setFontStrikeOut(style.StrikeOut);
        if (style.Script != richtext::ScriptPosition::Normal) {
            format.setVerticalAlignment(style.Script == richtext::ScriptPosition::Superscript
                                            ? QTextCharFormat::AlignSuperScript
                                            : QTextCharFormat::AlignSubScript);
        }
        if (style.Foreground) {
            format.setForeground(platform::pictures::ToQt(*style.Foreground));
        }
        if (style.Background) {
            format.setBackground(platform::pictures::ToQt(*style.Background));
        }
        return format;
    }

    richtext::RichTextDocument const& document_;
    QTextDocument& shown_;
};

} // namespace

std::unique_ptr<QTextDocument> MakeTextDocument(richtext::RichTextDocument const& document) {
    constexpr double Margin = 12;
    constexpr QSizeF NoPage(0, 0); // with which Qt lays nothing out
    auto made = std::make_unique<QTextDocument>();
    made->setUndoRedoEnabled(false);
    made->setPageSize(NoPage);
    made->setDocumentMargin(Margin); // any later it would lay out everything anew
    RichTextPictures::PaintThoseOf(*made);
    Builder(document, *made).Build();
    return made;
}

} // namespace quorvex::auxiliary::ui
