// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/Golden.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace quorvex::tests {
namespace {

constexpr auto CsiLine = "20020115,1,2,3,4,5,6\r\n";
constexpr auto QuoteLine = "01/15/02, 1, 2, 3, 4, 5, 6\r\n";

// The output that the reference gives for the case.
std::string ReferenceOutput(std::string const& name) {
    auto const entries = GoldenVector("converters");
    for (auto const& entry : entries) {
        if (entry.at("case") == name) {
            return entry.at("output");
        }
    }
    throw std::runtime_error("No such case: " + name);
}

TEST(Convert, WritesAQuoteFileOfEachKind) {
    TemporaryFolder const folder;
    std::string const out = folder.File("out.txt");
    std::vector<std::pair<std::string, std::vector<std::string>>> const cases = {
        {"bar_e", {"barchart", "--layout", "E"}},
        {"csi_good", {"csi"}},
        {"cus_order3",
         {"custom", "--fields", "open-interest,not-used,close,high,date,open,volume,low,not used,not-used",
          "--date-format", "mm/dd/yy"}}};
    for (auto const& [name, kind] : cases) {
        SCOPED_TRACE(name);
        std::vector<std::string> arguments = kind;
        arguments.insert(arguments.begin(), "convert");
        arguments.push_back(GoldenPath("convert/" + name + ".txt"));
        arguments.push_back(out);
        auto const run = RunCompanion(arguments);
        EXPECT_EQ(run.ExitStatus, 0);
        EXPECT_EQ(run.Output, "Data file " + out + " created successfully\n");
        EXPECT_EQ(run.Errors, "");
        EXPECT_EQ(folder.Read("out.txt"), ReferenceOutput(name));
    }
}

TEST(Convert, ReadsAPipeAndWritesOne) {
    TemporaryFolder const folder;
    auto const filter = RunCompanion({"convert", "csi", "-", "-"}, CsiLine);
    EXPECT_EQ(filter.ExitStatus, 0);
    EXPECT_EQ(filter.Output, QuoteLine);
    EXPECT_EQ(filter.Errors, "");

    folder.Write("in.txt", CsiLine);
    auto const writer = RunCompanion({"convert", "csi", folder.File("in.txt"), "-"});
    EXPECT_EQ(writer.Output, QuoteLine);

    auto const reader = RunCompanion({"convert", "csi", "-", folder.File("out.txt")}, CsiLine);
    EXPECT_EQ(reader.ExitStatus, 0);
    EXPECT_EQ(folder.Read("out.txt"), QuoteLine);
}

#ifndef _WIN32

TEST(Convert, ReadsAPipeThatHasAName) {
    TemporaryFolder const folder;
    auto const input = RunCompanion({"convert", "csi", "/dev/stdin", folder.File("out.txt")}, CsiLine);
    EXPECT_EQ(input.Errors, "");
    EXPECT_EQ(folder.Read("out.txt"), QuoteLine);

    ASSERT_EQ(mkfifo(folder.File("pipe").c_str(), 0666), 0);
    std::thread writer([&folder] { folder.Write("pipe", CsiLine); });
    auto const pipe = RunCompanion({"convert", "csi", folder.File("pipe"), "-"});
    writer.join();
    EXPECT_EQ(pipe.Errors, "");
    EXPECT_EQ(pipe.Output, QuoteLine);
}

TEST(Convert, EndsAtALineThatDoesNotEnd) {
    TemporaryFolder const folder;
    auto const run = RunCompanion({"convert", "csi", "/dev/zero", folder.File("out.txt")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: /dev/zero: Invalid record at line 1 in file /dev/zero\n");
    EXPECT_FALSE(std::filesystem::exists(folder.File("out.txt")));
}

#endif

TEST(Convert, RefusesABadFileAndLeavesNothing) {
    TemporaryFolder const folder;
    folder.Write("in.txt", std::string("SPH2,020115,1,2,3,4,5,6\r\n") + CsiLine);
    std::string const source = folder.File("in.txt");
    auto const run = RunCompanion({"convert", "barchart", "--layout", "N", source, folder.File("out.txt")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "");
    std::string const complaint = "quorvex-cli: " + source + ": ";
    EXPECT_EQ(run.Errors, complaint + "Wrong number of fields!\n" + complaint +
                              "Invalid record at line 2 in file " + source + "\n");
    EXPECT_FALSE(std::filesystem::exists(folder.File("out.txt")));
}

TEST(Convert, NamesThePipeInItsMessages) {
    auto const run = RunCompanion({"convert", "csi", "-", "-"}, "20021315,1,2,3,4,5,6\n");
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "quorvex-cli: standard input: Invalid field value at line 1 in file -\n");
}

TEST(Convert, TellsOfNamesAndFilesThatCannotBe) {
    TemporaryFolder const folder;
    folder.Write("in.txt", CsiLine);
    std::string const source = folder.File("in.txt");
    std::string const pattern = folder.File("*.txt");
    std::string const gone = folder.File("gone.txt");
    std::string const nowhere = folder.File("gone/out.txt");
    for (auto const& [names, errors] :
         {std::pair(std::pair(source, source), source + ": Invalid destination file name\n"),
          std::pair(std::pair(source, pattern), pattern + ": Invalid destination file name\n"),
          std::pair(std::pair(std::string(), source), std::string("Invalid source file name\n")),
          std::pair(std::pair(gone, source), gone + ": File not found\n"),
          std::pair(std::pair(source, nowhere), nowhere + ": Path not found\n")}) {
        auto const run = RunCompanion({"convert", "csi", names.first, names.second});
        EXPECT_EQ(run.ExitStatus, 1);
        EXPECT_EQ(run.Output, "");
        EXPECT_EQ(run.Errors, "quorvex-cli: " + errors);
    }
    EXPECT_EQ(folder.Read("in.txt"), CsiLine);
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(Convert, EndsWithTwoOnWrongUsage) {
    for (std::vector<std::string> const& arguments :
         {std::vector<std::string>{"convert"},
          {"convert", "nonsense", "a", "b"},
          {"convert", "csi", "a"},
          {"convert", "csi", "a", "b", "c"},
          {"convert", "csi", "--layout", "C", "a", "b"},
          {"convert", "barchart", "a", "b"},
          {"convert", "barchart", "--layout", "A", "a", "b"},
          {"convert", "custom", "a", "b"},
          {"convert", "custom", "--fields", "date,open,high,low,close", "a", "b"},
          {"convert", "custom", "--fields", "date,open,high,low,clsoe", "--date-format", "yymmdd", "a", "b"},
          {"convert", "custom", "--fields", "date,open,high,low,close,", "--date-format", "yymmdd", "a", "b"},
          {"convert", "custom", "--fields", "date,open,high,low,close", "--date-format", "ddmmyy", "a", "b"},
          {"convert", "custom", "--fields",
           "date,open,high,low,close,not-used,not-used,not-used,not-used,not-used,not-used", "--date-format",
           "yymmdd", "a", "b"}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        auto const run = RunCompanion(arguments);
        EXPECT_EQ(run.ExitStatus, 2);
        EXPECT_EQ(run.Output, "");
        EXPECT_NE(run.Errors, "");
    }
}

TEST(Convert, TellsOfAFieldThatIsMissingOrTwice) {
    auto const run = RunCompanion(
        {"convert", "custom", "--fields", "date,open,high,low,low", "--date-format", "yymmdd", "a", "b"});
    EXPECT_EQ(run.ExitStatus, 2);
    EXPECT_EQ(run.Errors, "quorvex-cli: --fields: Missing or duplicate low field\n");
}

} // namespace
} // namespace quorvex::tests
