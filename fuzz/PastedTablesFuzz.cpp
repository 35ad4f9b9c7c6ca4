// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is a letter and behind it what is pasted into a grid of three days, with the cursor on the first
// row, or on a later one for "b" to "d". A table becomes days that the editor takes, all of them or none, and
// leaves the rows around them alone; cells go in as they stand.

#include "Require.h"
#include "editor/Change.h"
#include "editor/PlainSpread.h"
#include "editor/basBlocks.h"
#include "editor/basEdit.h"
#include "editor/tables/basTables.h"
#include "platform/fake/ScriptedDialogs.h"
#include "text/basDates.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quorvex::fuzz {

namespace {

constexpr std::int16_t Days = 3;

class PastedText {
public:
    PastedText() {
        for (std::int16_t day = 1; day <= Days; ++day) {
            series_->Master[day] = {"03/1" + std::to_string(day) + "/02", 11, 13, 10, 12, 7, 8};
        }
        series_->QuoteCount = Days;
        editor::OpenEditor(*editor_, *series_);
        editor::RebuildGrid(*editor_, settings_);
    }

    void Paste(std::int16_t row, std::string_view text) {
        static_cast<void>(editor::tables::FindReading(text));
        if (editor::tables::IsTable(text)) {
            PasteTable(row, text);
        } else if (row <= Days) {
            static_cast<void>(editor::PasteText(sheet_, {row, 1, row, 1}, text));
            Require(sheet_.RowCount() == Days);
        }
    }

private:
    void PasteTable(std::int16_t row, std::string_view text) {
        auto const before = editor::RowsOf(*editor_);
        bool const isPasted =
            !editor::tables::PasteTable(*editor_, row, text, series_->Master, settings_, dialogs_).empty();
        auto const after = editor::RowsOf(*editor_);
        if (!isPasted) {
            Require(after == before && dialogs_.Messages.size() == 1);
            return;
        }
        Require(after.size() >= before.size() && after.size() <= quotes::MaxQuotes);
        Require(editor_->Grid.ActiveRow() == row);
        Require(std::equal(before.begin(), before.begin() + row - 1, after.begin()));
        std::ranges::for_each(after, RequireDay);
    }

    // What the grid shows is what was read.
    static void RequireDay(editor::EditRow const& row) {
        Require(text::ParseDate(row.Texts.front()).has_value() && row.Copy.Date == row.Texts.front());
        for (std::size_t cell = 1; cell < row.Texts.size(); ++cell) {
            Require(text::StrictNumber(row.Texts[cell]) >= 0);
        }
    }

    settings::Settings settings_ = settings::DefaultSettings("C:\\Quotes");
    std::unique_ptr<quotes::QuoteSeries> series_ = std::make_unique<quotes::QuoteSeries>();
    platform::fake::ScriptedDialogs dialogs_;
    editor::Sheet sheet_;
    editor::PlainSpread spread_{sheet_};
    std::unique_ptr<editor::Editor> editor_ =
        std::make_unique<editor::Editor>(editor::Editor{sheet_, spread_, {}, 0});
};

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    if (input.empty()) {
        return 0;
    }
    std::size_t const row = std::string_view("abcd").find(input.front()) + 1; // 0 for another letter
    quorvex::fuzz::PastedText().Paste(static_cast<std::int16_t>(row == 0 ? 1 : row), input.substr(1));
    return 0;
}
