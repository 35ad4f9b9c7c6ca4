// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ImportJson.h"

#include "cli/JsonText.h"
#include "text/basDates.h"
#include "text/basFormats.h"

namespace quorvex::cli {

namespace {

Json LineJson(std::uint64_t line) {
    return line == 0 ? Json() : Json(line);
}

Json RefusalJson(std::optional<imports::Refusal> const& refusal) {
    return refusal ? Json{{"Line", LineJson(refusal->Told.Line)}, {"Text", refusal->Told.Text}} : Json();
}

Json FindingsJson(imports::Findings const& findings) {
    Json lines = Json::array();
    for (imports::Finding const& finding : findings.Kept) {
        lines.push_back({{"Line", LineJson(finding.Line)}, {"Text", finding.Text}});
    }
    return {{"Count", findings.Count}, {"Lines", std::move(lines)}};
}

// What is not settled is null.
template <class Value>
Json SettledJson(std::vector<Value> const& values) {
    return values.size() == 1 ? Json(NameOf(values.front())) : Json();
}

Json PlanJson(imports::Plan const& plan) {
    Json columns = Json::array();
    for (imports::ColumnPlan const& column : plan.Columns) {
        columns.push_back(
            {{"Heading", column.Heading}, {"Role", NameOf(column.Is)}, {"Reason", column.Reason}});
    }
    return {{"Encoding", NameOf(plan.EncodedIn)},  {"Separator", NameOf(plan.SeparatedBy)},
            {"HeadLines", plan.HeadLines},         {"DateOrder", SettledJson(plan.DateOrders)},
            {"DateReason", plan.DateReason},       {"DecimalMark", SettledJson(plan.Decimals)},
            {"DecimalReason", plan.DecimalReason}, {"Columns", std::move(columns)}};
}

Json QuoteJson(imports::DayQuote const& quote) {
    Json row = {text::FormatDate(quote.Day)};
    for (double const figure : quote.Figures) {
        row.push_back(figure);
    }
    return row;
}

Json QuoteRowsJson(std::vector<imports::DayQuote> const& quotes) {
    Json rows = Json::array();
    for (imports::DayQuote const& quote : quotes) {
        rows.push_back(QuoteJson(quote));
    }
    return rows;
}

Json MergeJson(ImportResult const& result) {
    if (!result.File.Merged) {
        return {};
    }
    imports::Merge const& merge = *result.File.Merged;
    Json changed = Json::array();
    for (imports::DayChange const& change : merge.Changed) {
        changed.push_back({{"Line", LineJson(change.After.Line)},
                           {"Before", QuoteJson(change.Before)},
                           {"After", QuoteJson(change.After)}});
    }
    return {{"Appended", QuoteRowsJson(merge.Appended)},
            {"Inserted", QuoteRowsJson(merge.Inserted)},
            {"Equal", merge.EqualCount},
            {"Changed", std::move(changed)},
            {"IsReplacing", result.IsReplacing},
            {"TooOld", merge.OlderCount},
            {"Leaving", merge.LeavingCount},
            {"PassedOver", result.File.Old->PassedCount},
            {"HasGap", merge.HasGap}};
}

Json OccurrencesJson(imports::Occurrences const& occurrences) {
    return {{"Count", occurrences.Count}, {"FirstLine", LineJson(occurrences.FirstLine)}};
}

Json RoundedJson(ImportResult const& result) {
    return result.File.Refused ? Json()
                               : OccurrencesJson(imports::CountRounded(
                                     result.File.Days, text::NumberFormat(result.CurrencyFormat)));
}

Json RowsJson(imports::Conversion const& read) {
    return {{"Read", read.RowCount},
            {"Days", read.Days.size()},
            {"Repeated", read.RepeatCount},
            {"NotAskedFor", read.OutsideCount},
            {"OtherContracts", read.OtherSymbolCount},
            {"WithoutVolume", read.WithoutVolume},
            {"WithoutOpenInterest", read.WithoutOpenInterest},
            {"OnWeekends", read.WeekendCount},
            {"WithSettlementMark", OccurrencesJson(read.SettlementMarks)},
            {"DaysApart", read.DaysApart == 0 ? Json() : Json(read.DaysApart)}};
}

} // namespace

std::string ImportJson(ImportResult const& result) {
    return JsonText({{"Source", result.Source},
                     {"QuoteFile", result.Target.empty() ? Json() : Json(result.Target)},
                     {"IsWritten", result.IsWritten},
                     {"Refused", RefusalJson(result.File.Refused)},
                     {"Plan", PlanJson(result.Read.Used)},
                     {"Rows", RowsJson(result.Read)},
                     {"LeftOut", FindingsJson(result.Read.LeftOut)},
                     {"OtherLines", FindingsJson(result.Read.Notes)},
                     {"Update", MergeJson(result)},
                     {"Rounded", RoundedJson(result)},
                     {"Quotes", result.File.Refused ? Json() : QuoteRowsJson(result.File.Days)}});
}

} // namespace quorvex::cli
