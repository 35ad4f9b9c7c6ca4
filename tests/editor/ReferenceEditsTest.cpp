// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "EditorTest.h"
#include "editor/basEdit.h"
#include "editor/basSave.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"

#include <map>
#include <optional>

namespace quorvex::tests {
namespace {

using nlohmann::json;

// One user at work in the editor.
class ReferenceEdits : public EditorTest {
protected:
    void OpenCase(json const& edits) {
        settings.CurrencyFormat = edits.at("currency_format");
        Open(edits.at("file").is_null() ? std::make_unique<quotes::QuoteSeries>()
                                        : GoldenSeries(edits.at("file"), settings.CurrencyFormat));
        spread.GotoCell(sheet.RowCount() > 0 ? 1 : 0, 1);
    }

    // What the step says of having saved.
    std::optional<bool> Do(json const& deed) {
        std::string const name = deed.at("op");
        if (name == "save") {
            return editor::SaveEdits(*edited, *series, settings, files, dialogs).IsSaved;
        }
        if (name == "save_as") {
            dialogs.Texts = {deed.at("answer")};
            return editor::SaveEditsAs(*edited, *series, settings, files, dialogs).IsSaved;
        }
        if (name == "type") {
            Type(deed.at("row"), deed.at("column"), deed.at("text"));
        } else if (name == "append") {
            editor::AppendRow(*edited, settings, dialogs);
        } else if (name == "insert") {
            spread.GotoCell(deed.at("active_row"), 1);
            editor::InsertRow(*edited, settings, dialogs);
        } else if (name == "delete") {
            spread.GotoCell(deed.at("active_row"), 1);
            dialogs.Answers = {deed.at("answer") == "yes" ? platform::Answer::Yes : platform::Answer::No};
            editor::DeleteRow(*edited, settings, dialogs);
        } else {
            ADD_FAILURE() << "unknown deed " << name;
        }
        return std::nullopt;
    }

    void ExpectMessages(json const& expected) const {
        ASSERT_EQ(dialogs.Messages.size(), expected.size());
        for (std::size_t index = 0; index < expected.size(); ++index) {
            EXPECT_EQ(dialogs.Messages[index].Text, expected[index].at("text"));
            EXPECT_EQ(dialogs.Messages[index].Title, expected[index].at("title"));
            EXPECT_EQ(dialogs.Messages[index].Shown, IconNamed(expected[index].at("icon")));
        }
    }

    void ExpectStep(json const& step) {
        SCOPED_TRACE(step.at("do").dump());
        dialogs.Messages.clear();
        files.Contents.clear();
        auto const saved = Do(step.at("do"));
        EXPECT_EQ(saved ? json(*saved) : json(), step.at("ok"));
        ExpectMessages(step.at("messages"));
        if (!step.at("cursor").is_null()) {
            EXPECT_EQ(Cursor(), (step.at("cursor").get<std::pair<int, int>>()));
        }
        EXPECT_EQ(sheet.RowCount(), step.at("row_count"));
        EXPECT_EQ(edited->EditCount, step.at("row_count"));
        EXPECT_EQ(files.Contents, (step.at("written").get<std::map<std::string, std::string>>()));
    }
};

TEST_F(ReferenceEdits, EndAsTheyShould) {
    auto const cases = GoldenVector("editor");
    ASSERT_FALSE(cases.empty());
    for (auto const& edits : cases) {
        SCOPED_TRACE(edits.at("label").get<std::string>());
        OpenCase(edits);
        EXPECT_EQ(editor::EditorCaption(*series), edits.at("caption"));
        std::vector<Texts> const firstRows = edits.at("first_rows");
        for (std::size_t index = 0; index < firstRows.size(); ++index) {
            EXPECT_EQ(RowTexts(static_cast<std::int16_t>(index + 1)), firstRows[index]);
        }
        for (auto const& step : edits.at("steps")) {
            ExpectStep(step);
        }
        EXPECT_EQ(series->QuoteFileName, edits.at("file_name_after"));
        if (!edits.at("grid_after").is_null()) {
            EXPECT_EQ(GridTexts(), edits.at("grid_after").get<std::vector<Texts>>());
        }
    }
}

} // namespace
} // namespace quorvex::tests
