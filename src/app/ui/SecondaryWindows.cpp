// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/SecondaryWindows.h"

#include "app/MenuTable.h"
#include "auxiliary/basSystemInfo.h"
#include "auxiliary/ui/frmAbout.h"
#include "auxiliary/ui/frmHelp.h"
#include "auxiliary/ui/frmProperties.h"
#include "chart/ui/frmForecast.h"
#include "chart/ui/frmLegend.h"
#include "convert/ui/frmConvertBarChart.h"
#include "convert/ui/frmConvertCSI.h"
#include "convert/ui/frmConvertCustom.h"
#include "editor/ui/frmEdit.h"
#include "evaluation/ui/frmTestForecast.h"
#include "import/ui/frmImport.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "prefs/ui/frmPreferences.h"
#include "search/ui/frmFindCycles.h"

namespace quorvex::app::ui {

namespace {

template <class Window, class... Arguments>
Window& Need(QPointer<Window>& window, Arguments&&... arguments) {
    if (window.isNull()) {
        window = new Window(std::forward<Arguments>(arguments)...);
    }
    return *window;
}

} // namespace

SecondaryWindows::SecondaryWindows(QWidget& mainWindow, Program& program, platform::Dialogs& dialogs,
                                   Host const& host)
    : mainWindow_(mainWindow),
      program_(program),
      dialogs_(dialogs),
      host_(host) {}

void SecondaryWindows::RunModal(SecondaryWindow window) {
    QWidget* const parent = &mainWindow_;
    switch (window) {
    case SecondaryWindow::Edit:
        Need(edit_, parent, program_.Quotes, program_.Settings, host_.Files, dialogs_, host_.Printing,
             host_.Pointer)
            .RunModal();
        break;
    case SecondaryWindow::ConvertCSI:
        Need(convertCSI_, parent, host_.Files, dialogs_, host_.Printing).RunModal();
        break;
    case SecondaryWindow::ConvertBarChart:
        Need(convertBarChart_, parent, host_.Files, dialogs_, host_.Printing, [this] {
            ShowConverterHelp();
        }).RunModal();
        break;
    case SecondaryWindow::ConvertCustom:
        Need(convertCustom_, parent, host_.Files, dialogs_, host_.Printing, [this] {
            ShowConverterHelp();
        }).RunModal();
        break;
    case SecondaryWindow::Forecast:
        Need(forecast_, parent, program_.Quotes, program_.Cycles, program_.Settings, host_.Files, dialogs_,
             ForecastCommands())
            .RunModal();
        break;
    case SecondaryWindow::TestForecast:
        Need(testForecast_, parent, program_.Quotes, program_.Cycles, program_.Settings, host_.Files,
             dialogs_, host_.Printing, host_.Pointer)
            .RunModal();
        break;
    case SecondaryWindow::FindCycles:
        program_.FoundModel = Need(findCycles_, parent, program_.Quotes, program_.Curves, program_.Settings,
                                   host_.Files, dialogs_)
                                  .RunModal();
        break;
    case SecondaryWindow::Import:
        program_.Imported = Need(import_, parent, program_.Quotes, program_.Settings, host_.Files, dialogs_)
                                .RunModal(program_.ImportFrom);
        break;
    case SecondaryWindow::Preferences:
        Need(preferences_, parent, program_.Settings, program_.Quotes, host_.Profile, dialogs_).RunModal();
        break;
    case SecondaryWindow::Properties:
        Need(properties_, parent, program_.Quotes, program_.Settings, dialogs_).RunModal();
        break;
    case SecondaryWindow::Legend:
        Need(legend_, parent).RunModal();
        break;
    case SecondaryWindow::Help:
        Need(help_, parent, program_.ProgramFolder, program_.Settings, host_.Files, dialogs_)
            .RunModal(program_.HelpFileName);
        break;
    case SecondaryWindow::About:
        Need(about_, parent, ProgramVersion, [this] {
            auxiliary::StartSysInfo(host_.Registry, host_.Files, host_.Launcher, dialogs_);
        }).RunModal();
        break;
    }
}

std::vector<platform::qt::PictureCommand> SecondaryWindows::ForecastCommands() {
    using platform::pictures::ToQt;
    MenuRow const& row = ChartMenuRowNamed("mnuChartTestForecast");
    return {{ToQt(row.Name), ToQt(row.Caption), [this] {
                 platform::qt::CloseMenus();
                 platform::qt::RunGuarded(mainWindow_, [this] { RunModal(SecondaryWindow::TestForecast); });
             }}};
}

void SecondaryWindows::ShowConverterHelp() {
    program_.HelpFileName = "ConvertCustom.rtf";
    RunModal(SecondaryWindow::Help);
}

} // namespace quorvex::app::ui
