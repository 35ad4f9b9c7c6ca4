// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basReportPages.h"

#include "evaluation/basReport.h"
#include "evaluation/basVerdicts.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::evaluation {

namespace {

// In points.
constexpr int PageTitleSize = 14;
constexpr int VerdictSize = 11;
constexpr int ParagraphSize = 9;
constexpr int RowSize = 8;

// In twips.
constexpr double PaperMargin = 720;
constexpr double CellGap = 240;
constexpr double ParagraphGap = 120;

// The rows of one model and kind stay on one page.
constexpr std::size_t RowsOfKind = Horizons.size();

using Widths = std::array<double, TableColumns.size()>;

class ReportPages {
public:
    ReportPages(platform::Printer& printer, Evaluation const& evaluation)
        : printer_(printer),
          evaluation_(evaluation),
          width_(printer.Width() - 2 * PaperMargin),
          bottom_(printer.Height() - 2 * PaperMargin) {}

    void PrintVerdicts(FanChoice const& choice) {
        PrintParagraph("Test of forecasts: " + evaluation_.QuoteFileName, PageTitleSize, true);
        PrintParagraph(VerdictOf(evaluation_), VerdictSize, true);
        PrintParagraph(DescribeTest(evaluation_), ParagraphSize, false);
        double const plotTop = y_;
        double const plotBottom = bottom_ - VerdictsHeight();
        DrawPlot(printer_, {PaperMargin, plotTop, PaperMargin + width_, plotBottom - ParagraphGap},
                 evaluation_, choice);
        printer_.SetForeColour(platform::Black);
        y_ = plotBottom;
        SetFont(ParagraphSize, false);
        for (ModelReport const& model : evaluation_.Models) {
            PrintLineAt(PaperMargin, ModelName(model.Model));
            PrintWrapped(PaperMargin + NamesWidth(), model.Verdict);
        }
    }

    void PrintTable() {
        TurnPage();
        SetFont(RowSize, true);
        Widths const widths = ColumnWidths();
        PrintHead(widths);
        auto const rows = TableRows(evaluation_);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            bool const isFirst = row % RowsOfKind == 0;
            if (isFirst && !HasRoom(RowsOfKind)) {
                TurnPage();
                PrintHead(widths);
            }
            PrintRow(rows[row], widths, isFirst);
            y_ += row % RowsOfKind == RowsOfKind - 1 ? ParagraphGap / 2 : 0;
        }
    }

    void PrintNotes() {
        std::vector<ReportSection> sections = Notes(evaluation_);
        sections.insert(sections.begin(), KeySection(evaluation_));
        for (ReportSection const& section : sections) {
            y_ += ParagraphGap;
            SetFont(ParagraphSize, true);
            if (!HasRoom(2)) {
                TurnPage();
            }
            PrintWrapped(PaperMargin, section.Head);
            SetFont(ParagraphSize, false);
            for (std::string const& line : section.Lines) {
                PrintWrapped(PaperMargin, line);
            }
        }
    }

    void End() {
        PrintPageNumber();
        printer_.EndDocument();
    }

private:
    void SetFont(int size, bool isBold) {
        constexpr std::string_view FontName = "Arial";
        size_ = size;
        isBold_ = isBold;
        printer_.SetFont(FontName, size, isBold);
    }

    [[nodiscard]] bool HasRoom(std::size_t lines) const {
        return y_ + static_cast<double>(lines) * printer_.TextHeight() <= bottom_;
    }

    void PrintPageNumber() {
        SetFont(RowSize, false);
        std::string const text = evaluation_.QuoteFileName + ", page " + std::to_string(page_);
        PrintOnPlot(printer_, PaperMargin + width_ - printer_.TextWidth(text), bottom_ + PaperMargin / 2,
                    text);
    }

    // The font stays.
    void TurnPage() {
        int const size = size_;
        bool const isBold = isBold_;
        PrintPageNumber();
        printer_.NewPage();
        ++page_;
        y_ = PaperMargin;
        SetFont(size, isBold);
    }

    void PrintLineAt(double left, std::string_view text) { PrintOnPlot(printer_, left, y_, text); }

