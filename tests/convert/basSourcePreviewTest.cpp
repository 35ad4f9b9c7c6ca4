// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basSourcePreview.h"

#include "Conversion.h"
#include "convert/basConvertBarChart.h"
#include "convert/basConvertCSI.h"
#include "platform/fake/RecordingPrinter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvex::convert {
namespace {

using platform::fake::MemoryFiles;
using platform::fake::PrintedPage;
using platform::fake::RecordingPrintQueue;
using platform::fake::ScriptedDialogs;
using testing::ElementsAre;
using testing::IsEmpty;
using text::Fault;

class SourcePreview : public testing::Test {
protected:
    // Every file is closed again, whatever a test did.
    void TearDown() override { EXPECT_EQ(files.OpenCount(), 0U); }

    std::string Load(std::string const& name) { return LoadSourceFile(name, files, dialogs); }

    MemoryFiles files;
    ScriptedDialogs dialogs;
};

std::vector<std::string> TextsOf(PrintedPage const& page) {
    std::vector<std::string> texts;
    for (auto const& text : page.Texts) {
        texts.push_back(text.Text);
    }
    return texts;
}

TEST_F(SourcePreview, HasEveryLineWithItsLineEnd) {
    files.Contents["a.txt"] = "one\ntwo\r\n\rthree";
    EXPECT_EQ(Load("a.txt"), "one\r\ntwo\r\n\r\nthree\r\n");
    EXPECT_THAT(dialogs.Messages, IsEmpty());
}

TEST_F(SourcePreview, ShowsWhatIsNoUtf8AsWindows1252) {
    files.Contents["a.txt"] = "Caf\xE9\r\nCaf\xC3\xA9";
    EXPECT_EQ(Load("a.txt"), "Caf\xC3\xA9\r\nCaf\xC3\xA9\r\n");
}

TEST_F(SourcePreview, WantsAName) {
    EXPECT_EQ(Load(""), "");
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre("Data Conversion Utility|none|Invalid source file name"));
}

TEST_F(SourcePreview, FindsNeitherAMissingNorAnEmptyFile) {
    files.Contents["empty.txt"] = "";
    EXPECT_EQ(Load("gone.txt"), "");
    EXPECT_EQ(Load("empty.txt"), "");
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre("Data Conversion Utility|none|Source file not found",
                                              "Data Conversion Utility|none|Source file not found"));
}

TEST_F(SourcePreview, TellsOfADeviceThatFails) {
    files.Contents["a.txt"] = "one\ntwo\n";
    files.BreakReading = {4, Fault::PermissionDenied};
    EXPECT_EQ(Load("a.txt"), "");
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre(ExclamationBox("Permission denied")));
}

TEST_F(SourcePreview, TakesFilesOf65000BytesAndNoLarger) {
    files.Contents = {{"a.txt", std::string(65'000, 'x')}, {"b.txt", std::string(65'001, 'x')}};
    EXPECT_EQ(AcceptChosenFile("a.txt", files), "a.txt");
    EXPECT_EQ(AcceptChosenFile("b.txt", files), "");
    EXPECT_EQ(AcceptChosenFile("", files), "");
    EXPECT_EQ(AcceptChosenFile("gone.txt", files), "");
}

// Keeps what was shown in the boxes, and how many messages had been shown until then.
class RecordingBoxes final : public SourceBoxes {
public:
    explicit RecordingBoxes(ScriptedDialogs const& dialogs) : dialogs_(dialogs) {}

    void ShowSourceName(std::string const& name) override { Add("name", name); }

    void ShowSourceContents(std::string const& contents) override { Add("contents", contents); }

    std::vector<std::string> Shown;

private:
    void Add(std::string const& box, std::string const& text) {
        Shown.push_back(box + '|' + text + '|' + std::to_string(dialogs_.Messages.size()));
    }

    ScriptedDialogs const& dialogs_;
};

