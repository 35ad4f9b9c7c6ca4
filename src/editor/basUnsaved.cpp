// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basUnsaved.h"

#include "editor/basSpread.h"
#include "text/basNumbers.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <system_error>
#include <utility>
#include <vector>

namespace quorvex::editor {

namespace {

constexpr std::string_view Title = "Quorvex unsaved edits 1";
constexpr std::string_view QuotesWord = "quotes ";
constexpr std::string_view FileWord = "file ";
constexpr std::string_view EditLine = "edit";
constexpr std::string_view RefillLine = "refill";
constexpr std::string_view RowsWord = "rows ";
constexpr std::string_view EndWord = "end ";

// FNV-1a of 64 bits.
constexpr std::uint64_t EmptyCheck = 0xCBF29CE484222325U;

std::uint64_t CheckBehind(std::uint64_t check, std::string_view bytes) {
    constexpr std::uint64_t Prime = 0x100000001B3U;
    for (char const byte : bytes) {
        check = (check ^ static_cast<unsigned char>(byte)) * Prime;
    }
    return check;
}

std::string CheckText(std::uint64_t check) {
    constexpr std::string_view Digits = "0123456789abcdef";
    constexpr std::size_t Length = 16;
    std::string text(Length, '0');
    for (std::size_t place = Length; place > 0; --place) {
        text[place - 1] = Digits[check % Digits.size()];
        check /= Digits.size();
    }
    return text;
}

std::string MarkText(std::uint64_t length, std::uint64_t check) {
    return std::to_string(length) + ' ' + CheckText(check);
}

// A cell or a name may hold anything; the text has one line for each row and a tab between two cells.
void AppendField(std::string& text, std::string_view field) {
    for (char const c : field) {
        switch (c) {
        case '\\':
            text += "\\\\";
            break;
        case '\t':
            text += "\\t";
            break;
        case '\n':
            text += "\\n";
            break;
        case '\r':
            text += "\\r";
            break;
        default:
            text += c;
        }
    }
}

std::optional<std::string> FieldOf(std::string_view text) {
    std::string field;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\') {
            field += text[at];
            continue;
        }
        constexpr std::string_view Letters = "\\tnr";
        constexpr std::string_view Meant = "\\\t\n\r";
        std::size_t const letter = ++at < text.size() ? Letters.find(text[at]) : std::string_view::npos;
        if (letter == std::string_view::npos) {
            return std::nullopt;
        }
        field += Meant[letter];
    }
    return field;
}

void AppendRowLine(std::string& text, EditRow const& row) {
    for (std::string const& cell : row.Texts) {
        AppendField(text, cell);
        text += '\t';
    }
    AppendField(text, row.Copy.Date);
    for (NumberColumn const& number : NumberColumns) {
        text += '\t' + text::PlainNumber(row.Copy.*number.Field);
    }
    text += '\n';
}

void AppendRows(std::string& text, std::int16_t at, std::size_t removed, EditRows const& rows) {
    text += std::string(RowsWord) + std::to_string(at) + ' ' + std::to_string(removed) + ' ' +
            std::to_string(rows.size()) + '\n';
    for (EditRow const& row : rows) {
        AppendRowLine(text, row);
    }
}

// The part in front of the mark, which is taken off with it; nothing without one.
std::optional<std::string_view> TakeUntil(std::string_view& text, char mark) {
    std::size_t const end = text.find(mark);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    auto const part = text.substr(0, end);
    text.remove_prefix(end + 1);
    return part;
}

