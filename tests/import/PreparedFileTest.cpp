// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/PreparedFile.h"

#include "Tables.h"
#include "platform/fake/MemoryFiles.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace quorvex::imports {
namespace {

using platform::fake::MemoryFiles;
using tests::ImportText;

std::string MarchTable(int days, std::string const& lastClose = "11") {
    std::string table = "Date,Open,High,Low,Close\n";
    for (int day = 1; day <= days; ++day) {
        table += "2024-03-" + std::to_string(100 + day).substr(1) + ",10,12,9," +
                 (day == days ? lastClose : "11") + "\n";
    }
    return table;
}

PreparedFile Prepared(std::string const& table, MemoryFiles const& files, std::string const& path = "/w.txt",
                      bool replaces = false) {
    PreparedFile prepared;
    prepared.Prepare(ImportText(table), {path, 500, replaces}, files);
    return prepared;
}

std::optional<text::Fault> FaultOfFile(PreparedFile const& prepared) {
    auto const fault = text::Trap([&] { prepared.RequireFile(); });
    return fault ? std::optional(fault->Kind()) : std::nullopt;
}

TEST(PreparedFile, IsOneOfTheTableWhereThereIsNoneOfItsName) {
    MemoryFiles const files;
    PreparedFile prepared = Prepared(MarchTable(26), files);
    EXPECT_TRUE(prepared.CanImport());
    EXPECT_FALSE(prepared.CanUpdate());
    EXPECT_EQ(prepared.Made().Days.size(), 26U);
    EXPECT_EQ(prepared.Describe(), "Quote file: 26 days, 03/01/24 to 03/26/24.");
    prepared.Clear();
    EXPECT_FALSE(prepared.CanImport());
    EXPECT_FALSE(Prepared(MarchTable(26), files, "").CanImport()) << "there is no name yet";
    EXPECT_FALSE(Prepared(MarchTable(24), files).CanImport());
}

TEST(PreparedFile, IsAnUpdateOfTheOneThatIsThere) {
    MemoryFiles files;
    files.Contents["/w.txt"] = QuoteText(ImportText(MarchTable(26)).Days);
    EXPECT_FALSE(Prepared(MarchTable(26), files).CanUpdate()) << "nothing is new";
    PreparedFile const prepared = Prepared(MarchTable(27, "11.0625"), files);
    EXPECT_TRUE(prepared.CanImport());
    EXPECT_TRUE(prepared.CanUpdate());
    EXPECT_FALSE(prepared.HasChanges());
    EXPECT_EQ(prepared.Updated().Days.size(), 27U);
    EXPECT_EQ(prepared.Describe(), "Quote file: 27 days, 03/01/24 to 03/27/24.\n"
                                   "Update of w.txt: 1 day appended, 26 there already.");
    EXPECT_EQ(prepared.Rounding("####0.00"),
              "1 day with prices of more decimals than the Currency Format ####0.00 keeps, at line 28: the "
              "program rounds them");
    EXPECT_EQ(files.OpenCount(), 0U);
}

TEST(PreparedFile, TellsWhatHasChanged) {
    MemoryFiles files;
    files.Contents["/w.txt"] = QuoteText(ImportText(MarchTable(26)).Days);
    PreparedFile const kept = Prepared(MarchTable(26, "12"), files);
    EXPECT_TRUE(kept.HasChanges());
    EXPECT_FALSE(kept.CanUpdate());
    EXPECT_THAT(
        kept.Changes(),
        testing::ElementsAre("03/26/24: 10, 12, 9, 11, 0, 0 in the file, 10, 12, 9, 12, 0, 0 at line 27"));
    EXPECT_TRUE(Prepared(MarchTable(26, "12"), files, "/w.txt", true).CanUpdate());
}

TEST(PreparedFile, RoundsInAnUpdateByATableThatIsTooShortForAFile) {
    MemoryFiles files;
    files.Contents["/w.txt"] = QuoteText(ImportText(MarchTable(26)).Days);
    auto const prepared = Prepared("Date,Open,High,Low,Close\n2024-03-27,10,12,9,11.0625\n", files);
    EXPECT_FALSE(prepared.CanImport());
    EXPECT_TRUE(prepared.CanUpdate());
    EXPECT_EQ(prepared.Rounding("####0.00"),
              "1 day with prices of more decimals than the Currency Format ####0.00 keeps, at line 2: the "
              "program rounds them");
    EXPECT_EQ(prepared.Rounding("####0.0000"), "");
}

TEST(PreparedFile, TellsWhyAFileCannotBeBroughtUpToDate) {
    MemoryFiles files;
    files.Contents["/w.txt"] = std::string(4'194'305, ' ');
    PreparedFile const tooLong = Prepared(MarchTable(26), files);
    EXPECT_THAT(tooLong.Describe(),
                testing::EndsWith("\nw.txt cannot be brought up to date: it is too long for a quote file."));
    EXPECT_FALSE(tooLong.MayReadNextTime());
    EXPECT_EQ(FaultOfFile(tooLong), std::nullopt);
    files.Contents["/w.txt"] = QuoteText(ImportText(MarchTable(26)).Days);
    files.BreakReading = std::pair(std::size_t{10}, text::Fault::PermissionDenied);
    PreparedFile const prepared = Prepared(MarchTable(27), files);
    EXPECT_THAT(prepared.Describe(),
                testing::EndsWith("\nw.txt cannot be brought up to date: Permission denied."));
    EXPECT_TRUE(prepared.CanImport());
    EXPECT_FALSE(prepared.CanUpdate());
    EXPECT_TRUE(prepared.MayReadNextTime());
    EXPECT_EQ(FaultOfFile(prepared), text::Fault::PermissionDenied);
    files.BreakReading.reset();
    PreparedFile const next = Prepared(MarchTable(27), files);
    EXPECT_TRUE(next.CanUpdate());
    EXPECT_FALSE(next.MayReadNextTime());
    EXPECT_EQ(FaultOfFile(next), std::nullopt);
    files.Contents.clear();
    EXPECT_EQ(FaultOfFile(Prepared(MarchTable(27), files)), text::Fault::FileNotFound);
}

} // namespace
} // namespace quorvex::imports
