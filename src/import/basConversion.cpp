// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basConversion.h"

#include "import/ContractFilter.h"
#include "import/PlainRows.h"
#include "import/Reading.h"
#include "import/RecordReader.h"
#include "import/RowPlaces.h"
#include "import/basBars.h"
#include "import/basDoubts.h"
#include "import/basTableDates.h"
#include "import/basWords.h"
#include "text/Characters.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <list>
#include <span>
#include <utility>

namespace quorvex::imports {

namespace {

constexpr std::size_t MostOfNote = 200; // bytes of a note that are told

bool IsUnreadable(RowResult const& result) {
    return result.Kind == RowKind::NoDay || result.Kind == RowKind::NoFigure;
}

bool IsOnWeekend(DayQuote const& quote) {
    constexpr unsigned Friday = 5;
    return std::chrono::weekday(quote.Day).iso_encoding() > Friday;
}

// Too few days tell nothing of their distances.
int DistanceOf(std::vector<DayQuote> const& quotes) {
    constexpr std::size_t FewestDays = 4;
    if (quotes.size() < FewestDays) {
        return 0;
    }
    std::vector<text::CalendarDay> days;
    std::ranges::transform(quotes, std::back_inserter(days), &DayQuote::Day);
    return MedianDistance(std::move(days));
}

// One reading with what it has to tell.
struct Candidate {
    Candidate(DateOrder order, DecimalMark mark, std::optional<int> fraction, Limits const& limits)
        : Read(order, mark, fraction, limits) {}

    Reading Read;
    Conversion Told;
    std::optional<text::CalendarDay> LastDay;
    bool Rises = true;
    bool Falls = true;
};

class Converter {
public:
    Converter(text::ByteSource& table, Plan const& plan, Limits const& limits)
        : plan_(plan),
          limits_(limits),
          reader_(table, plan.SeparatedBy),
          places_(plan),
          contracts_(places_.Contract(), plan.Symbol) {
        for (DateOrder const order : plan.DateOrders) {
            for (DecimalMark const mark : plan.Decimals) {
                candidates_.emplace_back(order, mark, plan.Fraction, limits_);
            }
        }
        common_.Used = plan;
        for (Finding const& note : plan.Notes) {
            common_.Notes.Add(note.Line, Shown(note.Text, MostOfNote));
        }
    }

    Conversion Run() {
        while (!common_.Refused && !IsHopeless() && (TakePlainRow() || TakeNext())) {
        }
        if (!common_.Refused && !reader_.Trouble().empty()) {
            common_.Refused = Refusal{{reader_.Line(), std::string(reader_.Trouble())}, Choice::Separator};
        }
        if (!common_.Refused) {
            Finish();
        }
        return std::move(common_);
    }

private:
    // Whether the only reading left is refused already.
    [[nodiscard]] bool IsHopeless() const {
        return candidates_.size() == 1 && candidates_.front().Told.Refused;
    }

    [[nodiscard]] bool TakePlainRow();
    [[nodiscard]] bool TakeNext();
    void TakeRecord(std::span<Field const> fields);
    void TakeRow(bool isVolumeLine);
    void TakeRowInDoubt(bool isVolumeLine);
    [[nodiscard]] bool TakeNote();
    void AddNote(std::span<Field const> fields);
    void Note(Candidate& candidate, RowResult const& result);
    void NoteOrder(Candidate& candidate, text::CalendarDay day) const;
    void LeaveOut(Conversion& told, std::string text) const;
    void Finish();
    void DropImpossibleCommas();
    void TakeOver(Candidate& candidate);