class Browsing : public SourcePreview {
protected:
    // What is shown when this is chosen.
    std::vector<std::string> Choose(std::string const& path) {
        dialogs.Paths = {path};
        RecordingBoxes boxes(dialogs);
        BrowseForSource(CustomTexts(), files, dialogs, boxes);
        return boxes.Shown;
    }
};

TEST_F(Browsing, StartsOnTheDriveWithTheNamesAndFilterOfTheWindow) {
    std::string const textFirst =
        "Text Files (*.txt)|*.txt|Comma Separated Values (*.csv)|*.csv|All Files (*.*)|*.*";
    std::string const commaFirst =
        "Comma Separated Values (*.csv)|*.csv|Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
    RecordingBoxes boxes(dialogs);
    for (auto const* texts : {&BarchartTexts(), &CsiTexts(), &CustomTexts()}) {
        dialogs.Paths = {""};
        BrowseForSource(*texts, files, dialogs, boxes);
    }
    std::vector<std::string> asked;
    for (auto const& question : dialogs.FileQuestions) {
        asked.push_back(question.Folder + ' ' + question.Name + ' ' + question.Filter);
    }
    EXPECT_THAT(
        asked, ElementsAre("C:\\ *.txt " + textFirst, "C:\\ *.txt " + textFirst, "C:\\ *.csv " + commaFirst));
}

TEST_F(Browsing, ShowsTheNameAndTheContents) {
    files.Contents["C:\\a.csv"] = "one\ntwo";
    EXPECT_THAT(Choose("C:\\a.csv"),
                ElementsAre("name|C:\\a.csv|0", "contents||0", "contents|one\r\ntwo\r\n|0"));
    EXPECT_THAT(dialogs.Messages, IsEmpty());
}

TEST_F(Browsing, EmptiesBothBoxesWhenItIsCancelled) {
    EXPECT_THAT(Choose(""), ElementsAre("name||0", "contents||0"));
    EXPECT_THAT(dialogs.Messages, IsEmpty());
}

