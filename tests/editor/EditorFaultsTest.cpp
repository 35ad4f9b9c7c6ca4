// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the quote editor saves and keeps, with a fault in each of its calls of files.

#include "EditorTest.h"
#include "editor/History.h"
#include "editor/UnsavedEdits.h"
#include "editor/basEdit.h"
#include "editor/basSave.h"
#include "platform/fake/FailingFiles.h"
#include "support/EveryFault.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::tests {
namespace {

using editor::ChangeKind;
using platform::Answer;

constexpr char const* EditedPath = "C:\\Quotes\\test.txt";
constexpr char const* OtherPath = "C:\\Quotes\\other.txt";
constexpr std::int16_t CloseColumn = 5;
constexpr std::int16_t EditedRows = 4;

// An editor whose edits are kept, as the window does it. Closes of 900 and more are those of others.
class KeptEditor : public EditorWorld {
public:
    KeptEditor() {
        files.Contents[EditedPath] = QuoteLines(30);
        Failing.PieceSize = 1000;
    }

    void OpenAgain(std::string const& path = EditedPath) {
        Open(SeriesOf(files.Contents.at(path), settings.CurrencyFormat, path));
        History.Start(*edited);
        TellIfAny(Unsaved.Open(*edited, *series, settings));
    }

    void Keep(editor::Change const& change, ChangeKind kind = ChangeKind::Edit) {
        TellNotKept(text::Trap([&] { Unsaved.Keep(change, kind, *edited); }));
    }

    void Record(ChangeKind kind = ChangeKind::Edit) { Keep(History.Record(*edited), kind); }

    void TypeClose(std::int16_t row, int close) {
        Type(row, CloseColumn, std::to_string(close) + ".00");
        Record();
    }

    // As another edit each time.
    void TypeNext() { TypeClose(2, ++last_); }

    // Puts that file of another editor's there, of edits of the quote file.
    void LeaveSet(std::string const& name, std::int16_t row, int close,
                  std::string const& path = EditedPath) {
        KeptEditor other;
        other.files.Contents[path] = QuoteLines(30);
        other.OpenAgain(path);
        other.TypeClose(row, close);
        files.Contents["C:\\Quotes\\" + name] = other.files.Contents.at(path + ".edits");
    }

    // As the window does.
    void Finish(editor::SaveResult const& result) {
        TellIfAny(result.Status);
        if (result.IsSaved) {
            History.Record(*edited);
            TellIfAny(Unsaved.Saved(*edited, *series, settings));
        }
    }

    void Save() { Finish(editor::SaveEdits(*edited, *series, settings, Failing, dialogs)); }

    void SaveAs(std::string const& path) {
        dialogs.Texts = {path};
        Finish(editor::SaveEditsAs(*edited, *series, settings, Failing, dialogs));
    }

    void Restore() {
        dialogs.Answers = {Answer::Yes};
        auto const error = text::Trap([this] { static_cast<void>(Unsaved.Restore(*edited, dialogs)); });
        TellNotKept(error);
        if (!error) {
            Record();
        }
        dialogs.Answers.clear();
    }

    void TellIfAny(std::string const& text) {
        if (!text.empty()) {
            Told.push_back(text);
        }
    }

    void TellNotKept(std::optional<text::RunTimeError> const& error) {
        if (error) {
            Told.push_back("not kept: " + std::string(error->Description()));
        }
    }

    [[nodiscard]] std::string Closes() const {
        std::string text;
        for (std::int16_t row = 1; row <= EditedRows; ++row) {
            text += sheet.Text(row, CloseColumn) + ' ';
        }
        return text;
    }

    // The sets that an editor offers which is opened now on the quote file, the newest first.
    [[nodiscard]] std::vector<std::string> Offered(std::string const& path) const {
        static std::map<std::pair<Contents, std::string>, std::vector<std::string>> known;
        auto const [found, isNew] = known.try_emplace({files.Contents, path}); // most trials leave the same
        if (isNew) {
            found->second = OfferedAnew(path);
        }
        return found->second;
    }

    [[nodiscard]] std::vector<std::string> OfferedAnew(std::string const& path) const {
        KeptEditor next;
        next.files.Contents = files.Contents;
        next.OpenAgain(path);
        std::vector<std::string> sets;
        while (next.Unsaved.HasKept()) {
            next.Restore();
            sets.push_back(next.Closes());
        }
        return sets;
    }

