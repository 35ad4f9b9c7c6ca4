// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/frmConvertCSI.h"

#include "convert/basConvertCSI.h"

namespace quorvex::convert::ui {

frmConvertCSI::frmConvertCSI(QWidget* parent, platform::Files& files, platform::Dialogs& dialogs,
                             platform::PrintQueue& printing)
    : ConvertWindow(parent, CsiTexts(), files, dialogs, printing) {
    constexpr int UsualWidth = 640;
    TakeWidth(UsualWidth);
}

std::unique_ptr<SourceLayout> frmConvertCSI::ReadLayout() {
    return std::make_unique<CsiLayout>();
}

void frmConvertCSI::ShowHelp() {
    Dialogs().Show(CsiHelpMessage());
}

} // namespace quorvex::convert::ui
