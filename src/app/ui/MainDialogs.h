// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <QPointer>
#include <QWidget>

namespace quorvex::cycles::ui {
class frmParameter;
}

namespace quorvex::quotes::ui {
class frmQuotes;
}

namespace quorvex::app::ui {

// The boxes and choosers that stop the main window. A chooser is created when it is first needed, and kept.
class MainDialogs final : public platform::Dialogs {
public:
    explicit MainDialogs(QWidget& window) : window_(window) {}

    platform::Answer Show(platform::Message const& message) override;
    [[nodiscard]] std::string Ask(platform::Question const& question) override;
    [[nodiscard]] std::optional<std::string> Choose(platform::FileKind kind,
                                                    std::span<std::string const> names) override;
    [[nodiscard]] std::string AskForFile(platform::FileQuestion const& question) override;
    [[nodiscard]] std::string AskWhereToSave(platform::SaveQuestion const& question) override;

private:
    QWidget& window_;
    // They belong to the window.
    QPointer<quotes::ui::frmQuotes> quotes_;
    QPointer<cycles::ui::frmParameter> parameter_;
};

} // namespace quorvex::app::ui
