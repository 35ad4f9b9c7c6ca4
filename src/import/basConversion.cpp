// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basConversion.h"

#include "import/PlainRows.h"
#include "import/Reading.h"
#include "import/RecordReader.h"
#include "import/basBars.h"
#include "import/basColumns.h"
#include "import/basTableDates.h"
#include "import/basWords.h"
#include "text/Characters.h"
#include "text/basNumbers.h"
#include "text/basTexts.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <list>
#include <span>
#include <utility>

namespace quorvex::imports {

namespace {

constexpr std::size_t MostNames = 12;         // that are told
constexpr std::size_t MostKept = 200;         // that can be chosen from
constexpr std::size_t MostOfNote = 200;       // bytes of a note that are told
constexpr std::string_view AllMonths = "DVL"; // the volume of all contracts together

// A cell as it is told, quoted and not too long.
std::string Quoted(std::string_view cell) {
    constexpr std::size_t MostShown = 40;
    return "\"" + Shown(cell, MostShown) + "\"";
}

std::string The(Role role) {
    return "the " + std::string(NameOf(role));
}

std::string_view CellOf(RowCells const& cells, Role role) {
    if (role == Role::Date) {
        return cells.Date;
    }
    auto const found = std::ranges::find(FigureRoles, role);
    return found == FigureRoles.end()
               ? std::string_view()
               : cells.Figures.at(static_cast<std::size_t>(found - FigureRoles.begin()));
}

// A letter behind a number is a mark of the vendor's.
std::string WhyNoNumber(std::string_view cell) {
    bool const isMarked = cell.size() > 1 && text::IsDigit(cell.front()) &&
                          text::IsDigit(cell[cell.size() - 2]) && !text::IsDigit(cell.back());
    return isMarked ? std::string(": of the marks behind a price only the s of a settlement is known") : "";
}

// Why the row is left out.
std::string WhyLeftOut(RowResult const& result, RowCells const& cells) {
    std::string const cell = Quoted(CellOf(cells, result.Of));
    switch (result.Kind) {
    case RowKind::NoDay:
        return cell + " is no date";
    case RowKind::NoYear:
        return cell + " is no day of 1950 to 2049";
    case RowKind::NoFigure:
        return The(result.Of) + " " + cell + " is no number" + WhyNoNumber(CellOf(cells, result.Of));
    case RowKind::NoPrice:
        return The(result.Of) + " is missing";
    case RowKind::NotPositive:
        return The(result.Of) + " " + cell + " is not above zero";
    case RowKind::Negative:
        return The(result.Of) + " " + cell + " is below zero";
    case RowKind::OutOfRange:
        return result.Of == Role::High ? "the high is below the low"
                                       : The(result.Of) + " " + cell + " lies outside of high and low";
    case RowKind::Unsuited:
        return "the prices are beyond what a quote file can hold";
    default:
        return {};
    }
}

bool IsUnreadable(RowResult const& result) {
    return result.Kind == RowKind::NoDay || result.Kind == RowKind::NoFigure;
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

// Which cells of a row are what.
struct CellPlaces {
    explicit CellPlaces(Plan const& plan) : Date(plan.Find(Role::Date)), Time(plan.Find(Role::Time)) {
        for (std::size_t index = 0; index < FigureCount; ++index) {
            Figures.at(index) = plan.Find(FigureRoles.at(index));
        }
        for (std::size_t column = 0; column < plan.Columns.size(); ++column) {
            if (plan.Columns[column].Is == Role::Symbol) {
                Symbols.push_back(column);
            }
        }
    }

    std::optional<std::size_t> Date;
    std::optional<std::size_t> Time;
    std::array<std::optional<std::size_t>, FigureCount> Figures;
    std::vector<std::size_t> Symbols;
};

std::string_view TextAt(std::span<Field const> fields, std::optional<std::size_t> column) {
    return column && *column < fields.size() ? fields[*column].Text : std::string_view();
}

// Tells the contracts of a table apart.
class SymbolFilter {
public:
    SymbolFilter(std::vector<std::size_t> const& columns, std::optional<std::string> wanted)
        : columns_(columns),
          cells_(columns.size()),
          wanted_(std::move(wanted)) {}

    // Whether the row is of a contract that is taken.
    bool Takes(std::span<Field const> fields) {
        if (!isFirst_ && IsSameAsBefore(fields)) {
            return taken_;
        }
        isFirst_ = false;
        std::string name;
        bool isWanted = !wanted_;
        for (std::size_t index = 0; index < columns_.size(); ++index) {
            cells_[index] = TextAt(fields, columns_[index]);
            std::string const part = text::UpperCase(cells_[index]);
            isWanted = isWanted || (!part.empty() && part == *wanted_);
            name.append(name.empty() || part.empty() ? "" : " ").append(part);
        }
        taken_ = isWanted || name == *wanted_;
        auto& names = taken_ ? names_ : others_;
        if (std::ranges::find(names, name) == names.end() && names.size() < MostKept) {
            names.push_back(name);
        }
        return taken_;
    }

    // The contracts that were taken, and those that were not; the first of them.
    [[nodiscard]] std::vector<std::string> const& Names() const { return names_; }

    [[nodiscard]] std::vector<std::string> const& Others() const { return others_; }

private:
    [[nodiscard]] bool IsSameAsBefore(std::span<Field const> fields) const {
        for (std::size_t index = 0; index < columns_.size(); ++index) {
            if (TextAt(fields, columns_[index]) != cells_[index]) {
                return false;
            }
        }
        return true;
    }

    std::vector<std::size_t> const& columns_;
    std::vector<std::string> cells_; // of the row before
    std::optional<std::string> wanted_;
    std::vector<std::string> names_;
    std::vector<std::string> others_;
    bool isFirst_ = true;
    bool taken_ = false;
};

std::string Listed(std::vector<std::string> const& names) {
    std::string list;
    for (std::size_t index = 0; index < std::min(names.size(), MostNames); ++index) {
        list.append(index == 0 ? "" : ", ");
        list.append(names[index].empty() ? "one without a name" : Shown(names[index], MostOfNote));
    }
    return list.append(names.size() > MostNames ? ", ..." : "");
}

bool IsFilled(Field const& field) {
    return !field.Text.empty();
}

class Converter {
public:
    Converter(text::ByteSource& table, Plan const& plan, Limits const& limits)
        : plan_(plan),
          limits_(limits),
          reader_(table, plan.SeparatedBy),
          places_(plan),
          symbols_(places_.Symbols, plan.Symbol) {
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
            Refuse(reader_.Line(), std::string(reader_.Trouble()), Choice::Separator);
        }
        if (!common_.Refused) {
            Finish();
        }
        return std::move(common_);
    }

private:
    void Refuse(std::uint64_t line, std::string text, Choice choice) {
        common_.Refused = Refusal{{line, std::move(text)}, choice};
    }

    // Whether the only reading left is refused already.
    [[nodiscard]] bool IsHopeless() const {
        return candidates_.size() == 1 && candidates_.front().Told.Refused;
    }

    [[nodiscard]] bool TakePlainRow();
    [[nodiscard]] bool TakeNext();
    void TakeRecord(std::span<Field const> fields);
    void TakeRow(RowCells const& cells, bool isVolumeLine);
    void TakeRowInDoubt(RowCells const& cells, bool isVolumeLine);
    [[nodiscard]] bool IsChosen(std::optional<std::size_t> column) const;
    [[nodiscard]] bool TakeNote(RowCells const& cells);
    [[nodiscard]] bool RepeatsTheHead(std::span<Field const> fields) const;
    void Note(Candidate& candidate, RowResult const& result, RowCells const& cells);
    static void NoteOrder(Candidate& candidate, text::CalendarDay day, RowCells const& cells);
    static void NoteRefusal(Candidate& candidate, RowResult const& result, RowCells const& cells);
    void LeaveOut(Conversion& told, std::uint64_t line, std::string text) const;
    void RefuseContradiction(RowResult const& result, RowCells const& cells);
    void TakeCells(std::span<Field const> fields);
    [[nodiscard]] bool IsVolumeLine(std::span<Field const> fields) const;
    [[nodiscard]] bool IsOfAllMonths(std::span<Field const> fields) const;
    void Finish();
    void DropImpossibleCommas();
    void RefuseDoubt(Candidate const& left, Candidate const& right);
    void TakeOver(Candidate& candidate);
    void FindBars();

    Plan const& plan_;
    Limits const& limits_;
    RecordReader reader_;
    CellPlaces places_;
    SymbolFilter symbols_;
    RowCells cells_; // of the row that is being taken
    std::list<Candidate> candidates_;
    std::optional<PlainRowReader> plainRows_; // of the only candidate
    PlainRow plainRow_;
    Conversion common_; // what does not depend on the reading, and at last everything
    std::pair<std::string, std::uint64_t> firstDate_; // with its line, for an example
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
    Note(only, result, cells_);
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
    auto const first = std::ranges::find_if(fields, IsFilled);
    if (first == fields.end()) {
        return;
    }
    bool const isAlone =
        std::none_of(first + 1, fields.end(), IsFilled) && !IsTableDay(TextAt(fields, places_.Date));
    if (isAlone || IsOfAllMonths(fields)) {
        common_.Notes.Add(reader_.Line(), Shown(first->Text, MostOfNote));
        return;
    }
    ++common_.RowCount;
    if (!places_.Symbols.empty() && !symbols_.Takes(fields)) {
        ++common_.OtherSymbolCount;
        return;
    }
    if (symbols_.Names().size() > 1) {
        return; // refused at the end, when all names are known
    }
    auto const extra = fields.subspan(std::min(fields.size(), plan_.Columns.size()));
    if (std::ranges::any_of(extra, IsFilled)) {
        for (Candidate& candidate : candidates_) {
            LeaveOut(candidate.Told, reader_.Line(),
                     "the row has " + std::to_string(fields.size()) + " cells, the table " +
                         std::to_string(plan_.Columns.size()) + " columns");
        }
        return;
    }
    TakeCells(fields);
    if (!common_.Refused) {
        TakeRow(cells_, plan_.HasVolumeLines && IsVolumeLine(fields));
    }
}

void Converter::TakeCells(std::span<Field const> fields) {
    cells_.Line = reader_.Line();
    cells_.Date = TextAt(fields, places_.Date);
    cells_.Time = TextAt(fields, places_.Time);
    for (std::size_t index = 0; index < FigureCount; ++index) {
        std::string_view const cell = TextAt(fields, places_.Figures[index]);
        cells_.Figures[index] = cell;
        bool const isQuoted = !cell.empty() && fields[*places_.Figures[index]].WasQuoted;
        arePricesQuoted_ = arePricesQuoted_ || (isQuoted && index < VolumeIndex);
        // A volume of 25,086 that is not quoted would be two cells.
        bool const isHalf =
            index >= VolumeIndex && !isQuoted && cell.size() == 3 && cell.front() == '0' && AreDigits(cell);
        if (isHalf && plan_.SeparatedBy == Separator::Comma && !IsChosen(places_.Figures[index])) {
            Refuse(reader_.Line(), Quoted(cell) + " looks like the end of a number with a thousands comma",
                   Choice::Columns);
        }
    }
}

bool Converter::IsChosen(std::optional<std::size_t> column) const {
    return column && plan_.Columns[*column].Reason == ReasonChosen;
}

bool Converter::IsVolumeLine(std::span<Field const> fields) const {
    return std::ranges::any_of(places_.Symbols, [&](std::size_t column) {
        std::string_view const cell = TextAt(fields, column);
        return cell.size() == 5 && cell.front() >= 'f' && cell.front() <= 'z' && cell[1] >= '0' &&
               cell[1] <= '9';
    });
}

bool Converter::IsOfAllMonths(std::span<Field const> fields) const {
    return plan_.HasVolumeLines && std::ranges::any_of(places_.Symbols, [&](std::size_t column) {
               return text::UpperCase(TextAt(fields, column)) == AllMonths;
           });
}

void Converter::TakeRow(RowCells const& cells, bool isVolumeLine) {
    if (candidates_.size() > 1) {
        TakeRowInDoubt(cells, isVolumeLine);
        return;
    }
    Candidate& only = candidates_.front();
    RowResult const result = only.Read.Take(cells, isVolumeLine);
    if (result.Kind == RowKind::NoDay && TakeNote(cells)) {
        return;
    }
    if (IsUnreadable(result)) {
        RefuseContradiction(result, cells);
    }
    Note(only, result, cells);
}

// A line without a day may be a note with commas in it, or a head once more: under another one the rows would
// be read wrongly.
bool Converter::TakeNote(RowCells const& cells) {
    constexpr std::ptrdiff_t FewestHeadings = 3;
    auto const fields = reader_.Fields();
    bool const isHead = std::ranges::count_if(fields, [](Field const& field) {
                            return IsKnownHeading(field.Text);
                        }) >= FewestHeadings;
    if (isHead && !RepeatsTheHead(fields)) {
        Refuse(cells.Line, "Another head stands here: the table is several ones", Choice::None);
        return true;
    }
    bool const hasFigures = std::ranges::any_of(
        cells.Figures, [](std::string_view cell) { return std::ranges::any_of(cell, text::IsDigit); });
    if (!isHead && hasFigures) {
        return false;
    }
    --common_.RowCount;
    common_.Notes.Add(cells.Line, Shown(std::ranges::find_if(fields, IsFilled)->Text, MostOfNote));
    return true;
}

bool Converter::RepeatsTheHead(std::span<Field const> fields) const {
    for (std::size_t column = 0; column < fields.size(); ++column) {
        std::string const words = FoldWords(fields[column].Text);
        bool const isSame = column < plan_.Columns.size()
                                ? FoldWords(plan_.Columns[column].Heading).find(words) != std::string::npos
                                : words.empty();
        if (!isSame) {
            return false;
        }
    }
    return true;
}

// A row that some readings can read and others cannot ends these.
void Converter::TakeRowInDoubt(RowCells const& cells, bool isVolumeLine) {
    if (firstDate_.second == 0) {
        firstDate_ = {std::string(cells.Date), cells.Line};
    }
    std::vector<RowResult> results;
    for (Candidate& candidate : candidates_) {
        results.push_back(candidate.Read.Take(cells, isVolumeLine));
    }
    bool const isReadable = !std::ranges::all_of(results, IsUnreadable);
    bool const isWithoutDay =
        std::ranges::all_of(results, [](RowResult const& result) { return result.Kind == RowKind::NoDay; });
    if (isWithoutDay && TakeNote(cells)) {
        return;
    }
    if (!isReadable) {
        RefuseContradiction(results.front(), cells);
    }
    auto result = results.begin();
    for (auto candidate = candidates_.begin(); candidate != candidates_.end(); ++result) {
        if (isReadable && IsUnreadable(*result)) {
            candidate = candidates_.erase(candidate);
        } else {
            Note(*candidate, *result, cells);
            ++candidate;
        }
    }
}

// A row that no reading left can read, and that another one could: then not all rows can be right.
void Converter::RefuseContradiction(RowResult const& result, RowCells const& cells) {
    std::string_view const cell = CellOf(cells, result.Of);
    Candidate const& one = candidates_.front();
    if (result.Kind == RowKind::NoDay && !plan_.IsDateChosen && IsTableDay(cell)) {
        Refuse(cells.Line,
               Quoted(cell) +
                   " does not have the order of the other dates: " + std::string(NameOf(one.Read.Order())),
               Choice::DateOrder);
    }
    if (result.Kind == RowKind::NoDay && !plan_.IsDateChosen && HasDayBeforeMonth(cell)) {
        Refuse(cells.Line, Quoted(cell) + " has the day in front of the month, behind the year",
               Choice::DateOrder);
    }
    if (result.Kind == RowKind::NoFigure && !plan_.IsDecimalChosen) {
        FigureForm other;
        other.Decimal = one.Read.Mark() == DecimalMark::Point ? DecimalMark::Comma : DecimalMark::Point;
        if (ReadFigure(cell, other).State == FigureState::Number) {
            Refuse(cells.Line,
                   Quoted(cell) + " does not have the decimal mark of the other numbers: " +
                       std::string(NameOf(one.Read.Mark())),
                   Choice::Decimal);
        }
    }
}

void Converter::LeaveOut(Conversion& told, std::uint64_t line, std::string text) const {
    if (limits_.IsStrict && !told.Refused) {
        told.Refused = Refusal{{line, text}, Choice::None};
    }
    told.LeftOut.Add(line, std::move(text));
}

void Converter::NoteOrder(Candidate& candidate, text::CalendarDay day, RowCells const& cells) {
    // Nobody has such a gap in his quotes: two digits of the year went from 49 to 50.
    constexpr std::chrono::days Turn{90 * 365};
    if (candidate.LastDay) {
        candidate.Rises = candidate.Rises && day >= *candidate.LastDay;
        candidate.Falls = candidate.Falls && day <= *candidate.LastDay;
        if (std::chrono::abs(day - *candidate.LastDay) > Turn && !candidate.Told.Refused) {
            candidate.Told.Refused =
                Refusal{{cells.Line, Quoted(cells.Date) +
                                         " is a century away from the day before: years of two digits "
                                         "are 1950 to 2049. Take the days of one side alone"},
                        Choice::None};
        }
    }
    candidate.LastDay = day;
}

void Converter::NoteRefusal(Candidate& candidate, RowResult const& result, RowCells const& cells) {
    if (candidate.Told.Refused) {
        return;
    }
    if (result.NeedsFraction) {
        candidate.Told.Refused = Refusal{
            {cells.Line, Quoted(CellOf(cells, result.Of)) + " is a fraction of a kind that is not told"},
            Choice::Fraction};
    } else if (result.Kind == RowKind::Intraday) {
        candidate.Told.Refused = Refusal{{cells.Line, "The day of line " + std::to_string(result.OtherLine) +
                                                          " again at another time: rows of less than a day"},
                                         Choice::None};
    } else if (result.Kind == RowKind::Conflict) {
        candidate.Told.Refused = Refusal{
            {cells.Line, "The day of line " + std::to_string(result.OtherLine) + " again with other figures"},
            Choice::None};
    }
}

void Converter::Note(Candidate& candidate, RowResult const& result, RowCells const& cells) {
    NoteRefusal(candidate, result, cells);
    Conversion& told = candidate.Told;
    switch (result.Kind) {
    case RowKind::Quote:
        NoteOrder(candidate, result.Day, cells);
        break;
    case RowKind::Repeat:
        ++told.RepeatCount;
        break;
    case RowKind::Outside:
        ++told.OutsideCount;
        break;
    case RowKind::Volume:
    case RowKind::Conflict:
    case RowKind::Intraday:
        break;
    default:
        LeaveOut(told, cells.Line, WhyLeftOut(result, cells));
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

void Converter::RefuseDoubt(Candidate const& left, Candidate const& right) {
    if (left.Read.Order() != right.Read.Order()) {
        Refuse(firstDate_.second,
               Quoted(firstDate_.first) + " and all other dates can be " +
                   std::string(NameOf(left.Read.Order())) + " or " + std::string(NameOf(right.Read.Order())),
               Choice::DateOrder);
        return;
    }
    auto const days = left.Read.Days();
    auto const others = right.Read.Days();
    for (std::size_t day = 0; day < std::min(days.size(), others.size()); ++day) {
        for (std::size_t index = 0; index < FigureCount; ++index) {
            double const one = days[day].Figures.at(index);
            double const other = others[day].Figures.at(index);
            if (one != other) {
                Refuse(days[day].Line,
                       The(FigureRoles.at(index)) + " can be " + text::PlainNumber(one) + " or " +
                           text::PlainNumber(other),
                       Choice::Decimal);
                return;
            }
        }
    }
    Refuse(0, "The decimal mark can be a point or a comma", Choice::Decimal);
}

void Converter::TakeOver(Candidate& candidate) {
    Conversion& told = candidate.Told;
    common_.Used.DateOrders = {candidate.Read.Order()};
    common_.Used.Decimals = {candidate.Read.Mark()};
    common_.Days = candidate.Read.Days();
    common_.RepeatCount = told.RepeatCount;
    common_.OutsideCount = told.OutsideCount;
    common_.LeftOut = std::move(told.LeftOut);
    common_.Refused = told.Refused;
    common_.Order = candidate.Rises   ? RowOrder::OldestFirst
                    : candidate.Falls ? RowOrder::NewestFirst
                                      : RowOrder::Mixed;
    std::array<std::uint64_t, 8> weekdays{}; // from Monday, 1, on
    for (DayQuote const& quote : common_.Days) {
        ++weekdays.at(std::chrono::weekday(quote.Day).iso_encoding());
        common_.WithoutVolume += quote.LacksVolume ? 1U : 0U;
        common_.WithoutOpenInterest += quote.LacksOpenInterest ? 1U : 0U;
        if (quote.HasSettlementMark) {
            common_.SettlementMarks.Add(quote.Line);
        }
    }
    common_.WeekendCount = weekdays[6] + weekdays[7];
    bool const isShifted = weekdays[5] == 0 && weekdays[6] == 0 && weekdays[7] > 0 && weekdays[1] > 0;
    if (isShifted && candidate.Read.AreAllTimed() && !common_.Refused) {
        Refuse(common_.Days.front().Line,
               "The dates with their times are Sundays to Thursdays: in the zone of the market each of them "
               "is the day behind",
               Choice::None);
    }
    if (std::uint64_t const line = candidate.Read.OpenTicksLine();
        line > 0 && !plan_.Fraction && !common_.Refused) {
        Refuse(line, "The price can have a thousands mark or a fraction", Choice::Fraction);
    }
    FindBars();
}

// Rows of weeks would be taken for days without a word.
void Converter::FindBars() {
    constexpr std::size_t FewestDays = 4;
    if (common_.Days.size() < FewestDays) {
        return;
    }
    std::vector<text::CalendarDay> days;
    std::ranges::transform(common_.Days, std::back_inserter(days), &DayQuote::Day);
    common_.DaysApart = MedianDistance(std::move(days));
    if (common_.DaysApart > MostOfDaily && !plan_.TakesAnyBars && !common_.Refused) {
        Refuse(0, DescribeBars(common_.DaysApart), Choice::Bars);
    }
}

void Converter::Finish() {
    common_.Symbols = symbols_.Names();
    common_.Symbols.insert(common_.Symbols.end(), symbols_.Others().begin(), symbols_.Others().end());
    if (symbols_.Names().size() > 1) {
        Refuse(0, "There are several contracts: " + Listed(symbols_.Names()), Choice::Symbol);
        return;
    }
    if (plan_.Symbol && symbols_.Names().empty()) {
        Refuse(0,
               "There is no contract " + (plan_.Symbol->empty() ? "without a name" : *plan_.Symbol) +
                   ", but " + Listed(symbols_.Others()),
               Choice::Symbol);
        return;
    }
    DropImpossibleCommas();
    for (Candidate const& other : candidates_) {
        Candidate const& first = candidates_.front();
        bool const isSame = first.Told.Refused.has_value() == other.Told.Refused.has_value() &&
                            std::ranges::equal(first.Read.Days(), other.Read.Days(), &DayQuote::IsSameAs);
        if (!isSame) {
            RefuseDoubt(first, other);
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
