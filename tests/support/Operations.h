// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/RecordingCanvas.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace quorvex::tests {

// A text and where its left upper corner stands, in twips.
struct PlacedText {
    double X = 0;
    double Y = 0;
    std::string Text;
};

// What was printed, in the order of drawing.
[[nodiscard]] std::vector<PlacedText> PlacedTexts(platform::RecordingCanvas const& canvas);
[[nodiscard]] std::vector<std::string> PrintedTexts(platform::RecordingCanvas const& canvas);

// A drawing operation in the notation of the reference vectors.
[[nodiscard]] nlohmann::json OperationJson(platform::DrawingOperation const& operation);

// For EXPECT_TRUE: the same operation, coordinates to a hundredth of a twip.
[[nodiscard]] testing::AssertionResult IsOperation(nlohmann::json const& actual,
                                                   nlohmann::json const& expected);

// For EXPECT_TRUE: the same operations one by one. A dash that would start at the right edge of a box of this
// width lies outside it and is there or not by rounding; it does not count.
[[nodiscard]] testing::AssertionResult AreOperations(std::vector<platform::DrawingOperation> const& actual,
                                                     nlohmann::json const& expected, double width);

} // namespace quorvex::tests