    // The grid, the newest of the editor's own edits that are offered, and those of others, in any order.
    [[nodiscard]] std::string Memory() const {
        auto offered = Offered(EditedPath);
        auto const isOfOthers = [](std::string const& set) { return set.find(" 9") != std::string::npos; };
        auto const own = std::ranges::find_if_not(offered, isOfOthers);
        std::string text = series->QuoteFileName + '\n' + Closes();
        text += "\nown: " + (own == offered.end() ? std::string("none") : *own);
        std::ranges::sort(offered);
        for (std::string const& set : offered) {
            text += isOfOthers(set) ? "\nof others: " + set : "";
        }
        if (files.Contents.contains(OtherPath)) {
            for (std::string const& set : Offered(OtherPath)) {
                text += "\nof the other file: " + set;
            }
        }
        return text;
    }

    platform::fake::FailingFiles Failing{files};
    editor::History History;
    editor::UnsavedEdits Unsaved{Failing};
    std::vector<std::string> Told;

private:
    int last_ = 550;
};

using Deed = std::function<void(KeptEditor&)>;

// A save that was not done leaves everything; one that was tells also what it leaves behind.
Ending EndingOfSave(KeptEditor const& world, MetFault const& met, std::string const& path) {
    if (met.Call == platform::fake::FileCall::Replace) {
        return {{"Not saved: " + met.Description()}};
    }
    Ending ending{{"30 rows saved to " + path}};
    ending.IsDone = world.Told == ending.Told;
    if (!ending.IsDone) {
        ending.Told.push_back("Edits that were kept before cannot be read or deleted: " + met.Description());
    }
    return ending;
}

// Either nothing is told and all is kept, or it is told what is not. What is typed stays in either case.
Ending EndingOf(KeptEditor const& world, MetFault const& met) {
    std::string const notKept = "not kept: " + met.Description();
    bool const isKept = std::ranges::find(world.Told, notKept) == world.Told.end();
    return isKept ? Ending{{}, true} : Ending{{notKept}};
}

Trial TrialOf(std::shared_ptr<KeptEditor> const& world, Deed const& run) {
    return {.Disk = world->files,
            .Files = world->Failing,
            .Run =
                [world, run] {
                    world->Told.clear();
                    world->dialogs.Messages.clear();
                    run(*world);
                },
            .Memory = [world] { return world->Memory(); },
            .Told = [world] { return world->Told; },
            .Ends = [world](MetFault const& met) { return EndingOf(*world, met); },
            .MayHold = IsDoneInPart,
            .IsOfMemory = [](std::string const& path) { return path.find(".edits") != std::string::npos; }};
}

std::function<Trial()> Maker(Deed const& prepare, Deed const& run) {
    return [=] {
        auto const world = std::make_shared<KeptEditor>();
        world->OpenAgain();
        prepare(*world);
        return TrialOf(world, run);
    };
}

TEST(EditorUnderFaults, KeepsAFirstEditOrTellsThatItDoesNot) {
    ExpectSafe("first edit", Maker([](KeptEditor&) {}, [](KeptEditor& world) { world.TypeNext(); }),
               {"List", "Length", "Overwrite"});
}

// A save from this world, and how it may end. What is said to be gone is left to be offered.
Trial TrialOfSave(std::shared_ptr<KeptEditor> const& world, std::string const& path, Deed const& run) {
    world->Failing.PieceSize = world->files.Contents.at(path).size();
    Trial trial = TrialOf(world, run);
    trial.Ends = [world, path](MetFault const& met) { return EndingOfSave(*world, met, path); };
    trial.MayHold = [](std::string const& before, std::string const& after, std::string const& now) {
        return now == after || IsDoneInPart(before, after, now);
    };
    trial.TriesGone = false;
    return trial;
}

std::set<std::string_view> const CallsOfSave = {"Replace", "OpenForInput", "Read",
                                                "List",    "Length",       "Remove"};

TEST(EditorUnderFaults, SavesWhatWasRestoredAndLeavesTheSetsOfOthers) {
    ExpectSafe(
        "save",
        [] {
            auto const world = std::make_shared<KeptEditor>();
            world->LeaveSet("test.txt.edits", 3, 901);
            world->LeaveSet("test.txt.edits.2", 4, 902);
            world->OpenAgain();
            world->Restore();
            return TrialOfSave(world, EditedPath, [](KeptEditor& running) { running.Save(); });
        },
        CallsOfSave);
}

TEST(EditorUnderFaults, SavesAsAnotherFileOrLeavesAll) {
    ExpectSafe(
        "save as",
        [] {
            auto const world = std::make_shared<KeptEditor>();
            world->files.Contents[OtherPath] = QuoteLines(30);
            world->LeaveSet("other.txt.edits", 3, 901, OtherPath);
            world->OpenAgain();
            world->TypeClose(3, 556);
            return TrialOfSave(world, OtherPath, [](KeptEditor& running) { running.SaveAs(OtherPath); });
        },
        CallsOfSave);
}

TEST(EditorUnderFaults, KeepsAFurtherEditOrTellsThatItDoesNot) {
    ExpectSafe("further edit",
               Maker([](KeptEditor& world) { world.TypeClose(3, 556); },
                     [](KeptEditor& world) { world.TypeNext(); }),
               {"Length", "OpenForInput", "Read", "Append"});
}

TEST(EditorUnderFaults, LeavesWhatOthersHaveKept) {
    ExpectSafe("edit behind others",
               Maker(
                   [](KeptEditor& world) {
                       world.LeaveSet("test.txt.edits", 3, 901);
                       world.LeaveSet("test.txt.edits.2", 4, 902);
                   },
                   [](KeptEditor& world) { world.TypeNext(); }),
               {"List", "Length", "Overwrite"});
}

// What was undone may be offered once more when its file cannot be read or deleted.
TEST(EditorUnderFaults, UndoesAllOrTellsThatItIsStillKept) {
    auto const make = [] {
        auto const world = std::make_shared<KeptEditor>();
        world->OpenAgain();
        world->TypeNext();
        Trial trial = TrialOf(world, [](KeptEditor& running) {
            running.Keep(running.History.CanUndo() ? running.History.Undo(*running.edited)
                                                   : running.History.Redo(*running.edited));
        });
        trial.TriesGone = false;
        return trial;
    };
    ExpectSafe("undo", make, {"Length", "OpenForInput", "Read", "Remove"});
}

void RestoreNext(KeptEditor& world) {
    if (world.Unsaved.HasKept()) {
        world.Restore();
    }
}

TEST(EditorUnderFaults, RestoresASetAndKeepsItOrTellsThatItDoesNot) {
    ExpectSafe("restore",
               [] {
                   auto const world = std::make_shared<KeptEditor>();
                   world->LeaveSet("test.txt.edits", 3, 901);
                   world->OpenAgain();
                   return TrialOf(world, RestoreNext);
               },
               {"Length", "OpenForInput", "Read", "Overwrite"});
}

TEST(EditorUnderFaults, PutsTheNewerEditsBackWhenOlderOnesAreRestored) {
    ExpectSafe("restore older",
               [] {
                   auto const world = std::make_shared<KeptEditor>();
                   world->LeaveSet("test.txt.edits", 3, 901);
                   world->LeaveSet("test.txt.edits.2", 4, 902);
                   world->OpenAgain();
                   world->Restore();
                   return TrialOf(world, RestoreNext);
               },
               {"Length", "OpenForInput", "Read", "Overwrite"});
}

TEST(EditorUnderFaults, ForgetsAFileOrTellsWhyNot) {
    ExpectSafe("forget",
               [] {
                   auto const world = std::make_shared<KeptEditor>();
                   world->LeaveSet("test.txt.edits", 3, 901);
                   world->OpenAgain();
                   Trial trial = TrialOf(world, [](KeptEditor& running) {
                       if (!running.Unsaved.HasKept()) {
                           return;
                       }
                       running.dialogs.Answers = {Answer::Yes};
                       auto const error = text::Trap([&] { running.Unsaved.Forget(running.dialogs); });
                       if (error) {
                           running.Told.emplace_back(error->Description());
                       }
                   });
                   // Whatever has a length or none, there is something.
                   trial.Ends = [](MetFault const& met) {
                       bool const isDone = met.Call == platform::fake::FileCall::Length && !met.Lasts;
                       return isDone ? Ending{{}, true} : Ending{{met.Description()}};
                   };
                   trial.TriesGone = false;
                   return trial;
               },
               {"Length", "OpenForInput", "Read", "Remove"});
}

} // namespace
} // namespace quorvex::tests
