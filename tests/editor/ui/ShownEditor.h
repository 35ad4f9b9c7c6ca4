// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/ui/frmEdit.h"
#include "platform/disk/DiskFiles.h"
#include "platform/fake/FailingFiles.h"
#include "platform/fake/RecordingPrinter.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"

#include <QAction>
#include <functional>
#include <memory>
#include <string>

namespace quorvex::tests {

// Boxes over whatever window the user is in.
class WindowDialogs final : public platform::Dialogs {
public:
    platform::Answer Show(platform::Message const& message) override;
    [[nodiscard]] std::string Ask(platform::Question const& question) override;
    [[nodiscard]] std::optional<std::string> Choose(platform::FileKind kind,
                                                    std::span<std::string const> names) override;
    [[nodiscard]] std::string AskForFile(platform::FileQuestion const& question) override;
    [[nodiscard]] std::string AskWhereToSave(platform::SaveQuestion const& question) override;

private:
    QWidget parent_;
};

// The quote editor on a series of quotes, whose file lies in a folder of its own, together with what the user
// does in it.
class ShownEditor {
public:
    // The file of the name has the content; without a name no file is open.
    ShownEditor(std::string const& content, std::string const& name);

    // Opens the editor, does this in it, and comes back when the editor is closed, which it is at the end.
    void Run(std::function<void()> const& deeds);

    void Choose(char const* menuItem) const;

    // Types over what stands in the cell and presses Enter.
    void Type(int row, int column, QString const& text) const;

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

    void GoTo(int row, int column) const;
    [[nodiscard]] QString Text(int row, int column) const;

    // What the status line says.
    [[nodiscard]] QString Status() const;

    // "row,column" of the cursor.
    [[nodiscard]] QString Cursor() const;

    // As if the user had gone to another program and come back.
    void ComeBack() const;

    [[nodiscard]] editor::ui::SpreadGrid& Grid() const { return *grid_; }

    TemporaryFolder Folder;
    std::unique_ptr<quotes::QuoteSeries> Series;
    settings::Settings Settings;
    platform::disk::DiskFiles Files;
    platform::fake::FailingFiles Failing{Files}; // which the editor has
    platform::fake::RecordingPrintQueue Printer;
    WindowDialogs Dialogs;
    ModalAnswers Answers;
    std::unique_ptr<editor::ui::frmEdit> Window;

private:
    editor::ui::SpreadGrid* grid_ = nullptr;
};

} // namespace quorvex::tests
