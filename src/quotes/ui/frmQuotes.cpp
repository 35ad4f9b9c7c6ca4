// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/ui/frmQuotes.h"

namespace quorvex::quotes::ui {

frmQuotes::frmQuotes(QWidget* parent)
    : FileChooser(parent, QStringLiteral("frmQuotes"), QStringLiteral("Open Quote File")) {}

} // namespace quorvex::quotes::ui
