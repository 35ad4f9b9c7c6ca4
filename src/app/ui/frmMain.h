// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/MainWindow.h"
#include "app/MenuTable.h"
#include "app/Program.h"
#include "app/ui/ChartReadings.h"
#include "app/ui/GridPanel.h"
#include "app/ui/MainDialogs.h"
#include "app/ui/SecondaryWindows.h"
#include "platform/PendingMessages.h"
#include "platform/qt/PictureBox.h"
#include "platform/qt/QtPendingMessages.h"

#include <QMainWindow>
#include <QMimeData>
#include <QScopeGuard>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace quorvex::app::ui {

// The program's one top-level window: menu, tool strip, parameter grid and the four charts. It owns no data:
// its commands work on the program, and every return from another program, every change of size and every
// command that changes data draws all charts anew, once.
class frmMain final : public QMainWindow, private MainWindow, private platform::PendingMessages {
    Q_OBJECT

public:
    // Starts the program up. All must outlive the window.
    frmMain(Program& program, std::string_view programFolder, Host const& host);
    ~frmMain() override;

    // Runs the command of a menu item as if it had been chosen.
    void Run(MenuRow const& row);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    static constexpr std::size_t BoxCount = 4;

    // Up until it goes.
    using Flag = QScopeGuard<std::function<void()>>;

    [[nodiscard]] static Flag Raise(bool& flag);

    void AddBoxes();

    // What the context menu of the chart of this name offers besides its own.
    [[nodiscard]] std::vector<platform::qt::PictureCommand> CommandsOf(std::string_view boxName);

    // Imports what was dropped or pasted, if there is a table in it, once Qt is done with the event: who
    // dropped it waits for the end of that.
    void TakeTables(QMimeData const* mimeData);

    // Whether a command, a redraw or a dialog is under way. Redraws that are wanted wait for its end.
    [[nodiscard]] bool IsOccupied() const;

    // Draws everything anew, if that is wanted and nothing is under way.
    void RedrawWhenFree();

    // Wants a redraw when the user comes back from another program. That a dialog of the program's own takes
    // the focus and gives it back is none: how often, and when, differs between desktops.
    void FollowActivation(bool isActive);

    // Puts everything into its place now and draws it anew as soon as Qt is done with the event: a redraw
    // lets further sizes through, and the layout that is at work on this one must not go on with it after
    // those. While something else is under way it draws at once, without reading the grid, which waits.
    void FollowSize();
    void Repaint();
    void PlaceControls();

    void SetBoxUpdates(bool isEnabled);

    // Makes the boxes show and tell what was drawn of this program since the last time.
    void ShowDrawings(Program const& program);

    // Runs the routine while no redraw may come between, then the redraw that a change of size wanted
    // meanwhile, unless the routine has made one since.
    void RunUndisturbed(std::function<void()> const& routine);

    // MainWindow
    void SetCaption(std::string_view caption) override;
    void LayOut() override;
    void Open(SecondaryWindow window) override;
    void End() override;

    // platform::PendingMessages
    void Process() override;

    [[nodiscard]] chart::ChartBoxes Boxes();

    Program& program_;
    platform::Files& files_;
    QWidget* client_;
    QWidget* toolStrip_ = nullptr;
    std::unique_ptr<GridPanel> grid_;
    std::array<std::unique_ptr<ChartReadings>, BoxCount> readings_;
    std::array<platform::qt::PictureBox*, BoxCount> boxes_{};
    MainDialogs dialogs_;
    SecondaryWindows windows_;
    platform::qt::QtPendingMessages pending_;
    std::unique_ptr<Services> services_;
    QTimer redrawAfterEvent_;
    bool isCommandRunning_ = false;
    bool isRedrawing_ = false;
    bool isAway_ = false;   // another program has the focus
    bool isBroken_ = false; // the last redraw ended with an exception, which was shown
    bool isRedrawWanted_ = false;
};

} // namespace quorvex::app::ui
