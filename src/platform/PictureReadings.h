// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace quorvex::platform {

// What a drawing shows, column by column, for tool tips and keys. Columns are counted from 1; places are in
// twips from the drawing's left edge.
class PictureReadings {
public:
    PictureReadings() = default;
    PictureReadings(PictureReadings const&) = delete;
    PictureReadings& operator=(PictureReadings const&) = delete;
    virtual ~PictureReadings() = default;

    // 0 when there is nothing to read.
    [[nodiscard]] virtual int Columns() const = 0;

    // The column nearest to the place, 0 when it is on none.
    [[nodiscard]] virtual int ColumnAt(double place) const = 0;

    [[nodiscard]] virtual double PlaceOf(int column) const = 0;

    // The column's values, in lines joined by LF; empty when nothing is drawn there.
    [[nodiscard]] virtual std::string Describe(int column) const = 0;
};

} // namespace quorvex::platform
