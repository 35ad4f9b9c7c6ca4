// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/Operations.h"

#include <cmath>

namespace quorvex::tests {

using nlohmann::json;
using platform::DrawingOperation;

namespace {

constexpr double Hundredth = 0.01;

bool IsDashAtTheEdge(json const& operation, double width) {
    return operation.at(0) == "line" && std::fabs(operation.at(1).get<double>() - width) < Hundredth;
}

std::vector<json> WithoutEdgeDashes(json const& operations, double width) {
    std::vector<json> kept;
    for (auto const& operation : operations) {
        if (!IsDashAtTheEdge(operation, width)) {
            kept.push_back(operation);
        }
    }
    return kept;
}

} // namespace

std::vector<PlacedText> PlacedTexts(platform::RecordingCanvas const& canvas) {
    std::vector<PlacedText> texts;
    PlacedText next;
    for (DrawingOperation const& operation : canvas.Operations()) {
        if (operation.What == DrawingOperation::Kind::TextPosition) {
            next.X = operation.Coordinates[0];
            next.Y = operation.Coordinates[1];
        } else if (operation.What == DrawingOperation::Kind::Print) {
            next.Text = operation.Text;
            texts.push_back(next);
        }
    }
    return texts;
}

std::vector<std::string> PrintedTexts(platform::RecordingCanvas const& canvas) {
    std::vector<std::string> texts;
    for (PlacedText& placed : PlacedTexts(canvas)) {
        texts.push_back(std::move(placed.Text));
    }
    return texts;
}

json OperationJson(DrawingOperation const& operation) {
    auto const& at = operation.Coordinates;
    switch (operation.What) {
    case DrawingOperation::Kind::Clear:
        return json::array({"clear"});
    case DrawingOperation::Kind::ForeColour:
        return json::array({"fore", operation.Drawn});
    case DrawingOperation::Kind::Point:
        return json::array({"point", at[0], at[1], operation.Drawn});
    case DrawingOperation::Kind::Line:
        return json::array({"line", at[0], at[1], at[2], at[3], operation.Drawn});
    case DrawingOperation::Kind::Rectangle:
        return json::array({"rect", at[0], at[1], at[2], at[3], operation.Drawn, operation.Flag});
    case DrawingOperation::Kind::TextPosition:
        return json::array({"text_pos", at[0], at[1]});
    case DrawingOperation::Kind::Font:
        return json::array({"font", operation.Text, static_cast<int>(at[0]), operation.Flag});
    case DrawingOperation::Kind::Print:
        return json::array({"print", operation.Text});
    }
    return {};
}

testing::AssertionResult IsOperation(json const& actual, json const& expected) {
    bool same = actual.size() == expected.size();
    for (std::size_t index = 0; same && index < expected.size(); ++index) {
        auto const& a = actual.at(index);
        auto const& b = expected.at(index);
        same = b.is_number() ? std::fabs(a.get<double>() - b.get<double>()) <= Hundredth : a == b;
    }
    if (!same) {
        return testing::AssertionFailure() << actual << " instead of " << expected;
    }
    return testing::AssertionSuccess();
}

testing::AssertionResult AreOperations(std::vector<DrawingOperation> const& actual, json const& expected,
                                       double width) {
    json drawn = json::array();
    for (auto const& operation : actual) {
        drawn.push_back(OperationJson(operation));
    }
    auto const left = WithoutEdgeDashes(drawn, width);
    auto const right = WithoutEdgeDashes(expected, width);
    for (std::size_t index = 0; index < std::min(left.size(), right.size()); ++index) {
        auto const result = IsOperation(left[index], right[index]);
        if (!result) {
            return testing::AssertionFailure() << "operation " << index << ": " << result.message();
        }
    }
    if (left.size() != right.size()) {
        return testing::AssertionFailure() << left.size() << " operations instead of " << right.size();
    }
    return testing::AssertionSuccess();
}

} // namespace quorvex::tests
