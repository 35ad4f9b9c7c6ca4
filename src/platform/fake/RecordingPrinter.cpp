// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/RecordingPrinter.h"

#include "text/RunTimeError.h"

#include <array>

namespace quorvex::platform::fake {

namespace {

class RecordingPrinter final : public Printer {
public:
    RecordingPrinter(RecordingPrintQueue& queue, std::size_t document) : queue_(queue), document_(document) {}

    [[nodiscard]] double Width() const override { return queue_.Sheet.Width / unit_; }

    [[nodiscard]] double Height() const override { return queue_.Sheet.Height / unit_; }

    // A page cannot be emptied.
    void Clear() override { Fail(); }

    void SetForeColour(Colour colour) override {
        Page().Shapes.push_back({.What = Kind::ForeColour, .Drawn = colour});
    }

    void Point(double x, double y, Colour colour) override {
        Shape(Kind::Point, {x, y}, colour);
        MoveTo(x, y);
    }

    void Line(double x1, double y1, double x2, double y2, Colour colour) override {
        Shape(Kind::Line, {x1, y1, x2, y2}, colour);
        MoveTo(x2, y2);
    }

    void LineTo(double x, double y, Colour colour) override { Line(pointX_, pointY_, x, y, colour); }

    void Rectangle(double x1, double y1, double x2, double y2, Colour colour, Fill fill) override {
        Shape(Kind::Rectangle, {x1, y1, x2, y2}, colour, fill == Fill::Filled);
    }

    void SetTextPosition(double x, double y) override {
        x_ = x * unit_;
        y_ = y * unit_;
    }

    void SetFont(std::string_view name, int size, bool bold) override {
        fontName_ = name;
        font_.Size = size;
        isBold_ = bold;
    }

    void Print(std::string_view text) override {
        FailAt(++textCount_, queue_.Sheet.FailingText);
        if (!text.empty()) {
            Page().Texts.push_back(
                {std::string(text), TextX(), TextY(), TextWidth(text), fontName_, font_.Size, isBold_});
        }
        x_ += TextWidth(text) * unit_;
    }

    [[nodiscard]] double TextWidth(std::string_view text) const override {
        auto const& width = queue_.Sheet.CharacterWidth;
        return (width ? *width * static_cast<double>(text.size()) : font_.Width(text)) / unit_;
    }

    [[nodiscard]] double TextHeight() const override { return LineHeight() / unit_; }

    void SetScaleMode(ScaleMode mode) override { unit_ = mode == ScaleMode::Inches ? TwipsPerInch : 1; }

    [[nodiscard]] double TextX() const override { return x_ / unit_; }

    [[nodiscard]] double TextY() const override { return y_ / unit_; }

    void EndLine() override {
        x_ = 0;
        y_ += LineHeight();
    }

    void NewPage() override {
        Document().Pages.emplace_back();
        x_ = 0;
        y_ = 0;
    }

    void EndDocument() override {
        if (queue_.Sheet.IsEndFailing) {
            Fail();
        }
        Document().IsEnded = true;
    }

private:
    using Kind = DrawingOperation::Kind;

    [[noreturn]] static void Fail() { throw text::RunTimeError(text::Fault::PrinterError); }

    static void FailAt(int count, std::optional<int> failing) {
        if (count == failing) {
            Fail();
        }
    }

    [[nodiscard]] double LineHeight() const { return queue_.Sheet.LineHeight.value_or(font_.Height()); }

    PrintedDocument& Document() { return queue_.Documents.at(document_); }

    PrintedPage& Page() { return Document().Pages.back(); }

    void Shape(Kind kind, std::array<double, 4> const& coordinates, Colour colour, bool flag = false) {
        FailAt(++shapeCount_, queue_.Sheet.FailingShape);
        Page().Shapes.push_back({.What = kind, .Flag = flag, .Drawn = colour, .Coordinates = coordinates});
    }

    void MoveTo(double x, double y) {
        pointX_ = x;
        pointY_ = y;
    }

    RecordingPrintQueue& queue_;
    std::size_t document_;
    int textCount_ = 0;
    int shapeCount_ = 0;
    double unit_ = 1; // in twips
    double x_ = 0;    // of the next text, in twips
    double y_ = 0;
    double pointX_ = 0; // the current point, in the unit of the moment
    double pointY_ = 0;
    std::string fontName_;
    NominalFont font_;
    bool isBold_ = false;
};

} // namespace

std::unique_ptr<Printer> RecordingPrintQueue::Start(std::string_view documentName) {
    HourglassAtStart.push_back(HourglassCount);
    Documents.push_back({std::string(documentName), {PrintedPage()}, false});
    return std::make_unique<RecordingPrinter>(*this, Documents.size() - 1);
}

} // namespace quorvex::platform::fake
