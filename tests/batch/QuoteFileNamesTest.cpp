// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/QuoteFileNames.h"

#include "platform/disk/DiskFolders.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace quorvex::batch {
namespace {

using testing::ElementsAre;

// Folders in which one cannot be read.
class FoldersWithAFault final : public platform::Folders {
public:
    explicit FoldersWithAFault(std::string faulty) : faulty_(std::move(faulty)) {}

    [[nodiscard]] bool IsFolder(std::string const& path) const override { return disk_.IsFolder(path); }

    [[nodiscard]] std::vector<std::string> Names(std::string const& folder,
                                                 platform::NamesWanted const& wanted) const override {
        if (folder == faulty_) {
            throw text::RunTimeError(text::Fault::PermissionDenied);
        }
        return disk_.Names(folder, wanted);
    }

private:
    std::string faulty_;
    platform::disk::DiskFolders disk_;
};

// With the separators that the program writes.
std::string Native(std::string const& path) {
    return std::filesystem::path(path).make_preferred().string();
}

// "b/a.txt" of each, with " (refusal)" behind where there is one, and slashes for the system's separators.
std::vector<std::string> NamesBelow(tests::TemporaryFolder const& folder, std::vector<std::string> paths,
                                    platform::Folders const& folders, QuoteFileNames::Options options = {}) {
    QuoteFileNames names(PathsOf(std::move(paths)), folders, std::move(options));
    std::vector<std::string> all;
    while (auto const file = names.Next()) {
        std::string name =
            file->Path.starts_with(folder.Text()) ? file->Path.substr(folder.Text().size()) : file->Path;
        std::replace(name.begin(), name.end(), static_cast<char>(std::filesystem::path::preferred_separator),
                     '/');
        all.push_back(name + (file->Refusal.empty() ? "" : " (" + file->Refusal + ")"));
    }
    return all;
}

class QuoteFileNamesTest : public testing::Test {
protected:
    QuoteFileNamesTest() {
        std::filesystem::create_directories(folder_.File("b/deep"));
        std::filesystem::create_directories(folder_.File("a"));
        std::filesystem::create_directories(folder_.File("empty"));
        for (auto const* name : {"Z.txt", "a.txt", "B.TXT", "b.dat", "b/2.txt", "b/1.txt", "b/deep/x.txt",
                                 "a/y.txt", "a/z.txt~"}) {
            folder_.Write(name, "");
        }
    }

