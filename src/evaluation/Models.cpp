// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/Models.h"

#include "text/basFormats.h"

namespace quorvex::evaluation {

std::vector<Model> StandardModels(bool withParameters) {
    std::vector<Model> models = {{Method::Automate, 1}, {Method::Automate, 2}, {Method::Automate, 3},
                                 {Method::Search, 1},   {Method::Search, 2},   {Method::Search, 3},
                                 {Method::Search, 5}};
    if (withParameters) {
        models.push_back({Method::Parameters, 0});
    }
    return models;
}

std::string ModelName(Model const& model) {
    std::string const cycles = text::Counted(model.CycleCount, "cycle");
    switch (model.Method) {
    case Method::Automate:
        return "Fit of " + cycles;
    case Method::Search:
        return "Quick search of " + cycles;
    case Method::Parameters:
        return "Parameters (fixed cycles)";
    }
    return {};
}

bool IsRefitted(Model const& model) {
    return model.Method != Method::Parameters;
}

std::string_view KindName(ForecastKind kind) {
    switch (kind) {
    case ForecastKind::Window:
        return "window";
    case ForecastKind::Composite:
        return "composite";
    case ForecastKind::Scaled:
        return "scaled";
    }
    return {};
}

} // namespace quorvex::evaluation
