// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What test_under_fire.py does with the companion on systems with signals, on Windows: killed and
// interrupted, it goes on; and names that no code page can spell.

#include "platform/windows/StartedProgram.h"
#include "support/Golden.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace quorvex::batch {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using tests::GoldenFile;
using tests::OwnConsole;
using tests::StartedProgram;
using Clock = std::chrono::steady_clock;
using Arguments = std::vector<std::string>;

constexpr int FileCount = 40;

// Of characters beyond every code page of Windows but UTF-8.
std::string const GreekFolder = "\xCE\x95\xCE\xBB\xCE\xBB\xCE\xAC\xCE\xB4\xCE\xB1";
std::string const ChineseFile = "\xE5\xB0\x8F\xE9\xBA\xA6 \xCE\xA3\xCE\xAF\xCF\x84\xCE\xBF\xCF\x82.txt";

class UnderFireTest : public testing::Test {
protected:
    UnderFireTest() {
        std::filesystem::create_directory(folder_.File("quotes"));
        for (int number = 0; number < FileCount; ++number) {
            // Every tenth one is refused.
            folder_.Write("quotes/" + NameOf(number),
                          number % 10 == 7 ? "no quotes\r\n" : GoldenFile("quotes/q250.txt"));
        }
    }

    static std::string NameOf(int number) { return "C" + std::to_string(100 + number) + ".txt"; }

    [[nodiscard]] std::string File(std::string_view name) const { return folder_.File(name); }

    [[nodiscard]] StartedProgram Start(Arguments arguments, OwnConsole console = OwnConsole::None) const {
        arguments.insert(arguments.begin(), "batch");
        return {QUORVEX_COMPANION, arguments, File("errors"), console};
    }

    [[nodiscard]] Arguments WholeRun(std::string const& out) const {
        return {File("quotes"), "--automate", "2", "--jobs", "2", "-o", File(out)};
    }

    // The arguments of a run of all files that waits for more names when it has done them.
    [[nodiscard]] Arguments UnendingRun(std::string const& out) const {
        Arguments arguments = WholeRun(out);
        arguments.front() = "-";
        arguments.insert(arguments.begin(), "--files-from");
        return arguments;
    }

    // Gives it the names of all files.
    void GiveNames(StartedProgram const& program) const {
        for (int number = 0; number < FileCount; ++number) {
            program.Write(File("quotes\\") + NameOf(number) + '\n');
        }
    }

