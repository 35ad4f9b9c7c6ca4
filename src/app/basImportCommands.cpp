// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basImportCommands.h"

#include "app/basRedraw.h"
#include "import/basQuoteFiles.h"
#include "platform/basFiles.h"
#include "platform/basMessages.h"
#include "quotes/basQuotes.h"

#include <memory>
#include <utility>

namespace quorvex::app {

namespace {

using imports::ImportedFile;
using imports::ImportSource;

// A file that File > Open lists and of which it takes everything, but rounds prices to the Currency Format,
// as it does with every quote file. One that cannot be read is left to the import window, which tells why.
bool IsQuoteFile(std::string const& path, platform::Files const& files) {
    bool isQuoteFile = false;
    if (quotes::IsQuoteFileName(platform::BareName(path))) {
        static_cast<void>(text::Trap([&] { isQuoteFile = imports::IsQuoteFile(*files.OpenForInput(path)); }));
    }
    return isQuoteFile;
}

std::optional<ImportedFile> RunImportWindow(ImportSource source, Program& program, Services& services) {
    program.ImportFrom = std::move(source);
    program.Imported.reset();
    services.Window.Open(SecondaryWindow::Import);
    program.ImportFrom = {};
    return std::exchange(program.Imported, std::nullopt);
}

// A contract that stays open because this one cannot be read keeps its folder. The current folder goes along,
// so that the editor, which saves under the bare name, writes the file that was opened: where it cannot be
// entered, the contract before stays as well.
void OpenQuotes(ImportedFile const& file, Program& program, Services& services) {
    auto const contract = std::make_unique<quotes::QuoteSeries const>(program.Quotes);
    std::string const before = std::exchange(program.Settings.DataPath, file.Folder);
    bool isOpen = quotes::OpenNamedQuoteFile(file.Name, program.Quotes, program.Settings,
                                             services.System.Files, services.Dialogs);
    auto const fault = text::Trap([&] {
        if (isOpen && file.Folder != before) {
            services.System.Files.EnterFolder(file.Folder);
        }
    });
    if (fault) {
        program.Quotes = *contract;
        isOpen = false;
    }
    if (!isOpen) {
        program.Settings.DataPath = before;
    }
    Redraw(program, services);
    if (fault) {
        throw text::RunTimeError(*fault);
    }
}

bool GoesOn(std::size_t leftCount, platform::Dialogs& dialogs) {
    std::string const files =
        leftCount == 1 ? "One file is left.\nDo you want to go on with it?"
                       : std::to_string(leftCount) + " files are left.\nDo you want to go on with them?";
    return dialogs.Show({files, "Import", platform::Icon::Question, platform::Buttons::YesNo}) ==
           platform::Answer::Yes;
}

ImportedFile PlaceOf(std::string const& path) {
    std::string const name(platform::BareName(path));
    return {path.substr(0, path.size() - name.size()), name};
}

} // namespace

void ImportChosenTable(Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        std::string const path = services.Dialogs.AskForFile(
            {program.Settings.DataPath, {}, "All files|*.*|Tables (*.csv)|*.csv|Texts (*.txt)|*.txt"});
        if (path.empty()) {
            return;
        }
        if (auto const imported = RunImportWindow({path, nullptr}, program, services)) {
            OpenQuotes(*imported, program, services);
        }
    });
}

void TakeFiles(std::span<std::string const> paths, Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        std::optional<ImportedFile> last;
        for (std::size_t index = 0; index < paths.size(); ++index) {
            auto const file = IsQuoteFile(paths[index], services.System.Files)
                                  ? PlaceOf(paths[index])
                                  : RunImportWindow({paths[index], nullptr}, program, services);
            std::size_t const leftCount = paths.size() - index - 1;
            if (!file && leftCount > 0 && !GoesOn(leftCount, services.Dialogs)) {
                break;
            }
            last = file ? file : last;
        }
        if (last) {
            OpenQuotes(*last, program, services);
        }
    });
}

void TakeTable(std::string text, Program& program, Services& services) {
    platform::RunReported(services.Dialogs, [&] {
        auto const shared = std::make_shared<std::string const>(std::move(text));
        if (auto const imported = RunImportWindow({{}, shared}, program, services)) {
            OpenQuotes(*imported, program, services);
        }
    });
}

} // namespace quorvex::app
