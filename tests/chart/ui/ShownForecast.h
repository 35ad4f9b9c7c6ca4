// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "chart/ui/frmForecast.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "platform/qt/PictureBox.h"
#include "support/TemporaryFolder.h"

#include <QStringList>
#include <memory>

namespace quorvex::tests {

// A forecast window on the screen over data of its own, with one cycle of weight 100 and period 20.
class ShownForecast {
public:
    // Over the quotes that the lines give, as a loaded file of this name would.
    ShownForecast(std::string_view quotes, std::string_view fileName);

    void Show() const;

    // Leaves the window and comes back to it.
    void ActivateAgain() const;

    [[nodiscard]] QStringList Lines(char const* list) const;
    [[nodiscard]] platform::qt::PictureBox& Chart() const;

    [[nodiscard]] QString Description() const { return Chart().accessibleDescription(); }

    void Choose(char const* menuItem) const;

    TemporaryFolder Folder;
    platform::fake::MemoryFiles Files;
    platform::fake::ScriptedDialogs Dialogs;
    settings::Settings Settings = settings::DefaultSettings(Folder.Text());
    std::unique_ptr<quotes::QuoteSeries> Series;
    std::unique_ptr<cycles::CycleParameterSet> Cycles = std::make_unique<cycles::CycleParameterSet>();
    std::unique_ptr<chart::ui::frmForecast> Window;
};

} // namespace quorvex::tests