    // Waits until there are so many lines in the file. Raises an error after a minute.
    void AwaitLines(std::string const& out, std::ptrdiff_t count) const {
        auto const last = Clock::now() + std::chrono::minutes(1);
        while (LinesOf(out) < count) {
            if (Clock::now() > last) {
                throw std::runtime_error("No " + std::to_string(count) + " lines: " + folder_.Read("errors"));
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    // How many whole lines the file has, none when it is not there.
    [[nodiscard]] std::ptrdiff_t LinesOf(std::string const& name) const {
        if (!std::filesystem::exists(folder_.Path() / name)) {
            return 0;
        }
        std::string const text = folder_.Read(name);
        return std::count(text.begin(), text.end(), '\n');
    }

    // What a run that nobody disturbs writes.
    [[nodiscard]] std::string Unbroken() const {
        EXPECT_EQ(Start(WholeRun("unbroken")).Wait(), 1) << folder_.Read("errors");
        return folder_.Read("unbroken");
    }

    tests::TemporaryFolder folder_;
};

// Each run gets all names and is killed some time after the first line of its own. One that has not written
// all lines by then was at work.
TEST_F(UnderFireTest, KilledAndResumedItComesToTheSame) {
    constexpr int KilledStatus = 9;
    std::string const whole = Unbroken();
    auto const seed = std::random_device{}();
    SCOPED_TRACE("Seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> lives(0, 10'000); // microseconds
    Arguments arguments = UnendingRun("killed");
    arguments.emplace_back("--resume");
    int killsAtWork = 0;
    std::ptrdiff_t lines = 1; // the head
    while (lines <= FileCount) {
        StartedProgram const program = Start(arguments);
        GiveNames(program);
        AwaitLines("killed", lines + 1);
        std::this_thread::sleep_for(std::chrono::microseconds(lives(random)));
        program.Kill(KilledStatus);
        ASSERT_EQ(program.Wait(), KilledStatus) << folder_.Read("errors");
        std::string const left = folder_.Read("killed");
        ASSERT_THAT(whole, StartsWith(left));
        killsAtWork += left.size() < whole.size() ? 1 : 0;
        lines = LinesOf("killed");
    }
    EXPECT_GT(killsAtWork, 1);
    arguments = WholeRun("killed");
    arguments.emplace_back("--resume");
    EXPECT_EQ(Start(arguments).Wait(), 1) << folder_.Read("errors");
    EXPECT_EQ(folder_.Read("killed"), whole);
}

TEST_F(UnderFireTest, AnInterruptionLeavesWholeLines) {
    {
        StartedProgram program = Start(UnendingRun("interrupted"), OwnConsole::WithoutWindow);
        GiveNames(program);
        AwaitLines("interrupted", 3);
        program.Interrupt();
        EXPECT_EQ(program.Wait(), 130); // with its names still open
    }
    std::string const left = folder_.Read("interrupted");
    std::string const whole = Unbroken();
    EXPECT_THAT(whole, StartsWith(left));
    EXPECT_EQ(left.back(), '\n');
    Arguments resumed = WholeRun("interrupted");
    resumed.emplace_back("--resume");
    EXPECT_EQ(Start(resumed).Wait(), 1) << folder_.Read("errors");
    EXPECT_EQ(folder_.Read("interrupted"), whole);
}

TEST_F(UnderFireTest, OneRunAtATimeWritesAFile) {
    StartedProgram first = Start(UnendingRun("shared"));
    GiveNames(first);
    AwaitLines("shared", 3);
    for (Arguments const& how : {Arguments{}, Arguments{"--resume"}}) {
        Arguments arguments = {"batch", File("quotes"), "--automate", "2", "-o", File("shared")};
        arguments.insert(arguments.end(), how.begin(), how.end());
        EXPECT_EQ(StartedProgram(QUORVEX_COMPANION, arguments, File("second")).Wait(), 3);
        EXPECT_EQ(folder_.Read("second"), "quorvex-cli: " + File("shared") + ": Another run is writing it\n");
    }
    first.EndInput();
    EXPECT_EQ(first.Wait(), 1) << folder_.Read("errors");
    std::string const shared = folder_.Read("shared");
    EXPECT_EQ(shared, Unbroken());
}

TEST_F(UnderFireTest, NamesComeAndLinesGoThroughPipes) {
    StartedProgram program = Start({"--files-from", "-"}, OwnConsole::WithoutWindow);
    EXPECT_EQ(program.ReadLine().substr(0, 13), "File,Message,");
    for (int number = 0; number < 5; ++number) { // each line is there before the next name is
        program.Write(File(NameOf(number)) + "\r\n");
        EXPECT_THAT(program.ReadLine(), StartsWith(File(NameOf(number)) + ",File not found,"));
    }
    program.Interrupt(); // while it waits for names
    EXPECT_EQ(program.Wait(), 130);
    EXPECT_THAT(folder_.Read("errors"), HasSubstr("quorvex-cli: Interrupted: 5 files; 5 with a message"));
}

TEST_F(UnderFireTest, TakesNamesThatNoCodePageSpells) {
    auto const inner = folder_.Path() / std::u8string(GreekFolder.begin(), GreekFolder.end());
    std::filesystem::create_directory(inner);
    std::filesystem::copy_file(folder_.Path() / "quotes" / NameOf(0),
                               inner / std::u8string(ChineseFile.begin(), ChineseFile.end()));
    std::string const path = File(GreekFolder) + '\\' + ChineseFile;
    std::string const out = File(GreekFolder) + "\\out.csv";
    Arguments arguments = {File(GreekFolder), "-o", out};
    EXPECT_EQ(Start(arguments).Wait(), 0) << folder_.Read("errors");
    StartedProgram program = Start({"--files-from", "-"});
    program.Write(path + '\n');
    program.EndInput();
    std::string lines = program.ReadLine() + '\n';
    lines += program.ReadLine() + '\n';
    EXPECT_EQ(program.Wait(), 0) << folder_.Read("errors");
    EXPECT_THAT(lines, HasSubstr('\n' + path + ",,250,"));
    std::ifstream written(inner / "out.csv", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(written), {}), lines);
    arguments.emplace_back("--resume");
    EXPECT_EQ(Start(arguments).Wait(), 0) << folder_.Read("errors");
    EXPECT_THAT(folder_.Read("errors"), HasSubstr("1 file, 1 of them before"));
}

} // namespace
} // namespace quorvex::batch
