// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PictureReadings.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "platform/qt/PictureBox.h"

namespace quorvex::tests {

// Ten columns over a box of 300 pixels, 30 pixels apart; the seventh tells what could pass for markup, the
// tenth nothing.
class TenColumns final : public platform::PictureReadings {
public:
    [[nodiscard]] int Columns() const override { return 10; }

    [[nodiscard]] int ColumnAt(double place) const override;

    [[nodiscard]] double PlaceOf(int column) const override;

    [[nodiscard]] std::string Describe(int column) const override;
};

// A picture box on the screen that saves into files in memory.
class ShownPicture {
public:
    static constexpr int Width = 300;
    static constexpr int Height = 120;

    ShownPicture();

    // Draws a blue rectangle from 30 to 60 pixels across and 15 to 45 pixels down.
    void Draw();

    platform::fake::MemoryFiles Files;
    platform::fake::ScriptedDialogs Dialogs;
    TenColumns Readings;
    QWidget Window;
    platform::qt::PictureBox Box{&Window};
};

} // namespace quorvex::tests
