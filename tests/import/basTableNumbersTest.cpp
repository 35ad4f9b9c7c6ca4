// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basTableNumbers.h"

#include <gtest/gtest.h>

#include <optional>

namespace quorvex::tests {
namespace {

using imports::DecimalMark;
using imports::FigureForm;
using imports::FigureState;

std::optional<double> Number(std::string_view cell, FigureForm const& form) {
    auto const figure = imports::ReadFigure(cell, form);
    return figure.State == FigureState::Number ? std::optional(figure.Value) : std::nullopt;
}

std::optional<double> ByPoint(std::string_view cell) {
    return Number(cell, {});
}

std::optional<double> ByComma(std::string_view cell) {
    return Number(cell, {DecimalMark::Comma, false, -1});
}

std::optional<double> Price(std::string_view cell, int fraction = -1) {
    return Number(cell, {DecimalMark::Point, true, fraction});
}

TEST(TableNumbers, ReadEitherDecimalMark) {
    EXPECT_EQ(ByPoint("517.25"), 517.25);
    EXPECT_EQ(ByPoint("517"), 517.0);
    EXPECT_EQ(ByPoint(".5"), 0.5);
    EXPECT_EQ(ByPoint("53.77000045776367"), 53.77000045776367);
    EXPECT_EQ(ByPoint("1.5E+06"), 1'500'000.0);
    EXPECT_EQ(ByPoint("2E+06"), 2'000'000.0);
    EXPECT_EQ(ByComma("1,5e3"), 1500.0);
    EXPECT_EQ(ByComma("517,25"), 517.25);
    EXPECT_EQ(ByComma("517"), 517.0);
    EXPECT_EQ(ByComma("0,875"), 0.875);
}

TEST(TableNumbers, ReadThousandsInAnyStyle) {
    for (auto const* cell : {"1,234,567.5", "1'234'567.5", "1 234 567.5",
                             "1\xC2\xA0"
                             "234\xC2\xA0"
                             "567.5",
                             "1\xE2\x80\xAF"
                             "234\xE2\x80\xAF"
                             "567.5",
                             "1\xE2\x80\x99"
                             "234\xE2\x80\x99"
                             "567.5",
                             "12,34,567.5"}) {
        EXPECT_EQ(ByPoint(cell), 1'234'567.5) << cell;
    }
    EXPECT_EQ(ByComma("1.234.567,5"), 1'234'567.5);
    EXPECT_EQ(ByComma("1.234"), 1234.0);
    EXPECT_EQ(ByPoint("1,234"), 1234.0);
}

TEST(TableNumbers, RefuseMarksInTheWrongPlaces) {
    for (auto const* cell : {"1,23",  "1,2345",  "0,875", "12,345,67", "1,234'567", ",234", "1234,567",
                             "1.2.3", "1.234,5", "5 17",  "abc",       "12abc",     "1e",   "1e+",
                             "e5",    "1e5.5",   "1.e5",  "517,",      "--5",       "1..2"}) {
        EXPECT_EQ(ByPoint(cell), std::nullopt) << cell;
    }
    for (auto const* cell : {"517.25", "0.875", "1234.567", "1,234,567", "1,5,5", "517,"}) {
        EXPECT_EQ(ByComma(cell), std::nullopt) << cell;
    }
}

TEST(TableNumbers, UnderstandSignsAndUnits) {
    EXPECT_EQ(ByPoint("+0.54"), 0.54);
    EXPECT_EQ(ByPoint("-37.63"), -37.63);
    EXPECT_EQ(ByPoint("\xE2\x88\x92"
                      "5"),
              -5.0);
    EXPECT_EQ(ByPoint("(5.5)"), -5.5);
    EXPECT_EQ(ByPoint("$1,234.50"), 1234.5);
    EXPECT_EQ(ByComma("1.234,50 \xE2\x82\xAC"), 1234.5);
    EXPECT_EQ(ByPoint("+0.61%"), 0.61);
    EXPECT_EQ(ByPoint("141.93K"), 141'930.0);
    EXPECT_EQ(ByPoint("120.5M"), 120'500'000.0);
    EXPECT_EQ(ByPoint("1.2b"), 1'200'000'000.0);
    EXPECT_EQ(ByComma("141,93K"), 141'930.0);
    EXPECT_EQ(ByPoint("1e3K"), std::nullopt);
}

TEST(TableNumbers, TellMissingOnes) {
    for (auto const* cell :
         {"", "-", "--", "null", "NaN", "N/A", "n/a", "#N/A", "None", ".", "\xE2\x80\x94"}) {
        EXPECT_EQ(imports::ReadFigure(cell, {}).State, FigureState::Missing) << cell;
        EXPECT_EQ(imports::ReadFigure(cell, {DecimalMark::Comma, true, -1}).State, FigureState::Missing)
            << cell;
    }
}

TEST(TableNumbers, ReadEighthsInPrices) {
    EXPECT_EQ(Price("523'4"), 523.5);
    EXPECT_EQ(Price("523-6"), 523.75);
    EXPECT_EQ(Price("523'8"), std::nullopt);
    EXPECT_EQ(ByPoint("523'4"), std::nullopt) << "volumes have none";
    EXPECT_EQ(Price("523'4", imports::NoFraction), std::nullopt);
}

TEST(TableNumbers, ReadOtherFractionsWhenTheyAreTold) {
    EXPECT_EQ(Price("118'16"), std::nullopt);
    EXPECT_TRUE(imports::ReadFigure("118'16", {DecimalMark::Point, true, -1}).NeedsFraction);
    EXPECT_EQ(Price("118'16", 32), 118.5);
    EXPECT_EQ(Price("118-165", 32), 118.515625);
    EXPECT_EQ(Price("118'167", 32), 118.5234375);
    EXPECT_EQ(Price("118'163", 32), std::nullopt);
    EXPECT_EQ(Price("118'32", 32), std::nullopt);
    EXPECT_EQ(Price("118'08", 16), 118.5);
    EXPECT_EQ(Price("118'064", 128), 118.5);
    EXPECT_EQ(Price("118'1", 2), 118.5);
    EXPECT_EQ(Price("118.5", 32), 118.5);
}

TEST(TableNumbers, ReadPricesWithTheMarkOfASettlement) {
    EXPECT_EQ(Price("411'2s"), 411.25);
    EXPECT_EQ(Price("410.25s"), 410.25);
    EXPECT_EQ(Price("410.25S"), 410.25);
    EXPECT_EQ(Price("118'16s", 32), 118.5);
    FigureForm const form{DecimalMark::Point, true, -1};
    EXPECT_TRUE(imports::ReadFigure("411'2s", form).HasSettlementMark);
    EXPECT_FALSE(imports::ReadFigure("411'2", form).HasSettlementMark);
    EXPECT_EQ(ByPoint("22540s"), std::nullopt) << "volumes have none";
    for (auto const* cell : {"s", "410.25 s", "410.s", "410.25a", "410.25ss"}) {
        EXPECT_EQ(Price(cell), std::nullopt) << cell;
    }
    EXPECT_TRUE(imports::ReadFigure("1.2B", {}).IsInBillions);
    EXPECT_FALSE(imports::ReadFigure("1.2M", {}).IsInBillions);
}

TEST(TableNumbers, TellWhatThreeDigitsBehindAnApostropheCanBe) {
    FigureForm const form{DecimalMark::Point, true, -1};
    auto const open = imports::ReadFigure("118'165", form);
    EXPECT_EQ(open.Value, 118'165.0);
    EXPECT_TRUE(open.HasTicks);
    EXPECT_FALSE(open.HasSureTicks);
    EXPECT_TRUE(imports::ReadFigure("118'465", form).HasSureTicks);
    EXPECT_TRUE(imports::ReadFigure("1'118'165", form).HasSureTicks);
    EXPECT_TRUE(imports::ReadFigure("1'165.5", form).HasSureTicks);
}

} // namespace
} // namespace quorvex::tests
