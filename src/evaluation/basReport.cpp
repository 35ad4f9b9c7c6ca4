// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basReport.h"

#include "evaluation/basVerdicts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace quorvex::evaluation {

namespace {

std::string TableLine(TableRow const& row, std::array<std::size_t, TableColumns.size()> const& widths) {
    std::string line;
    for (std::size_t column = 0; column < TableColumns.size(); ++column) {
        std::string const& text = row.*TableColumns.at(column);
        std::string const padding(widths.at(column) - text.size(), ' ');
        bool const isRight = TableColumns.at(column) == &TableRow::Days;
        line += (column > 0 ? "  " : "") + (isRight ? padding + text : text + padding);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string Table(Evaluation const& evaluation) {
    std::vector<TableRow> rows = {TableHead()};
    for (TableRow& row : TableRows(evaluation)) {
        rows.push_back(std::move(row));
    }
    std::array<std::size_t, TableColumns.size()> widths{};
    for (TableRow const& row : rows) {
        for (std::size_t column = 0; column < TableColumns.size(); ++column) {
            widths.at(column) = std::max(widths.at(column), (row.*TableColumns.at(column)).size());
        }
    }
    std::string lines;
    for (TableRow const& row : rows) {
        lines += TableLine(row, widths);
    }
    return lines;
}

std::string SectionText(ReportSection const& section) {
    std::string text = std::string(section.Head) + '\n';
    for (std::string const& line : section.Lines) {
        text += "  " + line + '\n';
    }
    return text;
}

} // namespace

ReportSection KeySection(Evaluation const& evaluation) {
    return {"Key", TableKey(evaluation)};
}

std::vector<ReportSection> Notes(Evaluation const& evaluation) {
    std::vector<ReportSection> notes = {
        {"Without a forecast", FaultLines(evaluation)},
        {"Correlation with the moving average of all days", SurrogateLines(evaluation)}};
    std::erase_if(notes, [](ReportSection const& section) { return section.Lines.empty(); });
    return notes;
}

std::string EvaluationReport(Evaluation const& evaluation) {
    std::string report = VerdictOf(evaluation) + "\n\n" + DescribeTest(evaluation) + "\n\n" +
                         Table(evaluation) + '\n' + SectionText(KeySection(evaluation));
    for (ReportSection const& section : Notes(evaluation)) {
        report += '\n' + SectionText(section);
    }
    ReportSection verdicts{"Verdict", {}};
    for (ModelReport const& model : evaluation.Models) {
        verdicts.Lines.push_back(ModelName(model.Model) + ": " + model.Verdict);
    }
    return report + '\n' + SectionText(verdicts);
}

} // namespace quorvex::evaluation
