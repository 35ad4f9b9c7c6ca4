// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace Ui {
class FileChooser;
}

namespace quorvex::platform::qt {

// A modal window that lets the user choose one of the names in a list. A label shows the whole name that is
// chosen; OK cannot be used before there is one.
class FileChooser : public QDialog {
    Q_OBJECT

public:
    FileChooser(QWidget* parent, QString const& name, QString const& title);
    ~FileChooser() override;

    // Shows the names in this order and returns the one chosen, or nothing when the user cancelled.
    [[nodiscard]] std::optional<std::string> Choose(std::span<std::string const> names);

private:
    void ListNames(std::span<std::string const> names);
    void ShowChosenName();

    std::unique_ptr<Ui::FileChooser> ui_;
};

} // namespace quorvex::platform::qt
