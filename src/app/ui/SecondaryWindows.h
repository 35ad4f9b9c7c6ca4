// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/MainWindow.h"
#include "app/Program.h"
#include "platform/Dialogs.h"
#include "platform/qt/PictureBox.h"

#include <QPointer>
#include <QWidget>
#include <vector>

namespace quorvex::auxiliary::ui {
class frmAbout;
class frmHelp;
class frmProperties;
} // namespace quorvex::auxiliary::ui

namespace quorvex::chart::ui {
class frmForecast;
class frmLegend;
} // namespace quorvex::chart::ui

namespace quorvex::convert::ui {
class frmConvertBarChart;
class frmConvertCSI;
class frmConvertCustom;
} // namespace quorvex::convert::ui

namespace quorvex::editor::ui {
class frmEdit;
}

namespace quorvex::evaluation::ui {
class frmTestForecast;
}

namespace quorvex::imports::ui {
class frmImport;
}

namespace quorvex::prefs::ui {
class frmPreferences;
}

namespace quorvex::search::ui {
class frmFindCycles;
}

namespace quorvex::app::ui {

// The windows that commands open. Each is created when it is first needed, and kept.
class SecondaryWindows {
public:
    // All must outlive the object; the windows belong to the main window.
    SecondaryWindows(QWidget& mainWindow, Program& program, platform::Dialogs& dialogs, Host const& host);

    // Shows the window and waits until it is closed.
    void RunModal(SecondaryWindow window);

private:
    // One document serves the converters.
    void ShowConverterHelp();

    // What the context menu of the forecast window's chart has as that of the composite has it.
    [[nodiscard]] std::vector<platform::qt::PictureCommand> ForecastCommands();

    QWidget& mainWindow_;
    Program& program_;
    platform::Dialogs& dialogs_;
    Host host_;
    QPointer<auxiliary::ui::frmAbout> about_;
    QPointer<convert::ui::frmConvertBarChart> convertBarChart_;
    QPointer<convert::ui::frmConvertCSI> convertCSI_;
    QPointer<convert::ui::frmConvertCustom> convertCustom_;
    QPointer<editor::ui::frmEdit> edit_;
    QPointer<chart::ui::frmForecast> forecast_;
    QPointer<search::ui::frmFindCycles> findCycles_;
    QPointer<auxiliary::ui::frmHelp> help_;
    QPointer<imports::ui::frmImport> import_;
    QPointer<chart::ui::frmLegend> legend_;
    QPointer<prefs::ui::frmPreferences> preferences_;
    QPointer<auxiliary::ui::frmProperties> properties_;
    QPointer<evaluation::ui::frmTestForecast> testForecast_;
};

} // namespace quorvex::app::ui
