// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basParameters.h"

#include "platform/basFiles.h"
#include "platform/basMessages.h"
#include "platform/basSaving.h"
#include "text/basFolders.h"
#include "text/basNumbers.h"
#include "text/basTexts.h"

namespace quorvex::cycles {

namespace {

// Whether the grid holds weights; when not, tells the user.
bool RequireWeights(ParameterGrid const& grid, platform::Dialogs& dialogs) {
    if (SumOfWeights(grid) == 0) {
        platform::ShowWarning(dialogs, "Insufficient cycle parameters data to save");
        return false;
    }
    return true;
}

// Lets the user choose and reads what was chosen; nothing changes when there is nothing to choose from.
void ChooseParameterFile(CycleParameterSet& set, std::string_view programFolder, platform::Files const& files,
                         platform::Dialogs& dialogs) {
    std::string const folder = text::EndWithSeparator(programFolder);
    auto const names = files.List(folder, ParameterFilePattern);
    if (names.empty()) {
        platform::ShowWarning(dialogs, "Cannot find Cycle Parameter text files.");
        return;
    }
    auto const name = dialogs.Choose(platform::FileKind::Parameters, names);
    set.ParameterFileName = name ? folder + *name : std::string();
    if (name) {
        ReadParameterFile(set.ParameterFileName, set, files, dialogs);
    }
}

} // namespace

void ReadParameters(text::ByteSource& source, CycleParameterSet& set) {
    text::FieldReader fields(source);
    for (int row = 1; !fields.AtEnd(); ++row) {
        double const weight = text::LeadingNumber(fields.Take());
        double const period = text::LeadingNumber(fields.Take());
        double const shift = text::LeadingNumber(fields.Take());
        double const decay = text::LeadingNumber(fields.Take());
        CycleRecord& cycle = set.Cycles[row];
        cycle.Weight = weight;
        cycle.Period = period;
        cycle.Shift = shift;
        cycle.Decay = decay;
    }
}

bool ReadParameterFile(std::string const& path, CycleParameterSet& set, platform::Files const& files,
                       platform::Dialogs& dialogs) {
    return platform::RunReported(dialogs, [&] { ReadParameters(*files.OpenForInput(path), set); });
}

std::string ParameterFileText(ParameterGrid const& grid) {
    std::string content;
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        std::string_view separator;
        for (Parameter const parameter : Parameters) {
            content += separator;
            content += text::PlainNumber(text::LeadingNumber(grid.Text(parameter, cycle)));
            separator = ", ";
        }
        content += "\r\n";
    }
    return content;
}

void OpenParameters(CycleParameterSet& set, ParameterGrid& grid, std::string_view programFolder,
                    platform::Files const& files, platform::Dialogs& dialogs) {
    ChooseParameterFile(set, programFolder, files, dialogs);
    if (!set.ParameterFileName.empty()) {
        WriteGrid(set, grid);
    }
}

void SaveParameters(ParameterGrid const& grid, platform::Dialogs& dialogs) {
    static_cast<void>(RequireWeights(grid, dialogs));
}

void SaveParametersAs(CycleParameterSet const& set, ParameterGrid const& grid, platform::Dialogs& dialogs) {
    if (!RequireWeights(grid, dialogs)) {
        return;
    }
    for (;;) {
        std::string const name =
            dialogs.Ask({"Save current cycle parameters file:", "Save As...", set.ParameterFileName});
        if (name.empty()) {
            return;
        }
        if (IsParameterFileName(name)) {
            break;
        }
        platform::ShowWarning(dialogs, "Invalid cycle parameters file (*.dat)");
    }
    dialogs.Show({"Cycle parameters file " + set.ParameterFileName + " successfully saved", "Save As..."});
}

void WriteParameterFile(CycleParameterSet const& set, ParameterGrid const& grid,
                        std::string_view programFolder, platform::Files& files, platform::Dialogs& dialogs) {
    if (!RequireWeights(grid, dialogs)) {
        return;
    }
    std::string_view const opened = platform::BareName(set.ParameterFileName);
    // Behind another ending, too: the chooser lists no other files.
    std::string const path =
        platform::AskForFileToWrite(dialogs, files,
                                    {.Title = "Write Parameter File",
                                     .Folder = std::string(programFolder),
                                     .Name = std::string(opened.empty() ? "Cycles.dat" : opened),
                                     .Filter = "Cycle Parameters (*.dat)|*.dat",
                                     .Ending = "dat"},
                                    ".dat");
    if (!path.empty()) {
        files.Replace(path, ParameterFileText(grid));
    }
}

bool IsParameterFileName(std::string_view name) {
    return text::IsNameWithExtension(name, ".DAT");
}

bool NewParameters(CycleParameterSet& set, CycleCurve& compositeCurve, ParameterGrid& grid,
                   platform::Dialogs& dialogs) {
    if (SumOfWeights(grid) != 0) {
        auto const answer = dialogs.Show({"Save current cycle parameters data?", "Save Parameter File",
                                          platform::Icon::None, platform::Buttons::YesNoCancel});
        if (answer == platform::Answer::Cancel) {
            return false;
        }
        if (answer == platform::Answer::Yes && set.ParameterFileName.empty()) {
            SaveParametersAs(set, grid, dialogs);
        } else if (answer == platform::Answer::Yes) {
            SaveParameters(grid, dialogs);
        }
    }
    ClearGrid(grid);
    ClearCycles(set, compositeCurve);
    set.ParameterFileName.clear();
    return true;
}

} // namespace quorvex::cycles
