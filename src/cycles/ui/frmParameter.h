// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/qt/FileChooser.h"

namespace quorvex::cycles::ui {

// Chooses among the parameter files of the program folder.
class frmParameter final : public platform::qt::FileChooser {
    Q_OBJECT

public:
    explicit frmParameter(QWidget* parent);
};

} // namespace quorvex::cycles::ui
