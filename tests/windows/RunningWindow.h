// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Program.h"
#include "app/ui/frmMain.h"
#include "platform/disk/DiskFiles.h"
#include "platform/fake/MemoryProfile.h"
#include "platform/fake/RecordingLauncher.h"
#include "platform/fake/RecordingPrinter.h"
#include "platform/qt/PictureBox.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"

#include <QAction>
#include <QLineEdit>
#include <memory>
#include <string>

namespace quorvex::tests {

// A started program with its main window on the screen, in a folder of its own.
class RunningWindow {
public:
    RunningWindow();

    // Puts a reference quote file into the folder and opens it through menu and chooser.
    void OpenQuotes(std::string const& name);

    // Puts a file of this content into the folder and opens it likewise.
    void OpenQuotes(std::string const& name, std::string const& content);

    // Chooses the menu item and waits until its command is over.
    void Choose(char const* menuItem) const;

    // The menu item of this name; a test without it cannot go on.
    [[nodiscard]] QAction& Item(QString const& name) const;

    // The cell of a cycle: row 1 is Weight, 2 Period, 3 Shift, 4 Decay.
    [[nodiscard]] QLineEdit& Cell(int row, int cycle) const;

    // Types over what stands in the cell.
    void TypeInto(int row, int cycle, QString const& text) const;

    // The texts of a row's cells 1 to 10, joined by blanks.
    [[nodiscard]] QString RowTexts(int row) const;

    [[nodiscard]] platform::qt::PictureBox& Box(int number) const;

    // What the box shows.
    [[nodiscard]] QImage Picture(int number) const { return Box(number).Picture().copy(); }

    TemporaryFolder Folder;
    platform::disk::DiskFiles Files;
    platform::fake::RecordingLauncher Launcher;
    platform::fake::MemoryProfile Profile;
    platform::NoRegistry Registry;
    platform::fake::RecordingPrintQueue Printing;
    std::unique_ptr<app::Program> Data = std::make_unique<app::Program>();
    std::unique_ptr<app::ui::frmMain> Window;
    ModalAnswers Answers;
};

} // namespace quorvex::tests
