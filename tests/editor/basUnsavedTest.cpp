// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basUnsaved.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvex::editor {
namespace {

EditRow RowWith(std::string const& text) {
    EditRow row;
    row.Texts.fill(text);
    row.Copy = {"01/02/01", 1, 0.1, 1e300, -5, 1.0 / 3, 0};
    return row;
}

// Two rows, then one of them changed, then a third one behind them.
struct WrittenEdits {
    WrittenEdits() {
        KeptEditsWriter writer;
        Text = writer.Start({"a\nb.txt", MarkOf("abc")}, {RowWith("a"), RowWith("b")});
        Ends.push_back(Text.size());
        Text += writer.Next({{{2, {RowWith("b")}, {RowWith("\t\r\n\\end x")}}}}, ChangeKind::Edit);
        Ends.push_back(Text.size());
        Text +=
            writer.Next({{{3, {}, {RowWith("c")}}, {1, {RowWith("a")}, {RowWith("")}}}}, ChangeKind::Edit);
        Ends.push_back(Text.size());
    }

    std::string Text;
    std::vector<std::size_t> Ends; // of the pieces
};

TEST(KeptEdits, AreReadAsTheyWereWritten) {
    auto const kept = ReadKeptEdits(WrittenEdits().Text);
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->Of.Name, "a\nb.txt");
    EXPECT_EQ(kept->Of.Mark, MarkOf("abc"));
    EXPECT_TRUE(kept->IsWhole);
    EXPECT_TRUE(kept->Before == EditRows({RowWith("a"), RowWith("b")}));
    EXPECT_TRUE(kept->After == EditRows({RowWith(""), RowWith("\t\r\n\\end x"), RowWith("c")}));
}

TEST(KeptEdits, ThatEndAnywhereAreReadUpToTheLastWholeChange) {
    WrittenEdits const written;
    for (std::size_t length = 0; length < written.Text.size(); ++length) {
        auto const kept = ReadKeptEdits(written.Text.substr(0, length));
        ASSERT_EQ(kept.has_value(), length >= written.Ends[0]) << length;
        if (kept) {
            bool const hasOne = length >= written.Ends[1];
            EXPECT_EQ(kept->After[1].Texts[0], hasOne ? "\t\r\n\\end x" : "b") << length;
            EXPECT_EQ(kept->After.size(), 2U);
            EXPECT_EQ(kept->IsWhole, length == written.Ends[0] || length == written.Ends[1]) << length;
        }
    }
}

TEST(KeptEdits, ThatAreDamagedAnywhereAreReadUpToTheDamage) {
    WrittenEdits const written;
    for (std::size_t at = 0; at < written.Text.size(); ++at) {
        std::string text = written.Text;
        text[at] = text[at] == 'x' ? 'y' : 'x';
        auto const kept = ReadKeptEdits(text);
        ASSERT_EQ(kept.has_value(), at >= written.Ends[0]) << at;
        if (kept) {
            EXPECT_FALSE(kept->IsWhole) << at;
            EXPECT_EQ(kept->After[1].Texts[0], at >= written.Ends[1] ? "\t\r\n\\end x" : "b") << at;
        }
    }
}

TEST(KeptEdits, ThatCannotBeAreRefused) {
    EditRows const manyRows(quotes::MaxQuotes, RowWith("a"));
    KeptEditsWriter writer;
    std::string const full = writer.Start({"a.txt", "0"}, manyRows);
    ASSERT_TRUE(ReadKeptEdits(full));
    std::string const tooMany = full + writer.Next({{{1, {}, {RowWith("b")}}}}, ChangeKind::Edit);
    EXPECT_FALSE(ReadKeptEdits(tooMany)->IsWhole);
    EXPECT_EQ(ReadKeptEdits(tooMany)->After.size(), manyRows.size());
    std::string const start = writer.Start({"a.txt", "0"}, {RowWith("a")});
    for (Splice const& wrong : {Splice{3, {}, {RowWith("b")}}, Splice{0, {}, {RowWith("b")}},
                                Splice{1, {RowWith("a"), RowWith("a")}, {}}, Splice{2, {RowWith("a")}, {}}}) {
        KeptEditsWriter again;
        std::string const text =
            again.Start({"a.txt", "0"}, {RowWith("a")}) + again.Next({{wrong}}, ChangeKind::Edit);
        EXPECT_FALSE(ReadKeptEdits(text)->IsWhole) << wrong.At;
    }
    EXPECT_FALSE(ReadKeptEdits(""));
    EXPECT_FALSE(ReadKeptEdits("01/02/01, 1, 2, 3, 4, 5, 6\r\n"));
}

TEST(KeptEdits, MarksDifferWhereContentsDo) {
    EXPECT_EQ(MarkOf(""), "0 cbf29ce484222325");
    EXPECT_EQ(MarkOf("a"), "1 af63dc4c8601ec8c");
    EXPECT_NE(MarkOf("ab"), MarkOf("ba"));
    KeptEditsWriter writer;
    std::string text = writer.Start({"a.txt", "0"}, {RowWith("a")});
    EXPECT_EQ(writer.Mark(), MarkOf(text));
    text += writer.Next({}, ChangeKind::Refill);
    EXPECT_EQ(writer.Mark(), MarkOf(text));
    EXPECT_EQ(writer.Length(), text.size());
}

} // namespace
} // namespace quorvex::editor
