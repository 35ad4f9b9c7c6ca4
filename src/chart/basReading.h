// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Says in words what the chart boxes show: as tool tip for one day, and as description of a whole chart for
// people who do not see it.
#pragma once

#include "chart/ChartContents.h"

#include <memory>
#include <string>
#include <vector>

namespace quorvex::chart {

// The date of each day, or "Day 17" without quotes. Four boxes show the same ones.
using DayNames = std::shared_ptr<std::vector<std::string> const>;

[[nodiscard]] DayNames NameDays(quotes::QuoteSeries const& series);

// What one box shows, copied when it was drawn: the data change while a drawing stays in its box, as the
// cycles do when the quote file is closed. A box without a drawing has a description and no days.
struct ChartReading {
    // One number of every day.
    struct Row {
        std::string Name;
        std::vector<double> Values;
    };

    std::string Description; // one paragraph
    DayNames Days;           // none without a drawing
    std::vector<Row> Rows;
    std::string NumberFormat; // of all rows
};

// Reads one box that was just drawn, prepared or emptied, with the contents that it was drawn from. Of a
// chart that is empty or ended with a fault it says why. Raises no fault. Takes the place of what was read
// before, whose memory it uses: each redraw reads every box. REQUIRES: days are NameDays(contents.Series).
void ReadChart(ChartKind kind, ChartContents const& contents, DayNames const& days, ChartReading& reading);

// How many days the box shows.
[[nodiscard]] int CountDays(ChartReading const& reading);

// The tool tip of a day, counted from 1: the day and then each value drawn there, one to the line. Empty for
// a day that the box does not show.
[[nodiscard]] std::string DescribeDay(ChartReading const& reading, int day);

} // namespace quorvex::chart
