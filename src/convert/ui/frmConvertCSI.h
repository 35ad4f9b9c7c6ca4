// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "convert/ui/ConvertWindow.h"

namespace quorvex::convert::ui {

// Converts files of the "Unfair Advantage" software.
class frmConvertCSI final : public ConvertWindow {
    Q_OBJECT

public:
    // All must outlive the window.
    frmConvertCSI(QWidget* parent, platform::Files& files, platform::Dialogs& dialogs,
                  platform::PrintQueue& printing);

protected:
    [[nodiscard]] std::unique_ptr<SourceLayout> ReadLayout() override;
    void ShowHelp() override;
};

} // namespace quorvex::convert::ui
