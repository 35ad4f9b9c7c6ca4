// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/Reading.h"

#include "import/basTableDates.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <limits>
#include <string>

namespace quorvex::imports {

namespace {

// The years that two digits can tell apart.
constexpr text::CalendarDay FirstDay{std::chrono::year{1950} / 1 / 1};
constexpr text::CalendarDay EndOfDays{std::chrono::year{2050} / 1 / 1};
constexpr auto DayCount = static_cast<std::size_t>((EndOfDays - FirstDay).count());

bool CanBeWritten(text::CalendarDay day) {
    return day >= FirstDay && day < EndOfDays;
}

std::size_t IndexOf(text::CalendarDay day) {
    return static_cast<std::size_t>((day - FirstDay).count());
}

RowResult Bad(RowKind kind, Role role) {
    RowResult result;
    result.Kind = kind;
    result.Of = role;
    return result;
}

bool IsBad(RowResult const& result) {
    return result.Kind != RowKind::Quote;
}

// The first thing that is wrong with the prices.
RowResult CheckPrices(std::array<double, FigureCount> const& figures) {
    for (std::size_t index = 0; index < PriceCount; ++index) {
        if (!(figures.at(index) > 0)) {
            return Bad(RowKind::NotPositive, FigureRoles.at(index));
        }
    }
    auto const [open, high, low, close, volume, openInterest] = figures;
    if (high < low) {
        return Bad(RowKind::OutOfRange, Role::High);
    }
    if (open > high || open < low) {
        return Bad(RowKind::OutOfRange, Role::Open);
    }
    if (close > high || close < low) {
        return Bad(RowKind::OutOfRange, Role::Close);
    }
    if (volume < 0 || openInterest < 0) {
        return Bad(RowKind::Negative, volume < 0 ? Role::Volume : Role::OpenInterest);
    }
    double const product = open * high * low * close;
    bool const isSuited = product > 0 && product <= std::numeric_limits<double>::max();
    return isSuited ? RowResult() : Bad(RowKind::Unsuited, Role::High);
}

} // namespace

Reading::Reading(DateOrder order, DecimalMark mark, std::optional<int> fraction, Limits const& limits)
    : order_(order),
      limits_(limits),
      slots_(DayCount) {
    form_.Decimal = mark;
    form_.Fraction = fraction.value_or(form_.Fraction);
}

RowResult Reading::Take(RowCells const& cells, bool isVolumeLine) {
    auto const day = ReadTableDay(cells.Date, order_);
    if (!day) {
        return Bad(RowKind::NoDay, Role::Date);
    }
    if (!CanBeWritten(day->Day)) {
        return Bad(RowKind::NoYear, Role::Date);
    }
    if ((limits_.From && day->Day < *limits_.From) || (limits_.To && day->Day > *limits_.To)) {
        return Bad(RowKind::Outside, Role::Date);
    }
    if (isVolumeLine) {
        return TakeVolumeLine(cells, day->Day);
    }
    DayQuote quote{day->Day, {}, cells.Line};
    RowResult const result = TakeFigures(cells, quote);
    if (IsBad(result)) {
        return result;
    }
    RowResult const checked = CheckPrices(quote.Figures);
    RowResult const stored =
        IsBad(checked) ? checked : Store(quote, cells.Time.empty() ? day->Time : cells.Time);
    timedCount_ += !IsBad(stored) && !IsMidnight(day->Time) ? 1U : 0U;
    return stored;
}

RowResult Reading::TakePlain(DayQuote const& quote) {
    if (!CanBeWritten(quote.Day)) {
        return Bad(RowKind::NoYear, Role::Date);
    }
    if ((limits_.From && quote.Day < *limits_.From) || (limits_.To && quote.Day > *limits_.To)) {
        return Bad(RowKind::Outside, Role::Date);
    }
    RowResult const checked = CheckPrices(quote.Figures);
    return IsBad(checked) ? checked : Store(quote, {});
}

RowResult Reading::TakeFigures(RowCells const& cells, DayQuote& quote) {
    for (std::size_t index = 0; index < FigureCount; ++index) {
        form_.IsPrice = index < PriceCount;
        Figure const figure = ReadFigure(cells.Figures[index], form_);
        quote.Figures[index] = figure.Value;
        // Behind a price B is a bid to exchanges.
        if (figure.State == FigureState::NoNumber || (form_.IsPrice && figure.IsInBillions)) {
            RowResult bad = Bad(RowKind::NoFigure, FigureRoles[index]);
            bad.NeedsFraction = figure.NeedsFraction;
            return bad;
        }
        if (figure.State == FigureState::Missing) {
            if (form_.IsPrice) {
                return Bad(RowKind::NoPrice, FigureRoles[index]);
            }
            (index == VolumeIndex ? quote.LacksVolume : quote.LacksOpenInterest) = true;
        }
        quote.HasSettlementMark = quote.HasSettlementMark || figure.HasSettlementMark;
        (form_.IsPrice ? hasGroupedPrices_ : hasGroupedCounts_) |= figure.HasGroups;
        if (form_.IsPrice && figure.HasTicks && ticksLine_ == 0) {
            ticksLine_ = cells.Line;
        }
        hasSureTicks_ = hasSureTicks_ || (form_.IsPrice && figure.HasSureTicks);
    }
    return {};
}

// Volume and open interest stand where other lines have open and high.
RowResult Reading::TakeVolumeLine(RowCells const& cells, text::CalendarDay day) {
    DayQuote quote{day, {}, cells.Line};
    form_.IsPrice = false;
    for (std::size_t index = 0; index < 2; ++index) {
        Figure const figure = ReadFigure(cells.Figures[index], form_);
        if (figure.State != FigureState::Number || figure.Value < 0) {
            return Bad(RowKind::NoFigure, FigureRoles[VolumeIndex + index]);
        }
        quote.Figures[VolumeIndex + index] = figure.Value;
    }
    volumeSlots_.resize(DayCount);
    std::uint32_t& slot = volumeSlots_[IndexOf(day)];
    if (slot != 0 && volumes_[slot - 1].Figures != quote.Figures) {
        RowResult conflict = Bad(RowKind::Conflict, Role::Volume);
        conflict.OtherLine = volumes_[slot - 1].Line;
        return conflict;
    }
    if (slot == 0) {
        volumes_.push_back(quote);
        slot = static_cast<std::uint32_t>(volumes_.size());
    }
    return Bad(RowKind::Volume, Role::Volume);
}

RowResult Reading::Store(DayQuote const& quote, std::string_view time) {
    std::uint64_t const timeMark = time.empty() ? 0 : std::hash<std::string_view>{}(time);
    std::uint32_t& slot = slots_[IndexOf(quote.Day)];
    if (slot == 0) {
        stored_.push_back({quote, timeMark});
        slot = static_cast<std::uint32_t>(stored_.size());
        RowResult taken;
        taken.Day = quote.Day;
        return taken;
    }
    Stored const& there = stored_[slot - 1];
    RowResult result = Bad(RowKind::Conflict, Role::Date);
    result.OtherLine = there.Quote.Line;
    if (there.TimeMark != timeMark) {
        result.Kind = RowKind::Intraday;
    } else if (there.Quote.IsSameAs(quote)) {
        result.Kind = RowKind::Repeat;
    }
    return result;
}

std::vector<DayQuote> Reading::Days() const {
    std::vector<DayQuote> days;
    days.reserve(stored_.size());
    for (Stored const& one : stored_) {
        days.push_back(one.Quote);
        std::uint32_t const slot = volumeSlots_.empty() ? 0 : volumeSlots_[IndexOf(one.Quote.Day)];
        if (slot != 0) {
            std::copy_n(volumes_[slot - 1].Figures.begin() + VolumeIndex, 2,
                        days.back().Figures.begin() + VolumeIndex);
            days.back().LacksVolume = false;
            days.back().LacksOpenInterest = false;
        }
    }
    std::ranges::sort(days, {}, &DayQuote::Day);
    return days;
}

} // namespace quorvex::imports
