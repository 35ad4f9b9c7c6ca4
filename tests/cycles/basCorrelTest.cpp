// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basCorrel.h"

#include "ReferenceCurves.h"
#include "platform/fake/ScriptedDialogs.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvex::cycles {
namespace {

using platform::Icon;
using tests::IsClose;
using tests::IsOnlyMessage;

constexpr auto FirstLines = "The coefficient of correlation between the     \n"
                            "composite cycle and the moving average         \n"
                            "of the daily closes is ";

std::string JoinLines(nlohmann::json const& lines) {
    std::string text;
    for (auto const& line : lines) {
        text += (text.empty() ? "" : "\n") + line.get<std::string>();
    }
    return text;
}

std::unique_ptr<CycleCurves> CurvesOf(std::vector<double> const& x, std::vector<double> const& y) {
    auto curves = std::make_unique<CycleCurves>();
    for (std::size_t index = 0; index < x.size(); ++index) {
        curves->CompositeCurve[static_cast<int>(index) + 1] = x[index];
        curves->MovingAverageCurve[static_cast<int>(index) + 1] = y.at(index);
    }
    return curves;
}

TEST(Correlation, AgreesWithTheReference) {
    for (auto const& expected : tests::GoldenVector("correlation_cases")) {
        SCOPED_TRACE(expected.at("label").get<std::string>());
        auto const curves = CurvesOf(expected.at("x"), expected.at("y"));
        auto const n = static_cast<std::int16_t>(expected.at("x").size());
        platform::fake::ScriptedDialogs dialogs;
        auto const error = text::Trap([&] { ShowCorrelation(*curves, n, dialogs); });
        EXPECT_EQ(error ? nlohmann::json(error->Description()) : nlohmann::json(), expected.at("error"));
        if (error) {
            EXPECT_TRUE(dialogs.Messages.empty());
            continue;
        }
        EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, JoinLines(expected.at("lines")), expected.at("title"),
                                  tests::IconNamed(expected.at("icon"))));
        auto const r = CoefficientOfCorrelation(*curves, n);
        EXPECT_EQ(r.has_value(), !expected.at("r").is_null());
        if (r) {
            EXPECT_TRUE(IsClose(*r, expected.at("r")));
        }
    }
}

TEST(Correlation, OfProportionalCurvesIsWhole) {
    auto const curves = CurvesOf({1, 2, 4, 8}, {2, 4, 8, 16});
    platform::fake::ScriptedDialogs dialogs;
    ShowCorrelation(*curves, 4, dialogs);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, std::string(FirstLines) + "100.%",
                              "Quorvex - Coefficient of Correlation", Icon::Information));
}

TEST(Correlation, ShowsANegativeCoefficientWithItsSign) {
    EXPECT_EQ(CorrelationMessage(-0.451).Text, std::string(FirstLines) + "-45.1%");
    EXPECT_EQ(CorrelationMessage(0.8734).Text, std::string(FirstLines) + "87.34%");
}

TEST(Correlation, WithoutACompositeHasInsufficientData) {
    auto const curves = CurvesOf({0, 0, 0}, {1, 2, 3});
    platform::fake::ScriptedDialogs dialogs;
    ShowCorrelation(*curves, 3, dialogs);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Insufficient data to perform correlation",
                              "Quorvex - Correlation", Icon::Information));
    EXPECT_EQ(CoefficientOfCorrelation(*CurvesOf({1, 2}, {3, -3}), 2), std::nullopt);
}

TEST(Correlation, OfAFlatCurveDividesByZero) {
    auto const error = text::Trap([] {
        static_cast<void>(CoefficientOfCorrelation(*CurvesOf({1, 2, 3}, {4, 4, 4}), 3));
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Division by zero");
}

TEST(Correlation, AgreesWithTheAnalysesOfTheReference) {
    for (auto const& expected : tests::GoldenVector("curves")) {
        auto const& correlation = expected.at("correlation");
        ReferenceCurves const actual(expected);
        auto const r = CoefficientOfCorrelation(*actual.curves, actual.series->WorkingCount);
        ASSERT_TRUE(r);
        EXPECT_TRUE(IsClose(*r, correlation.at("r")));
        auto const message = CorrelationMessage(r);
        EXPECT_EQ(message.Text, JoinLines(correlation.at("lines")));
        EXPECT_EQ(message.Title, correlation.at("title"));
        EXPECT_EQ(message.Shown, tests::IconNamed(correlation.at("icon")));
    }
}

} // namespace
} // namespace quorvex::cycles
