// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/ui/frmParameter.h"

namespace quorvex::cycles::ui {

frmParameter::frmParameter(QWidget* parent)
    : FileChooser(parent, QStringLiteral("frmParameter"), QStringLiteral("Open Cycle Parameter File")) {}

} // namespace quorvex::cycles::ui
