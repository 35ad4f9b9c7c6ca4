// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <string_view>

namespace Ui {
class frmAbout;
}

namespace quorvex::auxiliary::ui {

// Title, version and legal notice of the program.
class frmAbout final : public QDialog {
    Q_OBJECT

public:
    // The version without the word; startSysInfo runs when the user asks for the system's information tool.
    frmAbout(QWidget* parent, std::string_view version, std::function<void()> startSysInfo);
    ~frmAbout() override;

    // Shows the window and waits until it is closed.
    void RunModal();

private:
    std::unique_ptr<Ui::frmAbout> ui_;
};

} // namespace quorvex::auxiliary::ui
