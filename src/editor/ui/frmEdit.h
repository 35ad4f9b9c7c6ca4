// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Editor.h"
#include "editor/History.h"
#include "editor/UnsavedEdits.h"
#include "editor/basSave.h"
#include "editor/ui/SpreadGrid.h"
#include "editor/ui/StatusLine.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/MousePointer.h"
#include "platform/Printer.h"
#include "platform/qt/WindowMenu.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"
#include "text/RunTimeError.h"

#include <QDialog>
#include <memory>
#include <optional>

namespace quorvex::editor::ui {

// Edits a copy of the quotes that were read from the open file, and writes it to a file. What is typed stands
// in the grid alone until it is saved or printed: whatever fills the grid anew, the size of the window and
// coming back from another program included, drops it. Whatever changes the grid can be undone, and is kept
// in a file until it is saved.
class frmEdit final : public QDialog {
    Q_OBJECT

public:
    // Of the series only the file's name is ever changed, by Save As. All must outlive the window.
    frmEdit(QWidget* parent, quotes::QuoteSeries& series, settings::Settings const& settings,
            platform::Files& files, platform::Dialogs& dialogs, platform::PrintQueue& printer,
            platform::MousePointer& pointer);
    ~frmEdit() override;

    // Opens the quotes anew, shows the window and waits until it is closed.
    void RunModal();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Command = platform::qt::WindowMenu::Command;

    void AddFileMenu(platform::qt::WindowMenu& menu);
    void AddEditMenu(platform::qt::WindowMenu& menu);

    // What is being typed counts for the command, and the grid has the focus afterwards.
    void Run(Command const& command);

    // Runs the command so when it is chosen.
    [[nodiscard]] Command Runs(Command command);

    // Makes a step to undo of what has changed, and keeps it.
    void Record(ChangeKind kind = ChangeKind::Edit);
    void Undo();
    void Redo();
    void ShowUndone(Change const& change);
    void RestoreUnsaved();
    void ForgetUnsaved();

    // Pastes the text when it is a table. Returns whether it is one.
    bool PasteTable(std::int16_t row, std::string const& text);
    void Keep(Change const& change, ChangeKind kind);

    // That edits cannot be kept stands in the status line as long as nothing else does, until they can.
    void TellNotKept(std::optional<text::RunTimeError> const& error);
    void ShowMenu(QPoint place);
    [[nodiscard]] QString RestoreCaption() const;

    void Finish(SaveResult const& result);

    // What the status line says no longer holds once the grid changes, but for edits that are not kept.
    void ForgetStatus();

    void LoadQuotes();

    // The grid's size follows from the window's; the status line has the strip that is left below it.
    void PlaceGrid();

    // Fits the grid into the window and fills it from the editor's copy.
    void Activate();

    quotes::QuoteSeries& series_;
    settings::Settings const& settings_;
    platform::Files& files_;
    platform::Dialogs& dialogs_;
    platform::PrintQueue& printer_;
    platform::MousePointer& pointer_;
    QWidget* client_;
    SpreadGrid* spread_;
    StatusLine* status_;
    std::unique_ptr<Editor> editor_;
    History history_;
    UnsavedEdits unsaved_;
    bool isBusy_ = false;      // a command is running
    QString notKept_;          // why edits are not kept; empty while they are
    bool isUntouched_ = false; // no key and no button since the last command
};

} // namespace quorvex::editor::ui
