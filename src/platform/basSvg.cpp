// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basSvg.h"

#include "platform/basInking.h"
#include "text/RunTimeError.h"
#include "text/basNumbers.h"
#include "text/basUtf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>

namespace quorvex::platform {

namespace {

// What stands in for the program's fonts where they are not installed, and how far above the baseline a line
// of them begins, as a share of the size.
struct FontRow {
    std::string_view Name;
    std::string_view Families;
    double Ascent;
};

constexpr std::array<FontRow, 2> FontTable = {{
    {"Arial", "Arial,'Liberation Sans',Helvetica,sans-serif", 0.905},
    {"Times New Roman", "'Times New Roman','Liberation Serif',Times,serif", 0.891},
}};

FontRow const& FontNamed(std::string_view name) {
    auto const found = std::ranges::find(FontTable, name, &FontRow::Name);
    return found == FontTable.end() ? FontTable.front() : *found;
}

// In pixels. What lies beyond any sheet, or nowhere, is moved to where viewers still can count.
std::string Pixels(double twips) {
    constexpr double Farthest = 1'000'000;
    constexpr double Steps = 1000;
    double const pixels = twips / TwipsPerPixel;
    double const near = pixels > -Farthest ? std::min(pixels, Farthest) : -Farthest;
    double const rounded = std::round(near * Steps) / Steps;
    return text::PlainNumber(rounded == 0 ? 0 : rounded); // no -0
}

std::string Pair(double x, double y) {
    return Pixels(x) + ',' + Pixels(y);
}

std::string ColourText(Colour colour) {
    constexpr std::string_view Digits = "0123456789abcdef";
    constexpr int Highest = 20;
    constexpr int DigitBits = 4;
    std::string text = "#";
    for (int shift = Highest; shift >= 0; shift -= DigitBits) {
        text += Digits[(colour >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

// " name="value"", where the value has no quotation mark.
std::string Attribute(std::string_view name, std::string_view value) {
    return ' ' + std::string(name) + "=\"" + std::string(value) + '"';
}

std::string BoxAttributes(double left, double top, double width, double height) {
    return Attribute("x", Pixels(left)) + Attribute("y", Pixels(top)) + Attribute("width", Pixels(width)) +
           Attribute("height", Pixels(height));
}

constexpr std::string_view Replacement = "\xEF\xBF\xBD";

// Whether XML cannot hold the character: a control character, or one of the two that are none.
bool IsForbidden(std::string_view character) {
    constexpr char FirstPrinting = ' ';
    auto const isControl =
        character.size() == 1 && character.front() >= 0 && character.front() < FirstPrinting;
    return (isControl && character != "\t" && character != "\n" && character != "\r") ||
           character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF";
}

std::string_view Escaped(std::string_view character) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 3> Escapes = {
        {{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}}};
    for (auto const& [plain, escape] : Escapes) {
        if (character == plain) {
            return escape;
        }
    }
    return IsForbidden(character) ? Replacement : character;
}

std::string XmlText(std::string_view bytes) {
    std::string xml;
    while (!bytes.empty()) {
        std::size_t const length = text::LengthOfCharacter(bytes);
        xml += length > 0 ? Escaped(bytes.substr(0, length)) : Replacement;
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return xml;
}

class SvgInk final : public Ink {
public:
    SvgInk(RecordingCanvas const& drawing, std::string& svg) : drawing_(drawing), svg_(svg) {}

    void PutBackground() override { PutBox({0, 0}, {drawing_.Width(), drawing_.Height()}, White); }

    void PutPoint(Place at, Colour colour) override {
        constexpr double Half = VectorLine / 2;
        PutBox({at.X - Half, at.Y - Half}, {at.X + Half, at.Y + Half}, colour);
    }

    void PutCurve(std::span<Place const> places, Colour colour) override {
        Begin(Style::Lines, colour);
        char separator = 'M';
        for (Place const& place : places) {
            path_ += separator + Pair(place.X, place.Y);
            separator = separator == 'M' ? 'L' : ' ';
        }
    }

    void PutRectangle(Place corner, Place opposite, Colour colour, bool isFilled) override {
        Place const low{std::min(corner.X, opposite.X), std::min(corner.Y, opposite.Y)};
        Place const high{std::max(corner.X, opposite.X), std::max(corner.Y, opposite.Y)};
        if (isFilled) {
            PutBox(low, high, colour);
        } else {
            PutOutline(low, high, colour);
        }
    }

    void SetFont(std::string_view name, double size, bool isBold) override {
        font_ = FontNamed(name);
        size_ = size * TwipsPerPoint;
        isBold_ = isBold;
    }

    void PutText(Place place, std::string_view text, Colour colour) override {
        End();
        Place const at = ClearOfBorder(place);
        svg_ += "<text" + Attribute("x", Pixels(at.X)) + Attribute("y", Pixels(at.Y + font_.Ascent * size_)) +
                Attribute("font-family", font_.Families) + Attribute("font-size", Pixels(size_)) +
                (isBold_ ? Attribute("font-weight", "bold") : "") + Attribute("fill", ColourText(colour)) +
                R"( stroke="none" xml:space="preserve">)" + XmlText(text) + "</text>\n";
    }

    // Ends the path that is being written: neighbours of one colour share one.
    void End() {
        if (style_ == Style::Lines) {
            svg_ += "<path" + Attribute("stroke", ColourText(colour_)) + Attribute("d", path_) + "/>\n";
        } else if (style_ == Style::Areas) {
            svg_ += "<path" + Attribute("fill", ColourText(colour_)) + R"( stroke="none")" +
                    Attribute("d", path_) + "/>\n";
        }
        style_ = Style::None;
        path_.clear();
    }

private:
    enum class Style { None, Lines, Areas };

    void Begin(Style style, Colour colour) {
        if (style != style_ || colour != colour_) {
            End();
            style_ = style;
            colour_ = colour;
        }
    }

    void PutBox(Place low, Place high, Colour colour) {
        Begin(Style::Areas, colour);
        path_ += 'M' + Pair(low.X, low.Y) + 'H' + Pixels(high.X) + 'V' + Pixels(high.Y) + 'H' +
                 Pixels(low.X) + 'Z';
    }

    // What is thinner than its own border is a line.
    void PutOutline(Place low, Place high, Colour colour) {
        Begin(Style::Lines, colour);
        Place const centre{(low.X + high.X) / 2, (low.Y + high.Y) / 2};
        if (high.X - low.X < VectorLine) {
            path_ += 'M' + Pair(centre.X, low.Y) + 'V' + Pixels(high.Y);
        } else if (high.Y - low.Y < VectorLine) {
            path_ += 'M' + Pair(low.X, centre.Y) + 'H' + Pixels(high.X);
        } else {
            path_ += 'M' + Pair(low.X, low.Y) + 'H' + Pixels(high.X) + 'V' + Pixels(high.Y) + 'H' +
                     Pixels(low.X) + 'Z';
        }
    }

    RecordingCanvas const& drawing_;
    std::string& svg_;
    FontRow font_ = FontTable.front();
    double size_ = 8 * TwipsPerPoint; // in twips
    bool isBold_ = false;
    Style style_ = Style::None;
    Colour colour_ = Black;
    std::string path_;
};

void AppendDrawing(std::string& svg, PlacedDrawing const& placed, std::string const& clipName) {
    RecordingCanvas const& drawing = *placed.Drawing;
    std::string const box = BoxAttributes(0, 0, drawing.Width(), drawing.Height());
    svg += "<g transform=\"translate(" + Pair(placed.Left, placed.Top) + ")\">\n<clipPath" +
           Attribute("id", clipName) + "><rect" + box + "/></clipPath>\n<g clip-path=\"url(#" + clipName +
           ")\" fill=\"none\"" + Attribute("stroke-width", Pixels(VectorLine)) +
           R"( stroke-linecap="square" stroke-linejoin="bevel")" + ">\n";
    SvgInk ink(drawing, svg);
    if (!BeginsWithClear(drawing)) {
        ink.PutBackground();
    }
    InkDrawing(drawing, ink);
    ink.End();
    svg +=
        "</g>\n<rect" + box + " fill=\"none\"" + Attribute("stroke", ColourText(BorderColour)) + "/>\n</g>\n";
}

} // namespace

std::string SvgOf(PictureSheet const& sheet) {
    if (!(sheet.Width > 0 && sheet.Height > 0)) {
        throw text::RunTimeError(text::Fault::InvalidProcedureCall);
    }
    std::string const width = Pixels(sheet.Width);
    std::string const height = Pixels(sheet.Height);
    std::string svg =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
        Attribute("width", width) + Attribute("height", height) +
        Attribute("viewBox", "0 0 " + width + ' ' + height) + ">\n<title>Quorvex</title>\n<rect" +
        BoxAttributes(0, 0, sheet.Width, sheet.Height) + " fill=\"#ffffff\"/>\n";
    int count = 0;
    for (PlacedDrawing const& placed : sheet.Drawings) {
        AppendDrawing(svg, placed, "box" + std::to_string(++count));
    }
    return svg + "</svg>\n";
}

std::string SvgEncoder::Encode(PictureSheet const& sheet, PictureKind kind) {
    if (!Makes(kind)) {
        throw text::RunTimeError(text::Fault::InvalidProcedureCall);
    }
    return SvgOf(sheet);
}

} // namespace quorvex::platform