    Plan const& plan_;
    Limits const& limits_;
    RecordReader reader_;
    RowPlaces places_;
    ContractFilter contracts_;
    RowCells cells_; // of the row that is being taken
    std::list<Candidate> candidates_;
    std::optional<PlainRowReader> plainRows_; // of the only candidate
    PlainRow plainRow_;
    Conversion common_; // what does not depend on the reading, and at last everything
    DateExample firstDate_;
    bool arePricesQuoted_ = false;
};

// Takes the next line when it is an ordinary row, which then need not be made a record and understood cell by
// cell. Returns false when it is anything else, with nothing changed.
bool Converter::TakePlainRow() {
    if (candidates_.size() > 1 || reader_.NextLine() < plan_.FirstLine) {
        return false;
    }
    Candidate& only = candidates_.front();
    if (!plainRows_) {
        plainRows_.emplace(plan_, only.Read.Order(), only.Read.Mark());
    }
    if (!plainRows_->Read(reader_.Ahead(), plainRow_) || plainRow_.Length > RecordReader::MostOfRecord) {
        return false;
    }
    plainRow_.Quote.Line = reader_.NextLine();
    auto const result = only.Read.TakePlain(plainRow_.Quote);
    if (result.Kind != RowKind::Quote && result.Kind != RowKind::Repeat) {
        return false;
    }
    reader_.Pass(plainRow_.Length);
    ++common_.RowCount;
    cells_.Line = reader_.Line();
    cells_.Date = plainRow_.Date;
    Note(only, result);
    return true;
}

// Takes the next record. Returns whether there was one.
bool Converter::TakeNext() {
    if (!reader_.Next()) {
        return false;
    }
    if (reader_.Line() >= plan_.FirstLine) {
        TakeRecord(reader_.Fields());
    }
    return true;
}

void Converter::TakeRecord(std::span<Field const> fields) {
    if (std::ranges::none_of(fields, IsFilled)) {
        return;
    }
    cells_ = places_.CellsOf(fields, reader_.Line());
    if (places_.IsNote(fields) || places_.IsOfAllMonths(fields)) {
        AddNote(fields);
        return;
    }
    ++common_.RowCount;
    if (!contracts_.Takes(fields)) {
        ++common_.OtherSymbolCount;
        return;
    }
    if (!contracts_.AreOneContract()) {
        return; // refused at the end, when all names are known
    }
    if (places_.IsTooWide(fields)) {
        for (Candidate& candidate : candidates_) {
            LeaveOut(candidate.Told, "the row has " + std::to_string(fields.size()) + " cells, the table " +
                                         std::to_string(plan_.Columns.size()) + " columns");
        }
        return;
    }
    arePricesQuoted_ = arePricesQuoted_ || places_.IsPriceQuoted(fields);
    if (auto const half = places_.HalfOfCount(fields)) {
        common_.Refused =
            Refusal{{cells_.Line, Quoted(*half) + " looks like the end of a number with a thousands comma"},
                    Choice::Columns};
        return;
    }
    TakeRow(places_.IsVolumeLine(fields));
}

void Converter::AddNote(std::span<Field const> fields) {
    common_.Notes.Add(cells_.Line, Shown(std::ranges::find_if(fields, IsFilled)->Text, MostOfNote));
}

void Converter::TakeRow(bool isVolumeLine) {
    if (candidates_.size() > 1) {
        TakeRowInDoubt(isVolumeLine);
        return;
    }
    Candidate& only = candidates_.front();
    RowResult const result = only.Read.Take(cells_, isVolumeLine);
    if (result.Kind == RowKind::NoDay && TakeNote()) {
        return;
    }
    if (IsUnreadable(result)) {
        common_.Refused = RefuseContradiction(plan_, only.Read, result, cells_);
    }
    Note(only, result);
}

// A line without a day may be a note with commas in it, or a head once more: under another one the rows would
// be read wrongly.
bool Converter::TakeNote() {
    auto const fields = reader_.Fields();
    bool const isHead = RowPlaces::IsHead(fields);
    if (isHead && !places_.RepeatsTheHead(fields)) {
        common_.Refused =
            Refusal{{cells_.Line, "Another head stands here: the table is several ones. Make a file of each"},
                    Choice::None};
        return true;
    }
    bool const hasFigures = std::ranges::any_of(
        cells_.Figures, [](std::string_view cell) { return std::ranges::any_of(cell, text::IsDigit); });
    if (!isHead && hasFigures) {
        return false;
    }
    --common_.RowCount;
    AddNote(fields);
    return true;
}

// A row that some readings can read and others cannot ends these.
void Converter::TakeRowInDoubt(bool isVolumeLine) {
    if (firstDate_.Line == 0) {
        firstDate_ = {std::string(cells_.Date), cells_.Line};
    }
    std::vector<RowResult> results;
    for (Candidate& candidate : candidates_) {
        results.push_back(candidate.Read.Take(cells_, isVolumeLine));
    }
    bool const isReadable = !std::ranges::all_of(results, IsUnreadable);
    bool const isWithoutDay =
        std::ranges::all_of(results, [](RowResult const& result) { return result.Kind == RowKind::NoDay; });
    if (isWithoutDay && TakeNote()) {
        return;
    }
    if (!isReadable) {
        common_.Refused = RefuseContradiction(plan_, candidates_.front().Read, results.front(), cells_);
    }
    auto result = results.begin();
    for (auto candidate = candidates_.begin(); candidate != candidates_.end(); ++result) {
        if (isReadable && IsUnreadable(*result)) {
            candidate = candidates_.erase(candidate);
        } else {
            Note(*candidate, *result);
            ++candidate;
        }
    }
}

void Converter::LeaveOut(Conversion& told, std::string text) const {
    if (limits_.IsStrict && !told.Refused) {
        told.Refused = Refusal{{cells_.Line, text}, Choice::None};
    }
    told.LeftOut.Add(cells_.Line, std::move(text));
}

void Converter::NoteOrder(Candidate& candidate, text::CalendarDay day) const {
    if (candidate.LastDay) {
        candidate.Rises = candidate.Rises && day >= *candidate.LastDay;
        candidate.Falls = candidate.Falls && day <= *candidate.LastDay;
        if (!candidate.Told.Refused) {
            candidate.Told.Refused = RefuseTurn(*candidate.LastDay, day, cells_);
        }
    }
    candidate.LastDay = day;
}

void Converter::Note(Candidate& candidate, RowResult const& result) {
    Conversion& told = candidate.Told;
    switch (result.Kind) {
    case RowKind::Quote:
        NoteOrder(candidate, result.Day);
        return;
    case RowKind::Repeat:
        ++told.RepeatCount;
        return;
    case RowKind::Outside:
        ++told.OutsideCount;
        return;
    case RowKind::Volume:
        return;
    default:
        break;
    }
    if (!told.Refused) {
        told.Refused = RefuseRow(result, cells_);
    }
    std::string why = WhyLeftOut(result, cells_);
    if (!why.empty()) {
        LeaveOut(told, std::move(why));
    }
}

// Where commas separate, a number that is not quoted has none in it.
void Converter::DropImpossibleCommas() {
    if (plan_.SeparatedBy != Separator::Comma || arePricesQuoted_) {
        return;
    }
    bool const hasPoint = std::ranges::any_of(
        candidates_, [](Candidate const& one) { return one.Read.Mark() == DecimalMark::Point; });
    if (hasPoint) {
        candidates_.remove_if([](Candidate const& one) {
            return one.Read.Mark() == DecimalMark::Comma && !one.Read.HasGroupedCounts();
        });
    }
}

void Converter::TakeOver(Candidate& candidate) {
    Conversion& told = candidate.Told;
    common_.Used.DateOrders = {candidate.Read.Order()};
    common_.Used.Decimals = {candidate.Read.Mark()};
    common_.Days = candidate.Read.Days();
    common_.RepeatCount = told.RepeatCount;
    common_.OutsideCount = told.OutsideCount;
    common_.LeftOut = std::move(told.LeftOut);
    common_.Order = candidate.Rises   ? RowOrder::OldestFirst
                    : candidate.Falls ? RowOrder::NewestFirst
                                      : RowOrder::Mixed;
    for (DayQuote const& quote : common_.Days) {
        common_.WithoutVolume += quote.LacksVolume ? 1U : 0U;
        common_.WithoutOpenInterest += quote.LacksOpenInterest ? 1U : 0U;
        common_.WeekendCount += IsOnWeekend(quote) ? 1U : 0U;
        if (quote.HasSettlementMark) {
            common_.SettlementMarks.Add(quote.Line);
        }
    }
    common_.DaysApart = DistanceOf(common_.Days);
    common_.Refused =
        told.Refused ? told.Refused : RefuseDays(plan_, candidate.Read, common_.Days, common_.DaysApart);
}

void Converter::Finish() {
    common_.Symbols = contracts_.Names();
    common_.Refused = contracts_.Refused();
    if (common_.Refused) {
        return;
    }
    DropImpossibleCommas();
    for (Candidate const& other : candidates_) {
        Candidate const& first = candidates_.front();
        bool const isSame = first.Told.Refused.has_value() == other.Told.Refused.has_value() &&
                            std::ranges::equal(first.Read.Days(), other.Read.Days(), &DayQuote::IsSameAs);
        if (!isSame) {
            common_.Refused = RefuseDoubt(first.Read, other.Read, firstDate_);
            return;
        }
    }
    TakeOver(candidates_.front());
}

} // namespace

void Findings::Add(std::uint64_t line, std::string text) {
    ++Count;
    if (Kept.size() < MostFindings) {
        Kept.push_back({line, std::move(text)});
    }
}

Conversion ConvertTable(text::ByteSource& table, Plan const& plan, Limits const& limits) {
    if (plan.Refused) {
        Conversion conversion;
        conversion.Used = plan;
        conversion.Refused = plan.Refused;
        return conversion;
    }
    return Converter(table, plan, limits).Run();
}

} // namespace quorvex::imports
