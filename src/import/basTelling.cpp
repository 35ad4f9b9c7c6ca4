// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basTelling.h"

#include "import/basBars.h"
#include "text/basDates.h"
#include "text/basFormats.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <array>

namespace quorvex::imports {

namespace {

constexpr std::array<Role, 9> ToldRoles = {Role::Date,   Role::Time,         Role::Open,
                                           Role::High,   Role::Low,          Role::Close,
                                           Role::Volume, Role::OpenInterest, Role::Symbol};

// "1 row", "2 rows".
std::string Counted(std::uint64_t count, std::string_view noun) {
    return std::to_string(count).append(" ").append(noun).append(count == 1 ? "" : "s");
}

std::string Verb(std::uint64_t count) {
    return count == 1 ? " is " : " are ";
}

std::string FiguresText(DayQuote const& quote) {
    std::string text;
    for (double const figure : quote.Figures) {
        text.append(text.empty() ? "" : ", ").append(text::PlainNumber(figure));
    }
    return text;
}

std::string RangeText(std::vector<DayQuote> const& days) {
    return Counted(days.size(), "day") + ", " + text::FormatDate(days.front().Day) + " to " +
           text::FormatDate(days.back().Day);
}

bool IsNeeded(Role role) {
    return role == Role::Date || std::find(FigureRoles.begin(), FigureRoles.begin() + PriceCount, role) !=
                                     FigureRoles.begin() + PriceCount;
}

std::string RefusalText(Refusal const& refusal) {
    return FindingText(refusal.Told) + ".";
}

void AddCount(std::vector<std::string>& lines, std::uint64_t count, std::string_view noun,
              std::string_view what) {
    if (count > 0) {
        lines.push_back(Counted(count, noun).append(" ").append(what));
    }
}

std::string FirstAt(Occurrences const& occurrences) {
    return (occurrences.Count == 1 ? ", at line " : ", the first at line ") +
           std::to_string(occurrences.FirstLine);
}

void AddFindings(std::vector<std::string>& lines, Findings const& findings, std::string_view what) {
    for (Finding const& finding : findings.Kept) {
        lines.push_back(FindingText(finding).append(what));
    }
    AddCount(lines, findings.Count - findings.Kept.size(), "more line", "of this kind");
}

} // namespace

std::string FindingText(Finding const& finding) {
    return finding.Line == 0 ? finding.Text : "Line " + std::to_string(finding.Line) + ": " + finding.Text;
}

std::string_view NameOf(RowOrder order) {
    switch (order) {
    case RowOrder::OldestFirst:
        return "oldest first";
    case RowOrder::NewestFirst:
        return "newest first";
    case RowOrder::Mixed:
        return "in no order";
    }
    return {};
}

std::string ChangeText(DayChange const& change) {
    return text::FormatDate(change.Before.Day) + ": " + FiguresText(change.Before) + " in the file, " +
           FiguresText(change.After) + " at line " + std::to_string(change.After.Line);
}

std::vector<PlanRow> PlanRows(Plan const& plan) {
    auto const rowOf = [&plan](std::size_t column) {
        ColumnPlan const& there = plan.Columns[column];
        std::string name = std::to_string(column + 1);
        name.append(there.Heading.empty() ? "" : "  " + there.Heading);
        return PlanRow{std::string(NameOf(there.Is)), name, there.Reason};
    };
    std::vector<PlanRow> rows;
    for (Role const role : ToldRoles) {
        bool isThere = false;
        for (std::size_t column = 0; column < plan.Columns.size(); ++column) {
            if (plan.Columns[column].Is == role) {
                rows.push_back(rowOf(column));
                isThere = true;
            }
        }
        if (!isThere && IsNeeded(role)) {
            rows.push_back({std::string(NameOf(role)), {}, "no column was found"});
        }
    }
    for (std::size_t column = 0; column < plan.Columns.size(); ++column) {
        if (plan.Columns[column].Is == Role::Unused) {
            rows.push_back(rowOf(column));
        }
    }
    return rows;
}

std::string DescribeConversion(Conversion const& conversion) {
    if (conversion.Refused) {
        return RefusalText(*conversion.Refused);
    }
    std::string text =
        Counted(conversion.RowCount, "row") + ", " + std::string(NameOf(conversion.Order)) + ": ";
    text += conversion.Days.empty() ? "no days" : RangeText(conversion.Days);
    if (std::uint64_t const count = conversion.LeftOut.Count; count > 0) {
        text += ". " + Counted(count, "row") + Verb(count) + "left out";
    }
    return text + ".";
}

std::string DescribeQuoteFile(QuoteFile const& file) {
    return file.Refused ? RefusalText(*file.Refused) : RangeText(file.Days) + ".";
}

std::string DescribeUpdate(QuoteFile const& file, std::string_view name, bool replaces) {
    std::string text = "Update of " + std::string(name) + ": ";
    if (file.Refused) {
        return text + RefusalText(*file.Refused);
    }
    Merge const& merge = *file.Merged;
    text += Counted(merge.Appended.size(), "day") + " appended";
    if (!merge.Inserted.empty()) {
        text += ", " + std::to_string(merge.Inserted.size()) + " inserted";
    }
    text += ", " + std::to_string(merge.EqualCount) + " there already";
    if (!merge.Changed.empty()) {
        text += ", " + std::to_string(merge.Changed.size()) +
                (replaces ? " changed and replaced" : " changed and kept as in the file");
    }
    if (merge.OlderCount > 0) {
        text += ", " + std::to_string(merge.OlderCount) + " too old";
    }
    if (merge.LeavingCount > 0) {
        text += ", " + std::to_string(merge.LeavingCount) + " leaving";
    }
    text += file.HasNews() ? "." : ": nothing is new.";
    if (merge.HasGap) {
        text += " More than a week lies between the last day of the file and the first new one.";
    }
    return text;
}

std::string DescribeRounding(QuoteFile const& file, std::string_view currencyFormat) {
    Occurrences const rounded =
        file.Refused ? Occurrences() : CountRounded(file.Days, text::NumberFormat(currencyFormat));
    if (rounded.Count == 0) {
        return {};
    }
    return Counted(rounded.Count, "day") + " with prices of more decimals than the Currency Format " +
           std::string(currencyFormat) + " keeps" + FirstAt(rounded) + ": the program rounds them";
}

std::vector<std::string> FindingLines(Conversion const& conversion) {
    std::vector<std::string> lines;
    if (conversion.Refused) {
        lines.push_back(FindingText(conversion.Refused->Told));
    }
    if (conversion.DaysApart > 1 && !conversion.Refused) {
        lines.push_back(DescribeBars(conversion.DaysApart));
    }
    AddFindings(lines, conversion.LeftOut, ", left out");
    AddFindings(lines, conversion.Notes, " (no row)");
    AddCount(lines, conversion.RepeatCount, "row", "repeated");
    AddCount(lines, conversion.OutsideCount, "row", "outside of the days asked for");
    AddCount(lines, conversion.OtherSymbolCount, "row", "of other contracts");
    AddCount(lines, conversion.WithoutVolume, "day", "without volume, which is 0");
    AddCount(lines, conversion.WithoutOpenInterest, "day", "without open interest, which is 0");
    AddCount(lines, conversion.WeekendCount, "day", "on weekends");
    AddCount(lines, conversion.SettlementMarks.Count, "day",
             "with the mark s of a settlement, which is passed over" + FirstAt(conversion.SettlementMarks));
    return lines;
}

} // namespace quorvex::imports
