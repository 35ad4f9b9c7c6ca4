// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/qt/FileChooser.h"

namespace quorvex::quotes::ui {

// Chooses among the quote files of the data folder.
class frmQuotes final : public platform::qt::FileChooser {
    Q_OBJECT

public:
    explicit frmQuotes(QWidget* parent);
};

} // namespace quorvex::quotes::ui
