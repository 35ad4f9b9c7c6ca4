// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Kills a process that saves over and over, so many times at random moments, and looks at the file each time:
// it must be one of the two that are saved in turn, whole. For POSIX systems.
//
//   kill_saves [COUNT [SEED]]

#include "editor/Sheet.h"
#include "editor/basEdit.h"
#include "editor/basSave.h"
#include "editor/basSpread.h"
#include "platform/disk/DiskFiles.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvex::tests {
namespace {

constexpr std::string_view FileName = "quotes.txt";
constexpr int Days = 500;

// Two sets of quotes that differ in every row, in length as well.
class Saver {
public:
    explicit Saver(TemporaryFolder const& folder) : path_(folder.File(FileName)) {
        editor::OpenEditor(*editor_, *series_);
        editor::RebuildGrid(*editor_, settings_);
    }

    [[nodiscard]] bool Save(bool isLong) {
        for (std::int16_t row = 1; row <= Days; ++row) {
            editor::PutText(sheet_, row, editor::FirstNumberColumn, isLong ? "123456.75" : "1.5");
        }
        return editor::SaveEditData(path_, *editor_, series_->Master, settings_, files_);
    }

private:
    std::string path_;
    settings::Settings settings_ = settings::DefaultSettings("./");
    std::unique_ptr<quotes::QuoteSeries> series_ = SeriesOf(QuoteLines(Days));
    editor::Sheet sheet_;
    std::unique_ptr<editor::Editor> editor_ = std::make_unique<editor::Editor>(editor::Editor{sheet_, {}, 0});
    platform::disk::DiskFiles files_;
};

// Ends when a save fails, or when it is killed.
[[noreturn]] void SaveForever(Saver& saver, bool isFirstLong) {
    for (bool isLong = isFirstLong; saver.Save(isLong); isLong = !isLong) {
    }
    std::_Exit(EXIT_FAILURE);
}

// Lets a process save for so long and kills it. Returns whether it was still saving then.
bool KillAfter(int microseconds, Saver& saver, bool isFirstLong) {
    pid_t const child = fork();
    if (child == 0) {
        SaveForever(saver, isFirstLong);
    }
    if (child < 0) {
        return false;
    }
    usleep(static_cast<useconds_t>(microseconds));
    kill(child, SIGKILL);
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFSIGNALED(status);
}

// Removes what the killed one left beside the file. Returns whether there was anything: then it was killed
// half-way through a save.
bool RemoveLeftovers(TemporaryFolder const& folder) {
    bool hasAny = false;
    for (auto const& entry : std::filesystem::directory_iterator(folder.Path())) {
        if (entry.path().filename() != FileName) {
            hasAny = true;
            std::filesystem::remove(entry.path());
        }
    }
    return hasAny;
}

struct Tally {
    int Short = 0;
    int Long = 0;
    int Broken = 0;
    int HalfWay = 0;
};

// 0 for what is no number: no kills show nothing.
unsigned NumberOf(std::string_view argument) {
    unsigned number = 0;
    auto const end = argument.data() + argument.size();
    return std::from_chars(argument.data(), end, number).ptr == end ? number : 0;
}

int Run(unsigned count, unsigned seed) {
    constexpr int LongestMicroseconds = 15'000;
    TemporaryFolder const folder;
    Saver saver(folder);
    if (!saver.Save(true)) {
        return EXIT_FAILURE;
    }
    std::string const longText = folder.Read(FileName);
    if (!saver.Save(false)) {
        return EXIT_FAILURE;
    }
    std::string const shortText = folder.Read(FileName);
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> pause(0, LongestMicroseconds);
    Tally tally;
    for (unsigned turn = 0; turn < count; ++turn) {
        if (!KillAfter(pause(random), saver, turn % 2 == 0)) {
            std::printf("Turn %u: the save failed by itself.\n", turn);
            return EXIT_FAILURE;
        }
        std::string const text = folder.Read(FileName);
        tally.Short += text == shortText ? 1 : 0;
        tally.Long += text == longText ? 1 : 0;
        tally.Broken += text != shortText && text != longText ? 1 : 0;
        tally.HalfWay += RemoveLeftovers(folder) ? 1 : 0;
    }
    std::printf("%u kills, seed %u: the file was %d times the one, %d times the other, %d times broken; "
                "%d kills came half-way through a save.\n",
                count, seed, tally.Short, tally.Long, tally.Broken, tally.HalfWay);
    // Kills that all miss the saves, or all come before the first one, show nothing.
    bool const isTelling = tally.HalfWay > 0 && tally.Short > 0 && tally.Long > 0;
    return tally.Broken == 0 && isTelling ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace quorvex::tests

int main(int argc, char** argv) {
    constexpr unsigned UsualCount = 1000;
    unsigned const count = argc > 1 ? quorvex::tests::NumberOf(argv[1]) : UsualCount;
    unsigned const seed = argc > 2 ? quorvex::tests::NumberOf(argv[2]) : std::random_device()();
    return quorvex::tests::Run(count, seed);
}
