// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ChartJson.h"

#include "cli/JsonText.h"

#include <cstddef>

namespace quorvex::cli {

namespace {

using platform::DrawingOperation;

Json OperationJson(DrawingOperation const& operation) {
    auto const& at = operation.Coordinates;
    switch (operation.What) {
    case DrawingOperation::Kind::Clear:
        return {"clear"};
    case DrawingOperation::Kind::ForeColour:
        return {"fore", operation.Drawn};
    case DrawingOperation::Kind::Point:
        return {"point", at[0], at[1], operation.Drawn};
    case DrawingOperation::Kind::Line:
        return {"line", at[0], at[1], at[2], at[3], operation.Drawn};
    case DrawingOperation::Kind::Rectangle:
        return {"rect", at[0], at[1], at[2], at[3], operation.Drawn, operation.Flag};
    case DrawingOperation::Kind::TextPosition:
        return {"text_pos", at[0], at[1]};
    case DrawingOperation::Kind::Font:
        return {"font", operation.Text, at[0], operation.Flag};
    case DrawingOperation::Kind::Print:
        return {"print", operation.Text};
    }
    return {};
}

Json BoxJson(platform::RecordingCanvas const& box) {
    Json operations = Json::array();
    for (DrawingOperation const& operation : box.Operations()) {
        operations.push_back(OperationJson(operation));
    }
    return {{"width", box.Width()}, {"height", box.Height()}, {"ops", operations}};
}

} // namespace

std::string ChartJson(std::array<platform::RecordingCanvas const*, 4> const& boxes) {
    Json charts = Json::object();
    for (std::size_t index = 0; index < boxes.size(); ++index) {
        charts["Pic" + std::to_string(index + 1)] = BoxJson(*boxes.at(index));
    }
    return JsonText(charts);
}

} // namespace quorvex::cli
