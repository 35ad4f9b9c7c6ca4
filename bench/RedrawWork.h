// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TemporaryQuoteFile.h"
#include "app/Program.h"
#include "app/ui/frmMain.h"
#include "platform/disk/DiskFiles.h"
#include "platform/qt/PictureBox.h"

#include <QScreen>
#include <QSize>
#include <array>
#include <memory>
#include <string_view>

namespace quorvex::bench {

// The real window with the 500 generated days and ten cycles in it.
class RedrawWork {
public:
    // REQUIRES: a QApplication. Throws when the window does not come to show all four charts.
    RedrawWork(QSize size, QScreen& screen);

    void ShowChartType(std::string_view chartType);

    // Computes, draws and paints everything, as the Refresh command does.
    void Redraw();

    [[nodiscard]] QWidget& Window() { return window_; }

    [[nodiscard]] app::Program const& Data() const { return *program_; }

    // From top to bottom, as they are after a redraw.
    [[nodiscard]] std::array<platform::qt::PictureBox*, 4> const& Boxes() const { return boxes_; }

private:
    void FindBoxes();
    void LoadQuotes();
    void RequireFourCharts() const;

    TemporaryQuoteFile file_;
    platform::disk::DiskFiles files_;
    platform::NoLauncher launcher_;
    platform::NoProfile profile_;
    platform::NoRegistry registry_;
    platform::NoPrintQueue printing_;
    platform::NoMousePointer pointer_;
    std::unique_ptr<app::Program> program_ = std::make_unique<app::Program>();
    app::ui::frmMain window_;
    std::array<platform::qt::PictureBox*, 4> boxes_{};
};

} // namespace quorvex::bench
