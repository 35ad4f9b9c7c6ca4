// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace quorvex::editor::ui {

// Tells how the last save ended, on the screen and to screen readers, which it is a status bar to.
class StatusLine final : public QLabel {
    Q_OBJECT

public:
    explicit StatusLine(QWidget& client);

    void Tell(QString const& newText);
};

} // namespace quorvex::editor::ui