TEST_F(Browsing, RefusesFilesThatAreTooLargeSilently) {
    files.Contents = {{"fits.csv", std::string(65'000, 'x')}, {"large.csv", std::string(65'001, 'x')}};
    EXPECT_THAT(Choose("large.csv"), ElementsAre("name||0", "contents||0"));
    EXPECT_THAT(Choose("fits.csv"), ElementsAre("name|fits.csv|0", "contents||0",
                                                "contents|" + std::string(65'000, 'x') + "\r\n|0"));
    EXPECT_THAT(dialogs.Messages, IsEmpty());
}

TEST_F(Browsing, ShowsTheNameOfAnEmptyFileBeforeItTellsOfIt) {
    files.Contents["empty.csv"] = "";
    EXPECT_THAT(Choose("empty.csv"), ElementsAre("name|empty.csv|0", "contents||0", "contents||1"));
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre("Data Conversion Utility|none|Source file not found"));
}

TEST_F(SourcePreview, IsPrintedBelowItsName) {
    RecordingPrintQueue queue;
    PrintSourceFile("C:\\Import\\wheat.csv", "one\r\n\r\nthree\r\n", queue, dialogs);
    ASSERT_EQ(queue.Documents.size(), 1U);
    auto const& document = queue.Documents[0];
    EXPECT_EQ(document.Name, "wheat.csv");
    EXPECT_TRUE(document.IsEnded);
    ASSERT_EQ(document.Pages.size(), 1U);
    EXPECT_THAT(TextsOf(document.Pages[0]), ElementsAre("C:\\Import\\wheat.csv", "one", "three"));
    auto const& texts = document.Pages[0].Texts;
    double const lineHeight = texts[0].Y; // one empty line stands above the name
    EXPECT_GT(lineHeight, 0);
    EXPECT_DOUBLE_EQ(texts[1].Y, 3 * lineHeight);
    EXPECT_DOUBLE_EQ(texts[2].Y, 5 * lineHeight);
    EXPECT_EQ(texts[1].Font, "Courier New");
    EXPECT_EQ(texts[1].X, 0);
}

TEST_F(SourcePreview, IsPrintedEvenWhenThereIsNone) {
    RecordingPrintQueue queue;
    PrintSourceFile("", "", queue, dialogs);
    ASSERT_EQ(queue.Documents.size(), 1U);
    EXPECT_EQ(queue.Documents[0].Name, "Data Conversion Utility");
    EXPECT_TRUE(queue.Documents[0].IsEnded);
    EXPECT_THAT(queue.Documents[0].Pages.at(0).Texts, IsEmpty());
}

TEST_F(SourcePreview, GoesOnOnFurtherPages) {
    RecordingPrintQueue queue;
    std::string contents;
    std::vector<std::string> expected = {"a.txt"};
    for (int line = 1; line <= 200; ++line) {
        expected.push_back("line " + std::to_string(line));
        contents += expected.back() + "\r\n";
    }
    PrintSourceFile("a.txt", contents, queue, dialogs);
    auto const& pages = queue.Documents.at(0).Pages;
    EXPECT_EQ(pages.size(), 3U); // 68 lines fit
    std::vector<std::string> printed;
    for (auto const& page : pages) {
        for (auto const& text : page.Texts) {
            printed.push_back(text.Text);
            EXPECT_LE(text.Y + 230, queue.Sheet.Height);
        }
    }
    EXPECT_EQ(printed, expected);
}

TEST_F(SourcePreview, WrapsLinesThatAreWiderThanThePage) {
    RecordingPrintQueue queue;
    queue.Sheet.Width = 1000;
    queue.Sheet.CharacterWidth = 100;
    PrintSourceFile("a.txt", "0123456789abcdefghijKL\r\nexactly 10\r\n", queue, dialogs);
    EXPECT_THAT(TextsOf(queue.Documents.at(0).Pages.at(0)),
                ElementsAre("a.txt", "0123456789", "abcdefghij", "KL", "exactly 10"));
}

TEST_F(SourcePreview, WrapsBetweenCharactersNotBytes) {
    RecordingPrintQueue queue;
    queue.Sheet.Width = 200;
    queue.Sheet.CharacterWidth = 100;
    PrintSourceFile("a", "\xC3\xA4\xC3\xB6\xC3\xBC\r\n", queue, dialogs);
    EXPECT_THAT(TextsOf(queue.Documents.at(0).Pages.at(0)), ElementsAre("a", "\xC3\xA4\xC3\xB6", "\xC3\xBC"));
}

TEST_F(SourcePreview, TabsLeadToEveryEighthColumn) {
    RecordingPrintQueue queue;
    queue.Sheet.Width = 2000;
    queue.Sheet.CharacterWidth = 100;
    PrintSourceFile("a", "\tb\r\n1234567\t8\r\n12345678\t9\r\n\xC3\xA4\xC3\xB6\tu\r\n", queue, dialogs);
    EXPECT_THAT(TextsOf(queue.Documents.at(0).Pages.at(0)),
                ElementsAre("a", "        b", "1234567 8", "12345678        9", "\xC3\xA4\xC3\xB6      u"));
}

TEST_F(SourcePreview, WrapsLinesWithTabsInsideThePage) {
    RecordingPrintQueue queue;
    queue.Sheet.Width = 2000;
    queue.Sheet.CharacterWidth = 100;
    PrintSourceFile("a", "01/15/02\t1\t2\t3\r\n", queue, dialogs);
    EXPECT_THAT(TextsOf(queue.Documents.at(0).Pages.at(0)),
                ElementsAre("a", "01/15/02        1   ", "    2       3"));
}

TEST_F(SourcePreview, TellsOfAPrinterThatFails) {
    RecordingPrintQueue queue;
    queue.Sheet.FailingText = 4;
    PrintSourceFile("a.txt", "one\r\n", queue, dialogs);
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre(ExclamationBox("Printer error")));
    EXPECT_FALSE(queue.Documents.at(0).IsEnded);
}

} // namespace
} // namespace quorvex::convert
