// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "chart/basReading.h"
#include "chart/basScale.h"
#include "platform/PictureReadings.h"
#include "platform/RecordingCanvas.h"

namespace quorvex::app::ui {

// What one chart box shows, as it was when it was drawn.
class ChartReadings final : public platform::PictureReadings {
public:
    // The drawing must outlive the readings.
    explicit ChartReadings(platform::RecordingCanvas const& drawing) : drawing_(drawing) {}

    // To be read into whenever the box was drawn.
    [[nodiscard]] chart::ChartReading& Reading() { return reading_; }

    [[nodiscard]] int Columns() const override { return chart::CountDays(reading_); }

    [[nodiscard]] int ColumnAt(double place) const override {
        return chart::ColumnAt(place, drawing_.Width(), Columns());
    }

    [[nodiscard]] double PlaceOf(int column) const override {
        return column * chart::ColumnStep(drawing_.Width(), Columns());
    }

    [[nodiscard]] std::string Describe(int column) const override {
        return chart::DescribeDay(reading_, column);
    }

private:
    platform::RecordingCanvas const& drawing_;
    chart::ChartReading reading_;
};

} // namespace quorvex::app::ui
