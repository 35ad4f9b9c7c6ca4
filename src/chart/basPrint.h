// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The quote chart on paper.
#pragma once

#include "platform/MousePointer.h"
#include "platform/Printer.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

namespace quorvex::chart {

// Prints the working days in the style of the chart type on one page: file name and dates, and a chart four
// inches high with ten price divisions and a tick for every day. Without days the chart is empty. The pointer
// is the hourglass until it is done. Raises "Printer error", and "Division by zero" for prices without a
// range; nothing is printed then.
void PrintChart(platform::PrintQueue& queue, platform::MousePointer& pointer,
                quotes::QuoteSeries const& series, settings::Settings const& settings);

} // namespace quorvex::chart
