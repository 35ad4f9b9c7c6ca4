// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basCorrel.h"

#include "text/RunTimeError.h"
#include "text/basFormats.h"

namespace quorvex::cycles {

std::optional<double> CoefficientOfCorrelation(CycleCurves const& curves, std::int16_t workingCount) {
    double sumX = 0;
    double sumY = 0;
    double sumXX = 0;
    double sumYY = 0;
    double sumXY = 0;
    for (int day = 1; day <= workingCount; ++day) {
        double const x = curves.CompositeCurve[day];
        double const y = curves.MovingAverageCurve[day];
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumYY += y * y;
        sumXY += x * y;
    }
    if (sumX == 0 || sumY == 0) {
        return std::nullopt;
    }
    double const n = workingCount;
    double const spread = text::RequireFinite((n * sumXX - sumX * sumX) * (n * sumYY - sumY * sumY));
    return text::Divide(n * sumXY - sumX * sumY, text::SquareRoot(spread));
}

platform::Message CorrelationMessage(std::optional<double> coefficient) {
    if (!coefficient) {
        return {"Insufficient data to perform correlation", "Quorvex - Correlation",
                platform::Icon::Information};
    }
    // The blanks at the line ends belong to the text.
    return {"The coefficient of correlation between the     \n"
            "composite cycle and the moving average         \n"
            "of the daily closes is " +
                text::FormatNumber(*coefficient, "###.##%"),
            "Quorvex - Coefficient of Correlation", platform::Icon::Information};
}

void ShowCorrelation(CycleCurves const& curves, std::int16_t workingCount, platform::Dialogs& dialogs) {
    dialogs.Show(CorrelationMessage(CoefficientOfCorrelation(curves, workingCount)));
}

} // namespace quorvex::cycles
