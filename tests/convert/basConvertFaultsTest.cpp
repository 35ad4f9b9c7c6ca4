// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Conversions on a real disk that is full, locked or linked.

#include "Conversion.h"
#include "convert/basConvertCSI.h"
#include "platform/disk/DiskFiles.h"
#include "support/TemporaryFolder.h"
#ifndef _WIN32
#include "support/AsOrdinaryUser.h"
#include "support/SmallDisk.h"
#endif

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace quorvex::convert {
namespace {

using testing::ElementsAre;

constexpr auto GoodLine = "20020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n";

class ConversionFaults : public testing::Test {
protected:
    // Converts in.txt, or another source, into this destination.
    std::vector<std::string> ConvertTo(std::string const& destination, std::string const& source = "in.txt") {
        platform::fake::ScriptedDialogs dialogs;
        FileNames const names = {folder.File(source), destination.empty() ? "" : folder.File(destination)};
        ConvertDataFile(names, CsiLayout(), files, dialogs);
        return BoxesOf(dialogs);
    }

    [[nodiscard]] bool Exists(std::string const& name) const {
        return std::filesystem::exists(folder.File(name));
    }

    tests::TemporaryFolder folder;
    platform::disk::DiskFiles files;
};

TEST_F(ConversionFaults, AGoodFileIsWritten) {
    folder.Write("in.txt", GoodLine);
    EXPECT_THAT(ConvertTo("out.txt"),
                ElementsAre(InformationBox("Data file " + folder.File("out.txt") + " created successfully")));
    EXPECT_EQ(folder.Read("out.txt"), "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000\r\n");
}

TEST_F(ConversionFaults, ABadFileTakesAnOlderDestinationWithIt) {
    folder.Write("in.txt", std::string(GoodLine) + "x\r\n");
    folder.Write("out.txt", "older");
    EXPECT_THAT(ConvertTo("out.txt"),
                ElementsAre(ExclamationBox("Invalid record at line 2 in\nfile " + folder.File("in.txt"))));
    EXPECT_FALSE(Exists("out.txt"));
    EXPECT_EQ(folder.Read("out.txt~"), "older");
    EXPECT_TRUE(Exists("in.txt"));
}

TEST_F(ConversionFaults, AGoodFileKeepsWhatTheDestinationHeld) {
    folder.Write("in.txt", GoodLine);
    folder.Write("out.txt", "older");
    EXPECT_THAT(ConvertTo("out.txt"),
                ElementsAre(InformationBox("Data file " + folder.File("out.txt") + " created successfully")));
    EXPECT_EQ(folder.Read("out.txt~"), "older");
}

TEST_F(ConversionFaults, ADestinationThatCannotBeKeptStays) {
    folder.Write("in.txt", GoodLine);
    folder.Write("out.txt", "older");
    std::filesystem::create_directory(folder.File("out.txt~"));
    EXPECT_THAT(ConvertTo("out.txt"), ElementsAre(ExclamationBox("Permission denied")));
    EXPECT_EQ(folder.Read("out.txt"), "older");
}

TEST_F(ConversionFaults, AMissingSourceCreatesNothing) {
    EXPECT_THAT(ConvertTo("out.txt"), ElementsAre(ExclamationBox("File not found")));
    EXPECT_THAT(ConvertTo("out.txt", "nowhere/in.txt"), ElementsAre(ExclamationBox("Path not found")));
    EXPECT_EQ(folder.EntryCount(), 0);
}

TEST_F(ConversionFaults, ADestinationThatCannotBeIsTold) {
    folder.Write("in.txt", GoodLine);
    std::filesystem::create_directory(folder.File("sub"));
    EXPECT_THAT(ConvertTo("nowhere/out.txt"), ElementsAre(ExclamationBox("Path not found")));
    EXPECT_THAT(ConvertTo("sub"), ElementsAre(ExclamationBox("Permission denied")));
    EXPECT_THAT(ConvertTo(""), ElementsAre(ExclamationBox("Bad file name or number")));
    EXPECT_TRUE(Exists("sub"));
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST_F(ConversionFaults, ASourceThatIsTheDestinationUnderAnotherNameIsEmptied) {
    folder.Write("in.txt", std::string(GoodLine) + GoodLine);
    std::filesystem::create_hard_link(folder.File("in.txt"), folder.File("link.txt"));
    EXPECT_THAT(ConvertTo("link.txt"), ElementsAre(InformationBox("Data file " + folder.File("link.txt") +
                                                                  " created successfully")));
    EXPECT_EQ(folder.Read("in.txt"), "");
    EXPECT_EQ(folder.Read("link.txt~"), std::string(GoodLine) + GoodLine);
}

#ifndef _WIN32

TEST_F(ConversionFaults, ALinkAsDestinationKeepsNoPartialOutput) {
    folder.Write("in.txt", std::string(GoodLine) + "x\r\n");
    folder.Write("real.txt", "older");
    std::filesystem::create_symlink("real.txt", folder.File("link.txt"));
    EXPECT_THAT(ConvertTo("link.txt"),
                ElementsAre(ExclamationBox("Invalid record at line 2 in\nfile " + folder.File("in.txt"))));
    EXPECT_FALSE(Exists("real.txt"));
}

TEST_F(ConversionFaults, AnUnwritableFolderIsTold) {
    folder.Write("in.txt", GoodLine);
    std::filesystem::permissions(folder.File("in.txt"), std::filesystem::perms::all);
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0555));
    std::vector<std::string> boxes;
    {
        tests::AsOrdinaryUser const user;
        boxes = ConvertTo("out.txt");
    }
    EXPECT_THAT(boxes, ElementsAre(ExclamationBox("Permission denied")));
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST_F(ConversionFaults, AWritableDestinationInAnUnwritableFolderIsLeftEmpty) {
    std::string text;
    for (int line = 0; line < 2000; ++line) { // more than is kept back before the first writing
        text += GoodLine;
    }
    folder.Write("in.txt", text + "x\r\n");
    folder.Write("out.txt", "");
    for (auto const* name : {"in.txt", "out.txt"}) {
        std::filesystem::permissions(folder.File(name), std::filesystem::perms(0666));
    }
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0555));
    std::vector<std::string> boxes;
    {
        tests::AsOrdinaryUser const user;
        boxes = ConvertTo("out.txt");
    }
    EXPECT_THAT(boxes,
                ElementsAre(ExclamationBox("Invalid record at line 2001 in\nfile " + folder.File("in.txt")),
                            ExclamationBox("Permission denied")));
    EXPECT_EQ(folder.Read("out.txt"), "");
}

TEST_F(ConversionFaults, AnUnreadableSourceIsTold) {
    folder.Write("in.txt", GoodLine);
    std::filesystem::permissions(folder.File("in.txt"), std::filesystem::perms::none);
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
    std::vector<std::string> boxes;
    {
        tests::AsOrdinaryUser const user;
        boxes = ConvertTo("out.txt");
    }
    EXPECT_THAT(boxes, ElementsAre(ExclamationBox("Permission denied")));
    EXPECT_FALSE(Exists("out.txt"));
}

TEST_F(ConversionFaults, AFullDiskLeavesNothing) {
    std::string text;
    for (int line = 0; line < 100; ++line) {
        text += GoodLine;
    }
    folder.Write("in.txt", text);
    std::vector<std::string> boxes;
    {
        tests::SmallDisk const small(1000);
        boxes = ConvertTo("out.txt");
    }
    EXPECT_THAT(boxes, ElementsAre(ExclamationBox("Disk full")));
    EXPECT_EQ(folder.EntryCount(), 1);
}

#endif

} // namespace
} // namespace quorvex::convert
