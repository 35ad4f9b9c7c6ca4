// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "settings/Settings.h"

#include <QDialog>
#include <QTextEdit>
#include <memory>
#include <optional>
#include <string>

class QMenuBar;

namespace quorvex::auxiliary::ui {

// Shows one rich-text document of the program folder and prints it or what is selected of it. The file is
// read anew whenever the window is activated or changes its size: the view then goes to the top with nothing
// selected. One that cannot be read leaves the window empty. docs/behaviour.md tells why.
class frmHelp final : public QDialog {
    Q_OBJECT

public:
    // All must outlive the window.
    frmHelp(QWidget* parent, std::string const& programFolder, settings::Settings const& settings,
            platform::Files const& files, platform::Dialogs& dialogs);

    // Shows the document of this name and waits until the window is closed.
    void RunModal(std::string const& helpFileName);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QMenuBar* MakeMenu();
    void LayOut();
    void LoadDocument();
    [[nodiscard]] std::optional<std::string> ReadDocument() const;
    void Show(std::unique_ptr<QTextDocument> document);
    void GoToTop();
    void Print();

    std::string const& programFolder_;
    settings::Settings const& settings_;
    platform::Files const& files_;
    platform::Dialogs& dialogs_;
    std::string helpFileName_;
    std::optional<std::string> content_; // of the file that is shown, nothing when none is
    QMenuBar* menuBar_;
    QTextEdit* richTextBox1_;
};

} // namespace quorvex::auxiliary::ui
