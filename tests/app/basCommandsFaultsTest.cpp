// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The commands of the main window with a fault in each of their calls of files.

#include "RunningProgram.h"
#include "app/basCommands.h"
#include "app/basCycleCommands.h"
#include "app/basImportCommands.h"
#include "support/EveryFault.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

namespace quorvex::app {
namespace {

using platform::Answer;
using platform::fake::FileCall;
using tests::Ending;
using tests::ExpectSafe;
using tests::MetFault;
using tests::Trial;

std::string const WorkFolder = "C:\\Quorvex\\";
std::string const MailFolder = "D:\\Mail\\";
std::string const ReplaceQuestion =
    "Write Parameter File|exclamation|Yes No|new.dat already exists.\nDo you want to replace it?";

// The cycles last, so that those of a file that breaks off stand in front of those before it.
std::string MemoryOf(RunningProgram const& running) {
    Program const& program = *running.Data;
    quotes::QuoteSeries const& series = program.Quotes;
    std::ostringstream text;
    text << program.Cycles.ParameterFileName << '\n'
         << running.Window.Caption << '\n'
         << running.Files.CurrentFolder << '\n'
         << program.Settings.DataPath << '\n'
         << series.QuoteFileName << ' ' << series.QuoteCount << ' ' << series.WorkingCount << ' '
         << series.FirstQuoteDate << ' ' << series.LastQuoteDate << '\n'
         << program.ImportFrom.Path << ' ' << program.Imported.has_value() << '\n';
    for (std::int16_t day = 1; day <= series.QuoteCount; ++day) {
        text << series.Master[day].Date << ' ' << series.Master[day].Close << ' ' << series.Working[day].Date
             << ' ' << series.Working[day].Volume << ' ' << program.Curves.MovingAverageCurve[day] << '\n';
    }
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        for (cycles::Parameter const parameter : cycles::Parameters) {
            text << running.Grid.Text(parameter, cycle) << ' ';
        }
        cycles::CycleRecord const& record = program.Cycles.Cycles[cycle];
        text << record.Weight << ' ' << record.Period << ' ' << record.Shift << ' ' << record.Decay << '\n';
    }
    return text.str();
}

// A program with a contract and cycles, of which one alone has a weight, so that scaling changes none, among
// files to choose from.
class BusyProgram : public RunningProgram {
public:
    BusyProgram() {
        Failing.PieceSize = 700; // so that a file breaks off in its middle
        Files.Contents[WorkFolder + "new.txt"] = tests::QuoteLines(40);
        Files.Contents[WorkFolder + "old.dat"] = "100, 21, 3, 1\r\n0, 13, 0, 0\r\n";
        Files.Contents[WorkFolder + "new.dat"] = "100, 30, 5, 2\r\n0, 10, 1, 0\r\n0, 7, 2, 0\r\n";
        Files.Contents[MailFolder + "Wheat.txt"] = tests::QuoteLines(35);
        Open("old.txt", tests::QuoteLines(30));
        Dialogs.Choices = {"old.dat"};
        ParametersOpen(*Data, Outside);
    }
};

using Deed = std::function<void(BusyProgram&)>;

// The command with its answers.
Trial TrialOf(std::shared_ptr<BusyProgram> const& program, Deed const& command) {
    return {.Disk = program->Files,
            .Files = program->Failing,
            .Run =
                [program, command] {
                    program->Dialogs.Messages.clear();
                    program->Window.Opened.clear();
                    command(*program);
                },
            .Memory = [program] { return MemoryOf(*program); },
            .Told = [program] { return tests::DescribeAll(program->Dialogs.Messages); }};
}

std::function<Trial()> Maker(Deed const& command, std::function<Ending(MetFault const&)> const& ends = {}) {
    return [=] {
        Trial trial = TrialOf(std::make_shared<BusyProgram>(), command);
        trial.Ends = ends;
        return trial;
    };
}

Ending CannotFind(MetFault const& met, std::string const& what) {
    bool const isOfList = met.Call == FileCall::List;
    return {{isOfList ? "Quorvex|exclamation|Cannot find " + what + " text files." : DescriptionBox(met)}};
}

TEST(CommandsUnderFaults, OpenLeavesTheContractThatIsOpen) {
    ExpectSafe("File > Open",
               Maker(
                   [](BusyProgram& program) {
                       program.Dialogs.Choices = {"new.txt"};
                       FileOpen(*program.Data, program.Outside);
                   },
                   [](MetFault const& met) { return CannotFind(met, "daily quote"); }),
               {"List", "OpenForInput", "Read"});
}

TEST(CommandsUnderFaults, SaveAsLeavesFileAndName) {
    ExpectSafe("File > Save As", Maker([](BusyProgram& program) {
                   program.Dialogs.Texts = {"new.txt"};
                   FileSaveAs(*program.Data, program.Outside);
               }),
               {"Replace"});
}

// The file that is read stays the current one, and its rows up to the fault stay (docs/behaviour.md).
TEST(CommandsUnderFaults, ParametersOpenKeepsTheRowsThatWereRead) {
    auto const make = [] {
        Trial trial = TrialOf(std::make_shared<BusyProgram>(), [](BusyProgram& program) {
            program.Failing.PieceSize = 10;
            program.Dialogs.Choices = {"new.dat"};
            ParametersOpen(*program.Data, program.Outside);
        });
        trial.Ends = [](MetFault const& met) { return CannotFind(met, "Cycle Parameter"); };
        trial.MayHold = tests::IsDoneInPart;
        return trial;
    };
    ExpectSafe("Parameters > Open", make, {"List", "OpenForInput", "Read"});
}

// What asks whether the file is there and cannot learn it takes it for one.
TEST(CommandsUnderFaults, WriteParameterFileLeavesTheFile) {
    auto const ends = [](MetFault const& met) -> Ending {
        bool const seemsNew = met.IsGone() || met.Raised == text::Fault::BadFileName;
        Ending ending;
        if (met.Call != FileCall::Length || !seemsNew) {
            ending.Told.push_back(ReplaceQuestion);
        }
        ending.IsDone = met.Call == FileCall::Length && !met.Lasts;
        if (!ending.IsDone) {
            ending.Told.push_back(DescriptionBox(met));
        }
        return ending;
    };
    ExpectSafe("Write Parameter File",
               Maker(
                   [](BusyProgram& program) {
                       program.Dialogs.Paths = {WorkFolder + "new.dat"};
                       program.Dialogs.Answers = {Answer::Yes};
                       WriteParameterFile(*program.Data, program.Outside);
                       program.Dialogs.Answers.clear();
                   },
                   ends),
               {"Length", "Replace"});
}

TEST(CommandsUnderFaults, OthersOfTheParametersNeedNoFiles) {
    ExpectSafe("Parameters > Save", Maker([](BusyProgram& program) {
                   ParametersSave(*program.Data, program.Outside);
                   program.Dialogs.Texts = {"new.dat"};
                   ParametersSaveAs(*program.Data, program.Outside);
               }),
               {});
    ExpectSafe("Parameters > New", Maker([](BusyProgram& program) {
                   program.Dialogs.Answers = {Answer::Yes};
                   ParametersNew(*program.Data, program.Outside);
                   program.Dialogs.Answers.clear();
               }),
               {});
}

// A file that cannot be looked at is left to the import window, which the user closes here.
TEST(CommandsUnderFaults, ADroppedQuoteFileIsOpenedWithItsFolderOrNotAtAll) {
    auto const make = [] {
        auto const program = std::make_shared<BusyProgram>();
        Trial trial = TrialOf(program, [](BusyProgram& running) {
            std::vector<std::string> const paths = {MailFolder + "Wheat.txt"};
            TakeFiles(paths, *running.Data, running.Outside);
        });
        trial.Ends = [program](MetFault const& met) -> Ending {
            bool const isImported = !program->Window.Opened.empty();
            return isImported ? Ending{} : Ending{{DescriptionBox(met)}};
        };
        return trial;
    };
    ExpectSafe("drop a quote file", make, {"OpenForInput", "Read", "EnterFolder"});
}

TEST(CommandsUnderFaults, AnImportedFileIsOpenedWithItsFolderOrNotAtAll) {
    auto const imports = [](BusyProgram& program) {
        program.Window.WhenOpened = [&program] {
            program.Data->Imported = imports::ImportedFile{MailFolder, "Wheat.txt"};
        };
    };
    ExpectSafe("Import Table", Maker([=](BusyProgram& program) {
                   imports(program);
                   program.Dialogs.Paths = {MailFolder + "wheat.csv"};
                   ImportChosenTable(*program.Data, program.Outside);
               }),
               {"OpenForInput", "Read", "EnterFolder"});
    ExpectSafe("paste a table", Maker([=](BusyProgram& program) {
                   imports(program);
                   TakeTable("a table", *program.Data, program.Outside);
               }),
               {"OpenForInput", "Read", "EnterFolder"});
}

} // namespace
} // namespace quorvex::app
