// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/RowPlaces.h"

#include "import/basColumns.h"
#include "import/basTableDates.h"
#include "import/basWords.h"
#include "text/Characters.h"
#include "text/basTexts.h"

#include <algorithm>
#include <string>

namespace quorvex::imports {

RowPlaces::RowPlaces(Plan const& plan)
    : plan_(plan),
      date_(plan.Find(Role::Date)),
      time_(plan.Find(Role::Time)) {
    for (std::size_t index = 0; index < FigureCount; ++index) {
        figures_.at(index) = plan.Find(FigureRoles.at(index));
    }
    for (std::size_t column = 0; column < plan.Columns.size(); ++column) {
        if (plan.Columns[column].Is == Role::Symbol) {
            contract_.push_back(column);
        }
    }
}

RowCells RowPlaces::CellsOf(std::span<Field const> fields, std::uint64_t line) const {
    RowCells cells;
    cells.Line = line;
    cells.Date = TextAt(fields, date_);
    cells.Time = TextAt(fields, time_);
    for (std::size_t index = 0; index < FigureCount; ++index) {
        cells.Figures[index] = TextAt(fields, figures_[index]);
    }
    return cells;
}

bool RowPlaces::IsNote(std::span<Field const> fields) const {
    return std::ranges::count_if(fields, IsFilled) == 1 && !IsTableDay(TextAt(fields, date_));
}

bool RowPlaces::IsTooWide(std::span<Field const> fields) const {
    return std::ranges::any_of(fields.subspan(std::min(fields.size(), plan_.Columns.size())), IsFilled);
}

bool RowPlaces::IsVolumeLine(std::span<Field const> fields) const {
    return plan_.HasVolumeLines && std::ranges::any_of(contract_, [&](std::size_t column) {
               std::string_view const cell = TextAt(fields, column);
               return cell.size() == 5 && cell.front() >= 'f' && cell.front() <= 'z' &&
                      text::IsDigit(cell[1]);
           });
}

bool RowPlaces::IsOfAllMonths(std::span<Field const> fields) const {
    constexpr std::string_view AllMonths = "DVL";
    return plan_.HasVolumeLines && std::ranges::any_of(contract_, [&](std::size_t column) {
               return text::UpperCase(TextAt(fields, column)) == AllMonths;
           });
}

bool RowPlaces::IsHead(std::span<Field const> fields) {
    constexpr std::ptrdiff_t FewestHeadings = 3;
    return std::ranges::count_if(fields, [](Field const& field) { return IsKnownHeading(field.Text); }) >=
           FewestHeadings;
}

bool RowPlaces::RepeatsTheHead(std::span<Field const> fields) const {
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

bool RowPlaces::IsPriceQuoted(std::span<Field const> fields) const {
    return std::any_of(figures_.begin(), figures_.begin() + PriceCount, [&](auto const& column) {
        return column && *column < fields.size() && fields[*column].WasQuoted && IsFilled(fields[*column]);
    });
}

std::optional<std::string_view> RowPlaces::HalfOfCount(std::span<Field const> fields) const {
    if (plan_.SeparatedBy != Separator::Comma) {
        return std::nullopt;
    }
    for (std::size_t index = VolumeIndex; index < FigureCount; ++index) {
        std::string_view const cell = TextAt(fields, figures_[index]);
        bool const isHalf = cell.size() == 3 && cell.front() == '0' && AreDigits(cell) &&
                            !fields[*figures_[index]].WasQuoted &&
                            plan_.Columns[*figures_[index]].Reason != ReasonChosen;
        if (isHalf) {
            return cell;
        }
    }
    return std::nullopt;
}

} // namespace quorvex::imports
