// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/Sample.h"

#include "import/RecordReader.h"
#include "import/basTableDates.h"
#include "import/basTableNumbers.h"
#include "import/basWords.h"
#include "text/Characters.h"
#include "text/basTexts.h"

#include <algorithm>
#include <array>

namespace quorvex::imports {

namespace {

constexpr std::size_t RawStart = 65'536;
constexpr std::size_t TextStart = 131'072;
constexpr std::size_t ScoredRows = 50;

// Blanks last: they separate what tabs separate as well.
constexpr std::array<Separator, 5> Separators = {Separator::Tab, Separator::Semicolon, Separator::Bar,
                                                 Separator::Comma, Separator::Blanks};

Sample SplitRows(std::string_view text, bool isWhole, Separator separator, std::size_t most) {
    Sample sample;
    sample.SeparatedBy = separator;
    text::TextSource source(text);
    RecordReader reader(source, separator);
    while (sample.Rows.size() <= most && reader.Next()) {
        SampleRow row;
        row.Line = reader.Line();
        for (Field const& field : reader.Fields()) {
            row.Cells.emplace_back(field.Text);
        }
        sample.Rows.push_back(std::move(row));
    }
    bool const isCut = sample.Rows.size() > most || !isWhole;
    if (isCut && !sample.Rows.empty()) {
        sample.Rows.pop_back(); // may be a part of a row
    } else if (!reader.Trouble().empty()) {
        sample.Refused = Refusal{{reader.Line(), std::string(reader.Trouble())}, Choice::Separator};
    }
    return sample;
}

// How many of the first rows are quotes.
std::size_t ScoreOf(Sample const& sample) {
    std::size_t seen = 0;
    std::size_t score = 0;
    for (SampleRow const& row : sample.Rows) {
        if (row.Cells.size() >= FewestCells && ++seen <= ScoredRows && LooksLikeQuotes(row)) {
            ++score;
        }
    }
    return score;
}

bool IsWebPage(std::string_view text) {
    std::size_t const first = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    std::string const start = text::UpperCase(text.substr(first, 10));
    return start.starts_with("<!") || start.starts_with("<?XML") || start.starts_with("<HTML") ||
           start.starts_with("<TABLE");
}

// Text has no zero bytes, and a workbook is a packed archive.
bool IsText(std::string_view text) {
    return text.find('\0') == std::string_view::npos && !text.starts_with("PK\x03\x04");
}

// What is wrong with the first row that has a date and cells enough for a quote, of which one has digits but
// is no number; nothing when there is no such row.
std::optional<Finding> WhyNoQuotes(Sample const& sample) {
    for (SampleRow const& row : sample.Rows) {
        auto const isDay = [](std::string const& cell) { return IsTableDay(cell); };
        auto const isOdd = [](std::string const& cell) {
            return !cell.empty() && text::IsDigit(cell.front()) && !LooksLikeNumber(cell) &&
                   !IsTableDay(cell) && !IsTimeOfDay(cell);
        };
        auto const odd = std::ranges::find_if(row.Cells, isOdd);
        if (row.Cells.size() >= FewestCells && std::ranges::any_of(row.Cells, isDay) &&
            odd != row.Cells.end()) {
            constexpr std::size_t MostShown = 40;
            return Finding{row.Line, "\"" + Shown(*odd, MostShown) + "\" is no number"};
        }
    }
    return std::nullopt;
}

// The same under any separator, those first that separate nothing else.
std::optional<Finding> FindNearlyQuotes(std::string_view text, std::optional<Separator> chosen) {
    for (Separator const separator : Separators) {
        auto why = chosen && separator != *chosen ? std::nullopt
                                                  : WhyNoQuotes(SplitRows(text, true, separator, ScoredRows));
        if (why) {
            return why;
        }
    }
    return std::nullopt;
}

// Why no separator makes rows of quotes.
Refusal NoTable(std::string_view text, Sample const& sample, std::optional<Separator> chosen) {
    if (!IsText(text)) {
        return {{0, "The file is no text. Save the table as text with separators (CSV)"}, Choice::None};
    }
    if (IsWebPage(text)) {
        return {{0, "The file is a web page. Save its table as text with separators (CSV)"}, Choice::None};
    }
    if (sample.Refused) {
        return *sample.Refused;
    }
    if (sample.Rows.empty()) {
        return {{0, "The table is empty"}, Choice::None};
    }
    std::string const none = "No row with a date and four prices was found";
    if (auto const why = FindNearlyQuotes(text, chosen)) {
        return {{why->Line, none + ": " + why->Text}, Choice::None};
    }
    return {{0, none}, Choice::Separator};
}

} // namespace

TableText::TableText(text::ByteSource& bytes, std::optional<Encoding> encoding)
    : start_(ReadUpTo(bytes, RawStart)),
      encoding_(encoding.value_or(FindEncoding(start_))),
      bytes_(std::move(start_), bytes),
      decoded_(bytes_, encoding_),
      firstPart_(ReadUpTo(decoded_, TextStart)),
      isWhole_(firstPart_.size() < TextStart),
      whole_(firstPart_, decoded_) {}

bool LooksLikeNumber(std::string_view cell) {
    FigureForm form;
    form.IsPrice = true;
    for (DecimalMark const mark : {DecimalMark::Point, DecimalMark::Comma}) {
        form.Decimal = mark;
        Figure const figure = ReadFigure(cell, form);
        if (figure.State == FigureState::Number || figure.NeedsFraction) {
            return true;
        }
    }
    return false;
}

bool LooksLikeQuotes(SampleRow const& row) {
    bool const hasDay =
        std::ranges::any_of(row.Cells, [](std::string const& cell) { return IsTableDay(cell); });
    bool const isNumberToo = std::ranges::any_of(
        row.Cells, [](std::string const& cell) { return IsTableDay(cell) && LooksLikeNumber(cell); });
    auto const numbers = std::ranges::count_if(row.Cells, LooksLikeNumber);
    return hasDay && numbers >= (isNumberToo ? 5 : 4);
}

Sample ReadSample(std::string_view firstPart, bool isWhole, std::optional<Separator> chosen) {
    std::vector<Separator> best; // those of the highest score
    std::size_t bestScore = 0;
    for (Separator const separator : Separators) {
        if (chosen && separator != *chosen) {
            continue;
        }
        std::size_t const score = ScoreOf(SplitRows(firstPart, isWhole, separator, 2 * ScoredRows));
        if (score > bestScore) {
            best.clear();
            bestScore = score;
        }
        bool const isNew = score > 0 && (best.empty() || separator != Separator::Blanks);
        if (score == bestScore && isNew) {
            best.push_back(separator);
        }
    }
    Separator const separator = best.empty() ? chosen.value_or(Separator::Comma) : best.front();
    Sample sample = SplitRows(firstPart, isWhole, separator, SampleRows);
    if (best.empty()) {
        sample.Refused = NoTable(firstPart, sample, chosen);
    } else if (!sample.Refused && best.size() > 1) {
        sample.Refused = Refusal{{0, "The columns can be separated by " + std::string(NameOf(best[0])) +
                                         " or " + std::string(NameOf(best[1]))},
                                 Choice::Separator};
    }
    return sample;
}

} // namespace quorvex::imports