template <class Number>
std::optional<Number> NumberOf(std::string_view text) {
    Number number{};
    char const* const end = text.data() + text.size();
    auto const [behind, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && behind == end ? std::optional(number) : std::nullopt;
}

std::optional<EditRow> ReadRow(std::string_view line) {
    EditRow row;
    std::string text(line);
    text += '\t';
    std::string_view rest = text;
    for (std::size_t cell = 0; cell <= row.Texts.size(); ++cell) {
        auto const field = TakeUntil(rest, '\t');
        auto value = field ? FieldOf(*field) : std::nullopt;
        if (!value) {
            return std::nullopt;
        }
        (cell < row.Texts.size() ? row.Texts.at(cell) : row.Copy.Date) = std::move(*value);
    }
    for (NumberColumn const& number : NumberColumns) {
        auto const field = TakeUntil(rest, '\t');
        auto const value = field ? NumberOf<double>(*field) : std::nullopt;
        if (!value || !std::isfinite(*value)) {
            return std::nullopt;
        }
        row.Copy.*number.Field = *value;
    }
    return rest.empty() ? std::optional(row) : std::nullopt;
}

// Takes the text piece by piece, as far as their checks hold.
class PieceReader {
public:
    explicit PieceReader(std::string_view text) : text_(text) {}

    // Whether there is one more whole piece, whose lines can then be taken.
    [[nodiscard]] bool Next() {
        std::string_view rest = text_.substr(end_);
        while (auto const line = TakeUntil(rest, '\n')) {
            auto const start = static_cast<std::size_t>(line->data() - text_.data());
            // A cell may begin like that, but its row has tabs.
            if (line->starts_with(EndWord) && line->find('\t') == std::string_view::npos) {
                auto const piece = text_.substr(end_, start - end_);
                std::uint64_t const check = CheckBehind(check_, piece);
                if (line->substr(EndWord.size()) != CheckText(check)) {
                    return false;
                }
                piece_ = piece;
                end_ = start + line->size() + 1;
                check_ = CheckBehind(check, text_.substr(start, line->size() + 1));
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] std::optional<std::string_view> TakeLine() { return TakeUntil(piece_, '\n'); }

    // A line that begins with the word; what follows it.
    [[nodiscard]] std::optional<std::string_view> TakeLine(std::string_view word) {
        auto const line = TakeLine();
        return line && line->starts_with(word) ? std::optional(line->substr(word.size())) : std::nullopt;
    }

    [[nodiscard]] bool IsPieceTaken() const { return piece_.empty(); }

    [[nodiscard]] bool IsAtEnd() const { return end_ == text_.size(); }

private:
    std::string_view text_;
    std::string_view piece_;
    std::size_t end_ = 0; // behind the last whole piece
    std::uint64_t check_ = EmptyCheck;
};

// What the next lines tell, to be applied to so many rows; their number follows. The old rows are not told.
struct ToldSplice {
    std::size_t At = 0; // from 0
    std::size_t Removed = 0;
    EditRows New;
};

std::optional<ToldSplice> TakeSplice(PieceReader& reader, std::size_t& rowCount) {
    auto line = reader.TakeLine(RowsWord);
    if (!line) {
        return std::nullopt;
    }
    auto const at = TakeUntil(*line, ' ');
    auto const removed = TakeUntil(*line, ' ');
    if (!at || !removed) {
        return std::nullopt;
    }
    auto const from = NumberOf<std::size_t>(*at);
    auto const old = NumberOf<std::size_t>(*removed);
    auto const fresh = NumberOf<std::size_t>(*line);
    constexpr std::size_t Most = quotes::MaxQuotes;
    bool const isPlaced = from && old && fresh && *from >= 1 && *from - 1 <= rowCount &&
                          *old <= rowCount - (*from - 1) && *fresh <= Most &&
                          rowCount - *old + *fresh <= Most;
    if (!isPlaced) {
        return std::nullopt;
    }
    ToldSplice splice{*from - 1, *old, {}};
    while (splice.New.size() < *fresh) {
        auto const text = reader.TakeLine();
        auto row = text ? ReadRow(*text) : std::nullopt;
        if (!row) {
            return std::nullopt;
        }
        splice.New.push_back(std::move(*row));
    }
    rowCount = rowCount - *old + *fresh;
    return splice;
}

using ToldChange = std::vector<ToldSplice>;

std::optional<ToldChange> TakeChange(PieceReader& reader, std::size_t& rowCount) {
    ToldChange change;
    while (!reader.IsPieceTaken()) {
        auto splice = TakeSplice(reader, rowCount);
        if (!splice) {
            return std::nullopt;
        }
        change.push_back(std::move(*splice));
    }
    return change;
}

void Apply(ToldChange& change, EditRows& rows) {
    for (ToldSplice& splice : change) {
        auto const at = rows.begin() + static_cast<std::ptrdiff_t>(splice.At);
        auto const behind = rows.erase(at, at + static_cast<std::ptrdiff_t>(splice.Removed));
        rows.insert(behind, std::make_move_iterator(splice.New.begin()),
                    std::make_move_iterator(splice.New.end()));
    }
}

std::optional<KeptEdits> TakeStart(PieceReader& reader) {
    if (!reader.Next() || reader.TakeLine() != Title) {
        return std::nullopt;
    }
    auto const name = reader.TakeLine(QuotesWord);
    auto const mark = reader.TakeLine(FileWord);
    auto fileName = name ? FieldOf(*name) : std::nullopt;
    std::size_t rowCount = 0;
    auto rows = mark ? TakeChange(reader, rowCount) : std::nullopt;
    if (!fileName || !rows) {
        return std::nullopt;
    }
    KeptEdits kept{{std::move(*fileName), std::string(*mark)}, {}, {}};
    Apply(*rows, kept.Before);
    return kept;
}

// The changes up to the last one that is no refill. Sets whether all of the text was read.
std::vector<ToldChange> TakeChanges(PieceReader& reader, std::size_t rowCount, bool& isWhole) {
    std::vector<ToldChange> changes;
    std::size_t wanted = 0;
    isWhole = true;
    while (isWhole && reader.Next()) {
        auto const kind = reader.TakeLine();
        bool const isKnown = kind == EditLine || kind == RefillLine;
        auto change = isKnown ? TakeChange(reader, rowCount) : std::nullopt;
        isWhole = change.has_value();
        if (isWhole) {
            changes.push_back(std::move(*change));
            wanted = kind == EditLine ? changes.size() : wanted;
        }
    }
    isWhole = isWhole && reader.IsAtEnd();
    changes.resize(wanted);
    return changes;
}

} // namespace

std::string KeptEditsWriter::Ended(std::string piece) {
    check_ = CheckBehind(check_, piece);
    std::string const end = std::string(EndWord) + CheckText(check_) + '\n';
    check_ = CheckBehind(check_, end);
    length_ += piece.size() + end.size();
    return std::move(piece) + end;
}

std::string KeptEditsWriter::Start(EditedFile const& of, EditRows const& rows) {
    check_ = EmptyCheck;
    length_ = 0;
    std::string text = std::string(Title) + '\n' + std::string(QuotesWord);
    AppendField(text, of.Name);
    text += '\n' + std::string(FileWord) + of.Mark + '\n';
    AppendRows(text, 1, 0, rows);
    return Ended(std::move(text));
}

std::string KeptEditsWriter::Next(Change const& change, ChangeKind kind) {
    std::string text = std::string(kind == ChangeKind::Edit ? EditLine : RefillLine) + '\n';
    for (Splice const& splice : change.Splices) {
        AppendRows(text, splice.At, splice.Old.size(), splice.New);
    }
    return Ended(std::move(text));
}

std::optional<KeptEdits> ReadKeptEdits(std::string_view text) {
    PieceReader reader(text);
    auto kept = TakeStart(reader);
    if (kept) {
        kept->After = kept->Before;
        for (ToldChange& change : TakeChanges(reader, kept->Before.size(), kept->IsWhole)) {
            Apply(change, kept->After);
        }
    }
    return kept;
}

std::string KeptEditsWriter::Mark() const {
    return MarkText(length_, check_);
}

std::string MarkOf(std::string_view content) {
    return MarkText(content.size(), CheckBehind(EmptyCheck, content));
}

} // namespace quorvex::editor
