// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/EvaluationReport.h"

#include "evaluation/basVerdicts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace quorvex::cli {

namespace {

using evaluation::TableRow;

// The columns in order; days stand at the right.
constexpr std::array<std::string TableRow::*, 7> Columns = {
    &TableRow::Model, &TableRow::Kind,        &TableRow::Days,  &TableRow::Error,
    &TableRow::Right, &TableRow::Correlation, &TableRow::Chance};

std::string TableLine(TableRow const& row, std::array<std::size_t, Columns.size()> const& widths) {
    std::string line;
    for (std::size_t column = 0; column < Columns.size(); ++column) {
        std::string const& text = row.*Columns.at(column);
        std::string const padding(widths.at(column) - text.size(), ' ');
        bool const isRight = Columns.at(column) == &TableRow::Days;
        line += (column > 0 ? "  " : "") + (isRight ? padding + text : text + padding);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string Table(evaluation::Evaluation const& evaluation) {
    std::vector<TableRow> rows = {evaluation::TableHead()};
    for (TableRow& row : evaluation::TableRows(evaluation)) {
        rows.push_back(std::move(row));
    }
    std::array<std::size_t, Columns.size()> widths{};
    for (TableRow const& row : rows) {
        for (std::size_t column = 0; column < Columns.size(); ++column) {
            widths.at(column) = std::max(widths.at(column), (row.*Columns.at(column)).size());
        }
    }
    std::string lines;
    for (TableRow const& row : rows) {
        lines += TableLine(row, widths);
    }
    return lines;
}

std::string Section(std::string_view head, std::vector<std::string> const& lines) {
    std::string section;
    for (std::string const& line : lines) {
        section += section.empty() ? '\n' + std::string(head) + '\n' : "";
        section += "  " + line + '\n';
    }
    return section;
}

} // namespace

std::string EvaluationReport(evaluation::Evaluation const& evaluation) {
    std::vector<std::string> verdicts;
    for (evaluation::ModelReport const& model : evaluation.Models) {
        verdicts.push_back(evaluation::ModelName(model.Model) + ": " + model.Verdict);
    }
    return evaluation::DescribeTest(evaluation) + "\n\n" + Table(evaluation) +
           Section("Key", evaluation::TableKey(evaluation)) +
           Section("Without a forecast", evaluation::FaultLines(evaluation)) +
           Section("Correlation with the moving average of all days",
                   evaluation::SurrogateLines(evaluation)) +
           Section("Verdict", verdicts);
}

} // namespace quorvex::cli
