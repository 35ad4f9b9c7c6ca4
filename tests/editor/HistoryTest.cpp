// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/History.h"

#include "EditorTest.h"
#include "editor/basBlocks.h"
#include "editor/basEdit.h"
#include "editor/basSave.h"
#include "editor/basSpread.h"
#include "editor/basValidate.h"
#include "support/QuoteTexts.h"
#include "support/Sanitizers.h"
#include "text/RunTimeError.h"

#include <array>
#include <optional>
#include <random>
#include <utility>

namespace quorvex::tests {
namespace {

// Everything that a step can change.
struct SheetState {
    editor::EditRows Rows;
    std::int16_t RowCount = 0;
    std::vector<std::pair<editor::CellKind, std::optional<platform::Colour>>> Dress;

    friend bool operator==(SheetState const&, SheetState const&) = default;
};

class HistoryTest : public EditorTest {
protected:
    void OpenRecorded(int count) {
        OpenDays(count);
        history.Start(*edited);
    }

    void TypeRecorded(std::int16_t row, std::int16_t column, std::string const& text) {
        Type(row, column, text);
        history.Record(*edited);
    }

    [[nodiscard]] SheetState State() const {
        SheetState state{editor::RowsOf(*edited), sheet.RowCount(), {}};
        for (std::int16_t row = 1; row <= sheet.RowCount(); ++row) {
            for (std::int16_t column = 1; column <= editor::Sheet::Columns; ++column) {
                editor::Cell const& cell = sheet.CellAt(row, column);
                state.Dress.emplace_back(cell.Kind, cell.BackColour);
            }
        }
        return state;
    }

    editor::History history;
};

TEST_F(HistoryTest, HasNothingToUndoAtFirst) {
    OpenRecorded(3);
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.CanRedo());
    EXPECT_TRUE(history.Undo(*edited).IsEmpty());
    EXPECT_TRUE(history.Redo(*edited).IsEmpty());
    EXPECT_TRUE(history.Record(*edited).IsEmpty());
    EXPECT_FALSE(history.CanUndo());
}

TEST_F(HistoryTest, BringsATypedCellBackAndForth) {
    OpenRecorded(30);
    TypeRecorded(4, 5, "555");
    spread.GotoCell(20, 1);
    auto const change = history.Undo(*edited);
    EXPECT_EQ(sheet.Text(4, 5), "104.00");
    EXPECT_EQ(Cursor(), std::pair(4, 5));
    ASSERT_EQ(change.Splices.size(), 1U);
    EXPECT_EQ(change.Splices[0].New.size(), 1U); // and not the whole sheet
    EXPECT_FALSE(history.CanUndo());
    spread.GotoCell(20, 1);
    history.Redo(*edited);
    EXPECT_EQ(sheet.Text(4, 5), "555");
    EXPECT_EQ(Cursor(), std::pair(4, 5));
    EXPECT_FALSE(history.CanRedo());
}

TEST_F(HistoryTest, ForgetsWhatWasUndoneWhenAnotherStepIsMade) {
    OpenRecorded(3);
    TypeRecorded(1, 2, "1");
    history.Undo(*edited);
    TypeRecorded(1, 2, "2");
    EXPECT_FALSE(history.CanRedo());
    history.Undo(*edited);
    EXPECT_EQ(sheet.Text(1, 2), RowTexts(1)[1]);
    EXPECT_FALSE(history.CanUndo());
}

TEST_F(HistoryTest, AnInsertedRowIsAStepOfOneRow) {
    OpenRecorded(500 - 1);
    spread.GotoCell(1, 1);
    auto const before = State();
    editor::InsertRow(*edited, settings, dialogs);
    auto const change = history.Record(*edited);
    ASSERT_EQ(change.Splices.size(), 1U);
    EXPECT_EQ(change.Splices[0].Old.size(), 0U);
    EXPECT_EQ(change.Splices[0].New.size(), 1U);
    history.Undo(*edited);
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(sheet.RowCount(), 499);
    EXPECT_EQ(Cursor(), std::pair(1, 1));
}

TEST_F(HistoryTest, TheCursorStaysInsideWhenAnAppendedRowGoes) {
    OpenRecorded(3);
    editor::AppendRow(*edited, settings, dialogs);
    history.Record(*edited);
    history.Undo(*edited);
    EXPECT_EQ(Cursor(), std::pair(3, 1));
    history.Redo(*edited);
    EXPECT_EQ(Cursor(), std::pair(4, 1));
}

TEST_F(HistoryTest, TheFirstRowOfAnEmptyGridGoesAndComes) {
    Open(std::make_unique<quotes::QuoteSeries>());
    history.Start(*edited);
    editor::AppendRow(*edited, settings, dialogs);
    history.Record(*edited);
    history.Undo(*edited);
    EXPECT_EQ(sheet.RowCount(), 0);
    EXPECT_EQ(edited->EditCount, 0);
    EXPECT_EQ(spread.ActiveRow(), 0);
    history.Redo(*edited);
    EXPECT_EQ(sheet.RowCount(), 1);
}

TEST_F(HistoryTest, BringsBackWhatARowCommandDropped) {
    OpenRecorded(30);
    TypeRecorded(2, 5, "555");
    spread.GotoCell(20, 1);
    editor::InsertRow(*edited, settings, dialogs);
    history.Record(*edited);
    EXPECT_EQ(sheet.Text(2, 5), "102.00");
    history.Undo(*edited);
    EXPECT_EQ(sheet.Text(2, 5), "555");
    EXPECT_EQ(sheet.RowCount(), 30);
}

TEST_F(HistoryTest, ASaveIsNoStepOfItsOwn) {
    OpenRecorded(30);
    TypeRecorded(2, 5, "555");
    editor::CopySpreadToArray(*edited);
    EXPECT_FALSE(history.Record(*edited).IsShown());
    EXPECT_EQ(edited->EditQuotes[2].Close, 555);
    history.Undo(*edited);
    EXPECT_EQ(sheet.Text(2, 5), "102.00");
    EXPECT_EQ(edited->EditQuotes[2].Close, 102); // else coming back would bring the 555 again
    EXPECT_FALSE(history.CanUndo());
    history.Redo(*edited);
    EXPECT_EQ(edited->EditQuotes[2].Close, 555);
}

TEST_F(HistoryTest, ASaveBetweenUndoAndRedoKeepsWhatItCopied) {
    OpenRecorded(30);
    TypeRecorded(2, 5, "5");
    TypeRecorded(2, 5, "6");
    history.Undo(*edited);
    editor::CopySpreadToArray(*edited);
    history.Record(*edited);
    ASSERT_TRUE(history.CanRedo());
    history.Redo(*edited);
    EXPECT_EQ(sheet.Text(2, 5), "6");
    EXPECT_EQ(edited->EditQuotes[2].Close, 5);
}

TEST_F(HistoryTest, BringsBackTheOrderBeforeTheSort) {
    OpenRecorded(30);
    TypeRecorded(1, 1, "12/31/10");
    auto const before = State();
    ASSERT_FALSE(editor::ValidateQuotes(*edited, dialogs));
    history.Record(*edited);
    EXPECT_EQ(sheet.Text(30, 1), "12/31/10");
    history.Undo(*edited);
    EXPECT_TRUE(State() == before);
}

// Does one edit that a user can do.
class RandomEdits {
public:
    RandomEdits(unsigned seed, editor::Editor& edited, settings::Settings const& settings)
        : random_(seed),
          edited_(edited),
          settings_(settings) {}

