// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ImportReport.h"

#include "import/basBars.h"
#include "import/basTelling.h"
#include "text/basDates.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace quorvex::cli {

namespace {

constexpr std::size_t LabelWidth = 16;

// A heading with lines under it, once there is a line.
class ReportPart {
public:
    ReportPart(std::string& report, std::string_view title) : report_(report), title_(title) {}

    void Add(std::string_view line) {
        report_.append(isStarted_ ? "" : title_).append(isStarted_ ? "" : "\n");
        isStarted_ = true;
        report_.append("  ").append(line).append("\n");
    }

    void Add(std::string_view label, std::string_view value) {
        std::string line(label);
        line.resize(std::max(line.size() + 1, LabelWidth), ' ');
        Add(line.append(value));
    }

private:
    std::string& report_;
    std::string_view title_;
    bool isStarted_ = false;
};

std::string Columned(std::string text, std::size_t width) {
    text.resize(std::max(text.size(), width), ' ');
    return text + "  ";
}

std::string WithReason(std::string_view text, std::string_view reason) {
    std::string whole(text);
    return reason.empty() ? whole : whole.append(" (").append(reason).append(")");
}

// What is not settled has several names.
template <class Value>
std::string NamesOf(std::vector<Value> const& values) {
    std::string names;
    for (Value const value : values) {
        names.append(names.empty() ? "" : " or ").append(imports::NameOf(value));
    }
    return names;
}

void AddTable(std::string& report, ImportResult const& result) {
    imports::Plan const& plan = result.Read.Used;
    ReportPart section(report, "Table");
    section.Add("Source", result.Source);
    section.Add("Encoding", NameOf(plan.EncodedIn));
    section.Add("Separated by", NameOf(plan.SeparatedBy));
    section.Add("Dates", WithReason(NamesOf(plan.DateOrders), plan.DateReason));
    section.Add("Decimal mark", WithReason(NamesOf(plan.Decimals), plan.DecimalReason));
    if (plan.HasVolumeLines) {
        section.Add("Volume", "in lines of their own, with a small month letter");
    }
}

void AddColumns(std::string& report, imports::Plan const& plan) {
    constexpr std::size_t NumberWidth = 3;
    constexpr std::size_t RoleWidth = 13;
    std::size_t width = 0;
    for (imports::ColumnPlan const& column : plan.Columns) {
        width = std::max(width, column.Heading.size());
    }
    ReportPart section(report, "Columns");
    for (std::size_t index = 0; index < plan.Columns.size(); ++index) {
        imports::ColumnPlan const& column = plan.Columns[index];
        std::string line = Columned(std::to_string(index + 1), NumberWidth);
        line += Columned(column.Heading, width);
        section.Add(line.append(Columned(std::string(NameOf(column.Is)), RoleWidth)).append(column.Reason));
    }
}

void AddCount(ReportPart& section, std::string_view label, std::uint64_t count) {
    if (count > 0) {
        section.Add(label, std::to_string(count));
    }
}

void AddOccurrences(ReportPart& section, std::string_view label, imports::Occurrences const& occurrences) {
    if (occurrences.Count > 0) {
        section.Add(label, WithReason(std::to_string(occurrences.Count),
                                      "first at line " + std::to_string(occurrences.FirstLine)));
    }
}

void AddRows(std::string& report, ImportResult const& result) {
    imports::Conversion const& read = result.Read;
    ReportPart section(report, "Rows");
    section.Add("Read", WithReason(std::to_string(read.RowCount), NameOf(read.Order)));
    section.Add("Days", std::to_string(read.Days.size()));
    AddCount(section, "Left out", read.LeftOut.Count);
    AddCount(section, "Repeated", read.RepeatCount);
    AddCount(section, "Not asked for", read.OutsideCount);
    AddCount(section, "Other contracts", read.OtherSymbolCount);
    AddCount(section, "Without volume", read.WithoutVolume);
    AddCount(section, "Without OI", read.WithoutOpenInterest);
    AddCount(section, "On weekends", read.WeekendCount);
    AddOccurrences(section, "Mark s", read.SettlementMarks);
    if (read.DaysApart > 1) {
        section.Add(imports::DescribeBars(read.DaysApart));
    }
}

void AddFindings(std::string& report, std::string_view title, imports::Findings const& findings) {
    ReportPart section(report, title);
    for (imports::Finding const& finding : findings.Kept) {
        section.Add(imports::FindingText(finding));
    }
    if (findings.Count > findings.Kept.size()) {
        section.Add("and " + std::to_string(findings.Count - findings.Kept.size()) + " more");
    }
}

void AddMerge(std::string& report, ImportResult const& result) {
    imports::Merge const& merge = *result.File.Merged;
    ReportPart section(report, "Update");
    section.Add("Appended", std::to_string(merge.Appended.size()));
    section.Add("Inserted", std::to_string(merge.Inserted.size()));
    section.Add("There already", std::to_string(merge.EqualCount));
    section.Add(result.IsReplacing ? "Replaced" : "Kept as it was", std::to_string(merge.Changed.size()));
    AddCount(section, "Too old", merge.OlderCount);
    AddCount(section, "Leaving", merge.LeavingCount);
    if (merge.HasGap) {
        section.Add("More than a week lies between the last day of the file and the first new one");
    }
    for (imports::DayChange const& change : merge.Changed) {
        section.Add(imports::ChangeText(change));
    }
}

void AddQuoteFile(std::string& report, ImportResult const& result) {
    auto const& days = result.File.Days;
    ReportPart section(report, "Quote file");
    std::string const latest = !result.File.Merged && days.size() < result.Read.Days.size()
                                   ? ", the latest of " + std::to_string(result.Read.Days.size())
                                   : "";
    section.Add("Days", std::to_string(days.size()) + ", " + text::FormatDate(days.front().Day) + " to " +
                            text::FormatDate(days.back().Day) + latest);
    std::string const rounding = imports::DescribeRounding(result.File, result.CurrencyFormat);
    if (!rounding.empty()) {
        section.Add(rounding);
    }
    if (result.IsWritten) {
        section.Add("Written", result.Target);
    } else {
        section.Add(result.File.HasNews() ? "Nothing was written"
                                          : "Nothing is new, and nothing was written");
    }
}

} // namespace

std::string ImportReport(ImportResult const& result) {
    std::string report;
    if (result.Read.Used.Columns.empty()) {
        return report;
    }
    AddTable(report, result);
    AddColumns(report, result.Read.Used);
    if (!result.Read.Refused) {
        AddRows(report, result);
        AddFindings(report, "Rows left out", result.Read.LeftOut);
        AddFindings(report, "Other lines", result.Read.Notes);
        if (result.File.Merged) {
            AddMerge(report, result);
        }
    }
    if (!result.File.Refused) {
        AddQuoteFile(report, result);
    }
    return report;
}

} // namespace quorvex::cli
