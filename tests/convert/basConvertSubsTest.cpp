// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basConvertSubs.h"

#include "Conversion.h"
#include "convert/ConverterTexts.h"
#include "convert/basConvertCSI.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvex::convert {
namespace {

using platform::fake::MemoryFiles;
using platform::fake::ScriptedDialogs;
using testing::ElementsAre;
using testing::IsEmpty;
using text::Fault;

constexpr auto GoodRecord = "20020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n";
constexpr auto GoodQuote = "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000\r\n";
constexpr auto BadRecord = "20020115,1\r\n";
constexpr auto BadValue = "20021315,1,2,3,4,5,6\r\n";

std::string Repeat(std::string const& text, int times) {
    std::string repeated;
    for (int time = 0; time < times; ++time) {
        repeated += text;
    }
    return repeated;
}

std::vector<std::string> BoxesOfNames(FileNames const& names, bool accepted) {
    ScriptedDialogs dialogs;
    EXPECT_EQ(ValidateFileNames(names, dialogs), accepted);
    return BoxesOf(dialogs);
}

TEST(ValidateFileNames, WantsASourceName) {
    EXPECT_THAT(BoxesOfNames({"", "C:\\b.txt"}, false),
                ElementsAre("Data Conversion|exclamation|Invalid source file name"));
    EXPECT_THAT(BoxesOfNames({"", ""}, false),
                ElementsAre("Data Conversion|exclamation|Invalid source file name"));
}

TEST(ValidateFileNames, RefusesTheSourceAsDestination) {
    EXPECT_THAT(BoxesOfNames({"C:\\a.txt", "C:\\a.txt"}, false),
                ElementsAre("Data Conversion|exclamation|Invalid destination file name"));
}

TEST(ValidateFileNames, ComparesTheNamesLetterByLetter) {
    EXPECT_THAT(BoxesOfNames({"c:\\a.txt", "C:\\A.TXT"}, true), IsEmpty());
}

TEST(ValidateFileNames, RefusesAPatternAsDestinationTheFirstTextOfTheWindowToo) {
    for (std::string const destination : {R"(C:\Veltrano\Data\*.txt)", "*", "a*b"}) {
        EXPECT_THAT(BoxesOfNames({"C:\\a.txt", destination}, false),
                    ElementsAre("Data Conversion|exclamation|Invalid destination file name"));
    }
    EXPECT_EQ(InitialDestination, R"(C:\Veltrano\Data\*.txt)");
}

TEST(ValidateFileNames, LetsAnEmptyDestinationPass) {
    EXPECT_THAT(BoxesOfNames({"C:\\a.txt", ""}, true), IsEmpty());
}

TEST(ConvertDataFile, WritesOneLineForEachRecordAndTellsOfSuccess) {
    auto const result = Convert(Repeat(GoodRecord, 3), CsiLayout());
    EXPECT_EQ(result.Output, Repeat(GoodQuote, 3));
    EXPECT_THAT(result.Boxes, ElementsAre(InformationBox("Data file C:\\out.txt created successfully")));
}

TEST(ConvertDataFile, TakesAnyLineEndAndNoneAtTheEnd) {
    EXPECT_EQ(Convert("20020115,1,2,3,4,5,6\n20020116,1,2,3,4,5,6\r20020117,1,2,3,4,5,6", CsiLayout()).Output,
              "01/15/02, 1, 2, 3, 4, 5, 6\r\n01/16/02, 1, 2, 3, 4, 5, 6\r\n01/17/02, 1, 2, 3, 4, 5, 6\r\n");
}

TEST(ConvertDataFile, MakesAnEmptyFileOfAnEmptyOne) {
    auto const result = Convert("", CsiLayout());
    EXPECT_EQ(result.Output, "");
    EXPECT_THAT(result.Boxes, ElementsAre(InformationBox("Data file C:\\out.txt created successfully")));
}

TEST(ConvertDataFile, NamesTheLineAndFileOfABadRecord) {
    auto const result = Convert(Repeat(GoodRecord, 11) + BadRecord + BadRecord, CsiLayout());
    EXPECT_EQ(result.Output, std::nullopt);
    EXPECT_THAT(result.Boxes, ElementsAre(ExclamationBox("Invalid record at line 12 in\nfile C:\\in.txt")));
}

TEST(ConvertDataFile, NamesTheLineAndFileOfABadValue) {
    auto const result = Convert(Repeat(GoodRecord, 99) + BadValue + BadRecord, CsiLayout());
    EXPECT_EQ(result.Output, std::nullopt);
    EXPECT_THAT(result.Boxes,
                ElementsAre(ExclamationBox("Invalid field value at line 100 in file\nC:\\in.txt")));
}

TEST(ConvertDataFile, StopsAtAnEmptyLine) {
    auto const result = Convert(Repeat(GoodRecord, 3) + "\r\n" + GoodRecord, CsiLayout());
    EXPECT_EQ(result.Output, std::nullopt);
    EXPECT_THAT(result.Boxes, ElementsAre(ExclamationBox("Invalid record at line 4 in\nfile C:\\in.txt")));
}

TEST(ConvertDataFile, LeavesNothingOfHundredsOfGoodLines) {
    MemoryFiles files;
    ScriptedDialogs dialogs;
    files.Contents = {{"C:\\in.txt", Repeat(GoodRecord, 5000) + BadValue}, {"C:\\out.txt", "older file"}};
    ConvertUsualNames(CsiLayout(), files, dialogs);
    EXPECT_FALSE(files.Contents.contains("C:\\out.txt"));
    EXPECT_THAT(BoxesOf(dialogs),
                ElementsAre(ExclamationBox("Invalid field value at line 5001 in file\nC:\\in.txt")));
}

TEST(ConvertDataFile, TellsOfTheFaultOfARecordOfMoreFieldsThanCanBeCounted) {
    auto const result = Convert(GoodRecord + std::string(40'000, ',') + "\r\n", CsiLayout());
    EXPECT_EQ(result.Output, std::nullopt);
    EXPECT_THAT(result.Boxes, ElementsAre(ExclamationBox("Overflow"),
                                          ExclamationBox("Invalid record at line 2 in\nfile C:\\in.txt")));
}

TEST(ConvertDataFile, RefusesALineLongerThan64KiBHoweverGoodItsStart) {
    constexpr std::size_t MostOfLine = 65'536;
    std::string const record = "20020115,1,2,3,4,5,6";
    std::string const blanks(MostOfLine - record.size(), ' ');
    auto const longest = Convert(record + blanks + "\r\n" + GoodRecord, CsiLayout());
    EXPECT_EQ(longest.Output, std::string("01/15/02, 1, 2, 3, 4, 5, 6\r\n") + GoodQuote);
    for (std::string const rest : {" ", ",7", "7"}) {
        SCOPED_TRACE(rest);
        auto const longer = Convert(GoodRecord + record + blanks + rest + "\r\n" + GoodRecord, CsiLayout());
        EXPECT_EQ(longer.Output, std::nullopt);
        EXPECT_THAT(longer.Boxes,
                    ElementsAre(ExclamationBox("Invalid record at line 2 in\nfile C:\\in.txt")));
    }
}

TEST(ConvertDataFile, CountsLinesUpTo32767) {
    auto const result = Convert(Repeat(GoodRecord, 32'767), CsiLayout());
    EXPECT_EQ(result.Output, Repeat(GoodQuote, 32'767));
    EXPECT_THAT(result.Boxes, ElementsAre(InformationBox("Data file C:\\out.txt created successfully")));
}

TEST(ConvertDataFile, OverflowsAtLine32768WhateverItIsAndLeavesNothing) {
    for (auto const* last : {GoodRecord, BadRecord, "\r\n"}) {
        auto const result = Convert(Repeat(GoodRecord, 32'767) + last, CsiLayout());
        EXPECT_EQ(result.Output, std::nullopt);
        EXPECT_THAT(result.Boxes, ElementsAre(ExclamationBox("Overflow")));
    }
}

TEST(ConvertDataFile, LeavesTheDestinationAloneWhenThereIsNoSource) {
    MemoryFiles files;
    ScriptedDialogs dialogs;
    files.Contents = {{"C:\\out.txt", "older file"}};
    ConvertUsualNames(CsiLayout(), files, dialogs);
    EXPECT_EQ(files.Contents.at("C:\\out.txt"), "older file");
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre(ExclamationBox("File not found")));
}

TEST(ConvertDataFile, DeletesNothingWhenTheDestinationCannotBeOpened) {
    MemoryFiles files;
    ScriptedDialogs dialogs;
    files.Contents = {{"C:\\in.txt", GoodRecord}, {"C:\\out.txt", "older file"}};
    files.BreakWriting = Fault::PermissionDenied;
    ConvertUsualNames(CsiLayout(), files, dialogs);
    EXPECT_EQ(files.Contents.at("C:\\out.txt"), "older file");
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre(ExclamationBox("Permission denied")));
}

TEST(ConvertDataFile, DeletesTheDestinationWhenTheSourceBreaks) {
    MemoryFiles files;
    ScriptedDialogs dialogs;
    files.Contents = {{"C:\\in.txt", Repeat(GoodRecord, 4000)}};
    files.BreakReading = {150'000, Fault::PermissionDenied};
    ConvertUsualNames(CsiLayout(), files, dialogs);
    EXPECT_FALSE(files.Contents.contains("C:\\out.txt"));
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre(ExclamationBox("Permission denied")));
}

TEST(ConvertDataFile, DeletesTheDestinationWhenItsDiskIsFull) {
    for (std::size_t const room : {0U, 10U, 65'536U, 100'000U}) {
        SCOPED_TRACE(room);
        MemoryFiles files;
        ScriptedDialogs dialogs;
        files.Contents = {{"C:\\in.txt", Repeat(GoodRecord, 4000)}};
        files.BreakOutput = {room, Fault::DiskFull};
        ConvertUsualNames(CsiLayout(), files, dialogs);
        EXPECT_FALSE(files.Contents.contains("C:\\out.txt"));
        EXPECT_THAT(BoxesOf(dialogs), ElementsAre(ExclamationBox("Disk full")));
    }
}

TEST(ConvertDataFile, DeletesTheDestinationWhenItsLastBytesFailOnClosing) {
    MemoryFiles files;
    ScriptedDialogs dialogs;
    files.Contents = {{"C:\\in.txt", GoodRecord}};
    files.BreakOutput = {1'000'000, Fault::DiskFull};
    ConvertUsualNames(CsiLayout(), files, dialogs);
    EXPECT_FALSE(files.Contents.contains("C:\\out.txt"));
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre(ExclamationBox("Disk full")));
}

TEST(ConvertDataFile, EmptiesTheDestinationWhenItCannotBeDeletedAndTells) {
    MemoryFiles files;
    ScriptedDialogs dialogs;
    files.Contents = {{"C:\\in.txt", std::string(GoodRecord) + BadRecord}};
    files.BreakRemoving = Fault::PermissionDenied;
    ConvertUsualNames(CsiLayout(), files, dialogs);
    EXPECT_EQ(files.Contents.at("C:\\out.txt"), "");
    EXPECT_THAT(BoxesOf(dialogs), ElementsAre(ExclamationBox("Invalid record at line 2 in\nfile C:\\in.txt"),
                                              ExclamationBox("Permission denied")));
}

// Text and file of each trouble.
std::vector<std::string> TroublesOf(MemoryFiles& files) {
    std::vector<std::string> texts;
    for (Trouble const& trouble : ConvertFile(UsualNames, CsiLayout(), files)) {
        std::string const& file = trouble.IsOfDestination ? UsualNames.Destination : UsualNames.Source;
        texts.push_back(file + ": " + trouble.Told.Text);
    }
    return texts;
}

TEST(ConvertFile, TellsWhichFileATroubleIsAbout) {
    MemoryFiles files;
    EXPECT_THAT(TroublesOf(files), ElementsAre("C:\\in.txt: File not found"));
    files.Contents = {{"C:\\in.txt", BadRecord}};
    files.BreakRemoving = Fault::PermissionDenied;
    EXPECT_THAT(TroublesOf(files), ElementsAre("C:\\in.txt: Invalid record at line 1 in\nfile C:\\in.txt",
                                               "C:\\out.txt: Permission denied"));
    files.BreakRemoving.reset();
    files.Contents = {{"C:\\in.txt", GoodRecord}, {"C:\\out.txt", "old"}};
    files.BreakOutput = {4, Fault::DiskFull};
    EXPECT_THAT(TroublesOf(files), ElementsAre("C:\\out.txt: Disk full"));
    files.BreakOutput.reset();
    files.BreakReading = {4, Fault::PermissionDenied};
    EXPECT_THAT(TroublesOf(files), ElementsAre("C:\\in.txt: Permission denied"));
    files.BreakReading.reset();
    files.Contents["C:\\out.txt"] = "old";
    files.BreakKeeping = Fault::DiskFull;
    EXPECT_THAT(TroublesOf(files), ElementsAre("C:\\out.txt: Disk full"));
    EXPECT_EQ(files.Contents.at("C:\\out.txt"), "old");
}

TEST(ConvertFile, HasNothingToTellOfSuccess) {
    MemoryFiles files;
    files.Contents = {{"C:\\in.txt", GoodRecord}};
    EXPECT_THAT(TroublesOf(files), IsEmpty());
    EXPECT_EQ(files.OpenCount(), 0U);
    EXPECT_EQ(files.Contents.at("C:\\out.txt"), GoodQuote);
}

} // namespace
} // namespace quorvex::convert