    void Do() {
        constexpr int Kinds = 9;
        editor::Sheet& cells = edited_.Cells;
        std::int16_t const row = cells.RowCount() == 0 ? std::int16_t(0) : Pick(1, cells.RowCount());
        edited_.Grid.GotoCell(row, Pick(1, editor::Sheet::Columns));
        platform::fake::ScriptedDialogs dialogs;
        dialogs.Answers = {platform::Answer::Yes};
        int const kind = row == 0 ? 2 : Pick(0, Kinds - 1);
        switch (kind) {
        case 0:
        case 1:
            cells.SetText(row, Pick(1, editor::Sheet::Columns), Text());
            break;
        case 2:
            editor::AppendRow(edited_, settings_, dialogs);
            break;
        case 3:
            editor::InsertRow(edited_, settings_, dialogs);
            break;
        case 4:
            editor::DeleteRow(edited_, settings_, dialogs);
            break;
        case 5:
            editor::ClearBlock(cells, {row, 2, Pick(row, cells.RowCount()), Pick(2, 7)});
            break;
        case 6:
            Paste(row);
            break;
        case 7:
            cells.SortByDate({1, 1, cells.RowCount(), editor::Sheet::Columns}, editor::DateColumn);
            break;
        default:
            // A cell that is no number stops a save.
            static_cast<void>(text::Trap([this] { editor::CopySpreadToArray(edited_); }));
            if (Pick(0, 1) == 0) {
                editor::RebuildGrid(edited_, settings_);
            }
        }
    }

    std::int16_t Pick(int from, int to) {
        return static_cast<std::int16_t>(std::uniform_int_distribution<int>(from, to)(random_));
    }

private:
    std::string Text() {
        constexpr std::array<char const*, 6> Texts = {"", "abc", "03/15/02", "102.00", "7", "3/5/2002"};
        return Texts.at(static_cast<std::size_t>(Pick(0, std::ssize(Texts) - 1)));
    }

    void Paste(std::int16_t row) {
        std::string block;
        for (int line = Pick(1, 8); line > 0; --line) {
            block += Text() + '\t' + Text() + '\n';
        }
        static_cast<void>(editor::PasteText(edited_.Cells, {row, 1, row, 1}, block));
    }

    std::mt19937 random_;
    editor::Editor& edited_;
    settings::Settings const& settings_;
};

TEST_F(HistoryTest, UndoesAndRedoesAThousandRandomSequencesStepByStep) {
    constexpr unsigned Sequences = Repetitions(1000U);
    constexpr int MostEdits = 15;
    std::size_t steps = 0;
    for (unsigned seed = 1; seed <= Sequences; ++seed) {
        RandomEdits edits(seed, *edited, settings);
        OpenRecorded(edits.Pick(0, 12));
        std::vector<SheetState> states = {State()};
        for (int count = edits.Pick(1, MostEdits); count > 0; --count) {
            edits.Do();
            if (history.Record(*edited).IsShown()) {
                states.push_back(State());
            } else {
                states.back() = State(); // which belongs to the step before
            }
        }
        steps += states.size() - 1;
        for (int round = 0; round < 2; ++round) {
            for (std::size_t at = states.size() - 1; at > 0; --at) {
                ASSERT_FALSE(history.Undo(*edited).IsEmpty()) << "seed " << seed;
                ASSERT_TRUE(State() == states[at - 1]) << "seed " << seed << ", step " << at;
            }
            ASSERT_FALSE(history.CanUndo());
            for (std::size_t at = 1; at < states.size(); ++at) {
                ASSERT_FALSE(history.Redo(*edited).IsEmpty()) << "seed " << seed;
                ASSERT_TRUE(State() == states[at]) << "seed " << seed << ", step " << at;
            }
            ASSERT_FALSE(history.CanRedo());
        }
    }
    EXPECT_GT(steps, Sequences * 4);
}

} // namespace
} // namespace quorvex::tests