    tests::TemporaryFolder folder_;
    platform::disk::DiskFolders folders_;
};

TEST_F(QuoteFileNamesTest, AreThoseOfAFolderInTheOrderOfTheirBytes) {
    EXPECT_THAT(NamesBelow(folder_, {folder_.Text()}, folders_), ElementsAre("B.TXT", "Z.txt", "a.txt"));
}

TEST_F(QuoteFileNamesTest, GoThroughFoldersOfFoldersBehindItsFiles) {
    EXPECT_THAT(NamesBelow(folder_, {folder_.Text()}, folders_, {.IsRecursive = true}),
                ElementsAre("B.TXT", "Z.txt", "a.txt", "a/y.txt", "b/1.txt", "b/2.txt", "b/deep/x.txt"));
}

TEST_F(QuoteFileNamesTest, AreTheSameHoweverFewAreKept) {
    for (std::size_t const kept : {1U, 2U, 3U}) {
        EXPECT_THAT(NamesBelow(folder_, {folder_.Text()}, folders_,
                               {.IsRecursive = true, .PassOver = {}, .NamesAtOnce = kept}),
                    ElementsAre("B.TXT", "Z.txt", "a.txt", "a/y.txt", "b/1.txt", "b/2.txt", "b/deep/x.txt"));
    }
}

TEST_F(QuoteFileNamesTest, StandInTheOrderOfThePaths) {
    EXPECT_THAT(
        NamesBelow(folder_,
                   {folder_.File("b.dat"), folder_.File("b"), folder_.File("nowhere.txt"), folder_.File("a")},
                   folders_),
        ElementsAre("b.dat", "b/1.txt", "b/2.txt", "nowhere.txt", "a/y.txt"));
}

TEST_F(QuoteFileNamesTest, TellOfAFolderWithNothingToGive) {
    EXPECT_THAT(NamesBelow(folder_, {folder_.File("empty"), folder_.File("a")}, folders_),
                ElementsAre("empty/ (There is no file *.txt)", "a/y.txt"));
    std::filesystem::create_directories(folder_.File("empty/too"));
    EXPECT_THAT(NamesBelow(folder_, {folder_.File("empty")}, folders_, {.IsRecursive = true}),
                ElementsAre("empty/ (There is no file *.txt)"));
}

TEST_F(QuoteFileNamesTest, TellOfAFolderThatCannotBeReadAndGoOn) {
    FoldersWithAFault const folders(Native(folder_.File("b/deep/")));
    std::filesystem::create_directories(folder_.File("c"));
    folder_.Write("c/last.txt", "");
    EXPECT_THAT(NamesBelow(folder_, {folder_.Text()}, folders, {.IsRecursive = true}),
                ElementsAre("B.TXT", "Z.txt", "a.txt", "a/y.txt", "b/1.txt", "b/2.txt",
                            "b/deep/ (Permission denied)", "c/last.txt"));
    EXPECT_THAT(NamesBelow(folder_, {Native(folder_.File("b/deep"))}, folders),
                ElementsAre("b/deep/ (Permission denied)"));
}

TEST_F(QuoteFileNamesTest, LeaveOutWhatIsPassedOver) {
    auto const isA = [this](std::string const& path) { return path == folder_.File("a.txt"); };
    EXPECT_THAT(NamesBelow(folder_, {folder_.Text()}, folders_, {.IsRecursive = false, .PassOver = isA}),
                ElementsAre("B.TXT", "Z.txt"));
}

TEST_F(QuoteFileNamesTest, OfAFolderInTheCurrentOneStandBehindASeparator) {
    auto const before = std::filesystem::current_path();
    std::filesystem::current_path(folder_.Path());
    auto const names = NamesBelow(folder_, {"a"}, folders_);
    std::filesystem::current_path(before);
    EXPECT_THAT(names, ElementsAre("a/y.txt"));
}

#ifndef _WIN32

TEST_F(QuoteFileNamesTest, DoNotFollowLinksToFoldersOnTheWay) {
    std::filesystem::create_directory_symlink(folder_.Path(), folder_.File("b/deep/round"));
    std::filesystem::create_symlink(folder_.File("Z.txt"), folder_.File("b/deep/link.txt"));
    EXPECT_THAT(NamesBelow(folder_, {folder_.File("b")}, folders_, {.IsRecursive = true}),
                ElementsAre("b/1.txt", "b/2.txt", "b/deep/link.txt", "b/deep/x.txt"));
    EXPECT_THAT(NamesBelow(folder_, {folder_.File("b/deep/round")}, folders_),
                ElementsAre("b/deep/round/B.TXT", "b/deep/round/Z.txt", "b/deep/round/a.txt"));
}

TEST_F(QuoteFileNamesTest, RefuseNamesThatWouldLeadElsewhere) {
    std::filesystem::create_directory(folder_.File("a") + "/\\");
    std::filesystem::create_directory(folder_.File("a") + "/..\\");
    std::ofstream(folder_.File("a") + "/x\\y.txt") << "x";
    EXPECT_THAT(NamesBelow(folder_, {folder_.File("a")}, folders_, {.IsRecursive = true}),
                ElementsAre("a/x\\y.txt (Bad file name or number)", "a/y.txt",
                            "a/..\\ (Bad file name or number)", "a/\\ (Bad file name or number)"));
}

#endif

TEST(PathsOf, AreGivenOneAfterTheOther) {
    auto const paths = PathsOf({"b", "a"});
    EXPECT_EQ(paths(), "b");
    EXPECT_EQ(paths(), "a");
    EXPECT_EQ(paths(), std::nullopt);
    EXPECT_EQ(paths(), std::nullopt);
}

TEST(PathsOfList, AreItsLines) {
    constexpr std::string_view list = "\xEF\xBB\xBF"
                                      "a.txt\r\n\n\x1A"
                                      "b,\"c\r d.txt\n\r\ne.txt";
    auto const paths = PathsOfList(std::make_unique<text::TextSource>(list));
    EXPECT_EQ(paths(), "a.txt");
    EXPECT_EQ(paths(), "\x1A"
                       "b,\"c\r d.txt");
    EXPECT_EQ(paths(), "e.txt");
    EXPECT_EQ(paths(), std::nullopt);
    EXPECT_EQ(paths(), std::nullopt);
    std::string const longLine(200'000, 'x');
    EXPECT_EQ(PathsOfList(std::make_unique<text::TextSource>(longLine))(), longLine);
    EXPECT_EQ(PathsOfList(std::make_unique<text::TextSource>(""))(), std::nullopt);
}

} // namespace
} // namespace quorvex::batch