    // As many words a line as fit, on as many pages as that needs.
    void PrintWrapped(double left, std::string_view text) {
        for (std::string const& line : Wrapped(text, PaperMargin + width_ - left)) {
            if (!HasRoom(1)) {
                TurnPage();
            }
            PrintLineAt(left, line);
            y_ += printer_.TextHeight();
        }
    }

    void PrintParagraph(std::string_view text, int size, bool isBold) {
        SetFont(size, isBold);
        PrintWrapped(PaperMargin, text);
        y_ += ParagraphGap;
    }

    [[nodiscard]] std::vector<std::string> Wrapped(std::string_view text, double width) const {
        std::vector<std::string> lines;
        std::string line;
        while (!text.empty()) {
            auto const end = std::min(text.find(' '), text.size());
            std::string const longer = line + (line.empty() ? "" : " ") + std::string(text.substr(0, end));
            if (!line.empty() && printer_.TextWidth(longer) > width) {
                lines.push_back(line);
                line = text.substr(0, end);
            } else {
                line = longer;
            }
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        lines.push_back(line);
        return lines;
    }

    [[nodiscard]] double NamesWidth() const {
        double width = 0;
        for (ModelReport const& model : evaluation_.Models) {
            width = std::max(width, printer_.TextWidth(ModelName(model.Model)));
        }
        return width + CellGap;
    }

    [[nodiscard]] double VerdictsHeight() {
        SetFont(ParagraphSize, false);
        std::size_t lines = 0;
        for (ModelReport const& model : evaluation_.Models) {
            lines += Wrapped(model.Verdict, width_ - NamesWidth()).size();
        }
        return static_cast<double>(lines) * printer_.TextHeight();
    }

    // In the bold font, which is the wider one.
    [[nodiscard]] Widths ColumnWidths() const {
        auto rows = TableRows(evaluation_);
        rows.push_back(TableHead());
        Widths widths{};
        for (TableRow const& row : rows) {
            for (std::size_t column = 0; column < TableColumns.size(); ++column) {
                widths.at(column) =
                    std::max(widths.at(column), printer_.TextWidth(row.*TableColumns.at(column)));
            }
        }
        return widths;
    }

    void PrintHead(Widths const& widths) {
        SetFont(RowSize, true);
        PrintCells(TableHead(), widths);
        y_ += ParagraphGap / 2;
        SetFont(RowSize, false);
    }

    // Model and kind stand in their first row.
    void PrintRow(TableRow row, Widths const& widths, bool isFirst) {
        if (!isFirst) {
            row.Model.clear();
            row.Kind.clear();
        }
        SetFont(RowSize, row.IsBetter);
        PrintCells(row, widths);
    }

    void PrintCells(TableRow const& row, Widths const& widths) {
        double left = PaperMargin;
        for (std::size_t column = 0; column < TableColumns.size(); ++column) {
            std::string const& text = row.*TableColumns.at(column);
            bool const isRight = TableColumns.at(column) == &TableRow::Days;
            PrintLineAt(isRight ? left + widths.at(column) - printer_.TextWidth(text) : left, text);
            left += widths.at(column) + CellGap;
        }
        y_ += printer_.TextHeight();
    }

    platform::Printer& printer_;
    Evaluation const& evaluation_;
    double width_;
    double bottom_; // of what is printed but the page's number
    double y_ = PaperMargin;
    int page_ = 1;
    int size_ = ParagraphSize;
    bool isBold_ = false;
};

} // namespace

void PrintEvaluation(platform::PrintQueue& queue, platform::MousePointer& pointer,
                     Evaluation const& evaluation, FanChoice const& choice) {
    platform::Hourglass const hourglass(pointer);
    std::string const& file = evaluation.QuoteFileName;
    auto const printer = queue.Start(file.substr(0, file.rfind('.')) + " forecast test");
    printer->SetScaleMode(platform::ScaleMode::Twips);
    printer->SetForeColour(platform::Black);
    ReportPages pages(*printer, evaluation);
    pages.PrintVerdicts(choice);
    pages.PrintTable();
    pages.PrintNotes();
    pages.End();
}

} // namespace quorvex::evaluation
