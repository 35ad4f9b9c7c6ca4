// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basInking.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace quorvex::platform {
namespace {

// Tells what it is given, a word and its values a line.
class WrittenInk final : public Ink {
public:
    void PutBackground() override { words_ << "background\n"; }

    void PutPoint(Place at, Colour colour) override {
        words_ << "point " << Words(at) << ' ' << colour << '\n';
    }

    void PutCurve(std::span<Place const> places, Colour colour) override {
        words_ << "curve";
        for (Place const& place : places) {
            words_ << ' ' << Words(place);
        }
        words_ << ' ' << colour << '\n';
    }

    void PutRectangle(Place corner, Place opposite, Colour colour, bool isFilled) override {
        words_ << "rectangle " << Words(corner) << ' ' << Words(opposite) << ' ' << colour << ' ' << isFilled
               << '\n';
    }

    void SetFont(std::string_view name, double size, bool isBold) override {
        words_ << "font " << name << ' ' << size << ' ' << isBold << '\n';
    }

    void PutText(Place place, std::string_view text, Colour colour) override {
        words_ << "text " << Words(place) << ' ' << text << ' ' << colour << '\n';
    }

    [[nodiscard]] std::string Told() const { return words_.str(); }

private:
    static std::string Words(Place place) {
        std::ostringstream words;
        words << place.X << ',' << place.Y;
        return words.str();
    }

    std::ostringstream words_;
};

std::string Inked(RecordingCanvas const& drawing) {
    WrittenInk ink;
    InkDrawing(drawing, ink);
    return ink.Told();
}

TEST(InkDrawing, JoinsLinesOfOneColourThatMeet) {
    RecordingCanvas drawing(100, 100);
    drawing.Point(1, 1, 7);
    drawing.LineTo(2, 2, 7);
    drawing.LineTo(2, 2, 7); // nowhere
    drawing.LineTo(3, 1, 7);
    drawing.LineTo(4, 4, 8); // of another colour
    drawing.Line(5, 5, 6, 6, 8);
    drawing.Line(6, 6, 7, 5, 8);
    drawing.Line(9, 9, 9, 9, 8); // leaves nothing
    EXPECT_EQ(Inked(drawing), "point 1,1 7\n"
                              "curve 1,1 2,2 3,1 7\n"
                              "curve 3,1 4,4 8\n"
                              "curve 5,5 6,6 7,5 8\n");
}

TEST(InkDrawing, EndsACurveBeforeWhatIsNoneOfIt) {
    RecordingCanvas drawing(100, 100);
    drawing.Line(1, 1, 2, 2, 7);
    drawing.Rectangle(5, 6, 3, 4, 9, Fill::Filled);
    drawing.LineTo(3, 3, 7);
    drawing.Clear();
    EXPECT_EQ(Inked(drawing), "curve 1,1 2,2 7\n"
                              "rectangle 5,6 3,4 9 1\n"
                              "curve 2,2 3,3 7\n"
                              "background\n");
}

TEST(InkDrawing, GivesTextsTheirPlaceAndColour) {
    RecordingCanvas drawing(100, 100);
    drawing.Print("first");
    drawing.SetFont("Arial", 8, true);
    drawing.SetForeColour(5);
    drawing.SetTextPosition(30, 40);
    drawing.Print("second");
    EXPECT_EQ(Inked(drawing), "text 0,0 first 0\n"
                              "font Arial 8 1\n"
                              "text 30,40 second 5\n");
}

TEST(BeginsWithClear, LooksAtTheFirstOperation) {
    RecordingCanvas drawing(100, 100);
    EXPECT_FALSE(BeginsWithClear(drawing));
    drawing.Clear();
    EXPECT_TRUE(BeginsWithClear(drawing));
    RecordingCanvas later(100, 100);
    later.Point(1, 1, 7);
    later.Clear();
    EXPECT_FALSE(BeginsWithClear(later));
}

TEST(ClearOfBorder, MovesWhatStandsAtTheEdge) {
    EXPECT_EQ(ClearOfBorder({0, -9}), (Place{45, 22.5}));
    EXPECT_EQ(ClearOfBorder({46, 23}), (Place{46, 23}));
}

} // namespace
} // namespace quorvex::platform
