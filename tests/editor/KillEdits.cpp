// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Kills a process that edits quotes, so many times at random moments, and restores what it kept: all edits
// but at most the one that was being kept when it died. For POSIX systems.
//
//   kill_edits [COUNT [SEED]]

#include "editor/History.h"
#include "editor/PlainSpread.h"
#include "editor/UnsavedEdits.h"
#include "editor/basBlocks.h"
#include "editor/basEdit.h"
#include "platform/disk/DiskFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "settings/Settings.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"

#include <atomic>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvex::tests {
namespace {

constexpr std::string_view FileName = "quotes.txt";
constexpr int Days = 250;

// An editor in which the edits follow from their numbers alone.
class NumberedEdits {
public:
    explicit NumberedEdits(TemporaryFolder const& folder)
        : settings_(settings::DefaultSettings(folder.Text())),
          series_(SeriesOf(QuoteLines(Days), settings_.CurrencyFormat, std::string(FileName))) {
        editor::OpenEditor(*editor_, *series_);
        editor::RebuildGrid(*editor_, settings_);
        history_.Start(*editor_);
    }

    void Open(editor::UnsavedEdits& unsaved) const {
        static_cast<void>(unsaved.Open(*editor_, *series_, settings_));
    }

    // Does the edit; returns what it changed.
    editor::Change Do(int number) {
        constexpr int Kinds = 12;
        auto const row = static_cast<std::int16_t>(number * 37 % editor_->EditCount + 1);
        editor_->Grid.GotoCell(row, 1);
        platform::fake::ScriptedDialogs dialogs;
        dialogs.Answers = {platform::Answer::Yes};
        switch (number % Kinds) {
        case 3:
            editor::InsertRow(*editor_, settings_, dialogs);
            break;
        case 6:
            return history_.Undo(*editor_);
        case 9:
            editor::DeleteRow(*editor_, settings_, dialogs);
            break;
        case 11:
            Paste(number);
            break;
        default:
            sheet_.SetText(row, static_cast<std::int16_t>(number % editor::Sheet::Columns + 1),
                           std::to_string(number));
        }
        return history_.Record(*editor_);
    }

    void Keep(editor::UnsavedEdits& unsaved, editor::Change const& change) const {
        unsaved.Keep(change, editor::ChangeKind::Edit, *editor_);
    }

    // The rows that were kept; those that were opened when there are none.
    editor::EditRows Restored(editor::UnsavedEdits& unsaved) {
        platform::fake::ScriptedDialogs dialogs;
        Open(unsaved);
        if (unsaved.HasKept()) {
            static_cast<void>(unsaved.Restore(*editor_, dialogs));
        }
        return Rows();
    }

    [[nodiscard]] editor::EditRows Rows() const { return editor::RowsOf(*editor_); }

private:
    // So large that the file is written anew now and then.
    void Paste(int number) {
        constexpr int PastedRows = 200;
        std::string block;
        for (int row = 0; row < PastedRows; ++row) {
            block += std::to_string(number) + '\t' + std::string(200, 'x') + '\n';
        }
        static_cast<void>(editor::PasteText(sheet_, {1, 2, 1, 2}, block));
    }

    settings::Settings settings_;
    std::unique_ptr<quotes::QuoteSeries> series_;
    editor::Sheet sheet_;
    editor::PlainSpread spread_{sheet_};
    std::unique_ptr<editor::Editor> editor_ =
        std::make_unique<editor::Editor>(editor::Editor{sheet_, spread_, {}, 0});
    editor::History history_;
};

// How many edits a process has kept, seen by both.
class SharedCount {
public:
    SharedCount()
        : count_(new (mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                           MAP_SHARED | MAP_ANONYMOUS, -1, 0)) std::atomic<int>(0)) {}

    SharedCount(SharedCount const&) = delete;
    SharedCount& operator=(SharedCount const&) = delete;

    ~SharedCount() { munmap(count_, sizeof(std::atomic<int>)); }

    [[nodiscard]] std::atomic<int>& Count() const { return *count_; }

private:
    std::atomic<int>* count_;
};

// Ends when an edit cannot be kept, or when it is killed.
[[noreturn]] void EditForever(NumberedEdits& edits, std::atomic<int>& count) {
    platform::disk::DiskFiles files;
    editor::UnsavedEdits unsaved(files);
    static_cast<void>(text::Trap([&] {
        edits.Open(unsaved);
        for (int number = 1;; ++number) {
            edits.Keep(unsaved, edits.Do(number));
            count = number;
        }
    }));
    std::_Exit(EXIT_FAILURE);
}

// Lets a process keep so many edits, which takes longer on a busy machine, and go on for so long, and kills
// it. Returns how many edits it had kept; -1 when it was not editing.
int KillAfter(int edits, int microseconds, TemporaryFolder const& folder) {
    SharedCount const shared;
    NumberedEdits numbered(folder);
    pid_t const child = fork();
    if (child == 0) {
        EditForever(numbered, shared.Count());
    }
    int status = 0;
    while (shared.Count() < edits && waitpid(child, &status, WNOHANG) == 0) {
        usleep(100);
    }
    usleep(static_cast<useconds_t>(microseconds));
    if (child < 0 || kill(child, SIGKILL) != 0) {
        return -1;
    }
    bool const isKilled = waitpid(child, &status, 0) == child && WIFSIGNALED(status);
    return isKilled ? shared.Count().load() : -1;
}

struct Tally {
    int All = 0;     // what was kept, and nothing else
    int OneMore = 0; // also the edit that was being kept
    int Lost = 0;
    std::int64_t Edits = 0;
};

void Count(int kept, TemporaryFolder const& folder, Tally& tally) {
    platform::disk::DiskFiles files;
    editor::UnsavedEdits unsaved(files);
    auto const restored = NumberedEdits(folder).Restored(unsaved);
    NumberedEdits again(folder);
    for (int number = 1; number <= kept; ++number) {
        again.Do(number);
    }
    bool const isAll = restored == again.Rows();
    again.Do(kept + 1);
    bool const isOneMore = !isAll && restored == again.Rows();
    tally.All += isAll ? 1 : 0;
    tally.OneMore += isOneMore ? 1 : 0;
    tally.Lost += isAll || isOneMore ? 0 : 1;
    tally.Edits += kept;
}

int Run(int count, unsigned seed) {
    constexpr int MostEdits = 16;
    constexpr int LongestMicroseconds = 5'000;
    std::printf("Seed %u\n", seed);
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> edits(0, MostEdits);
    std::uniform_int_distribution<int> pause(0, LongestMicroseconds);
    Tally tally;
    for (int turn = 0; turn < count; ++turn) {
        TemporaryFolder const folder;
        folder.Write(FileName, QuoteLines(Days));
        int const wanted = edits(random);
        int const kept = KillAfter(wanted, pause(random), folder);
        if (kept < 0) {
            std::printf("Turn %d: the process ended by itself.\n", turn);
            return EXIT_FAILURE;
        }
        Count(kept, folder, tally);
    }
    std::printf(
        "%d kills, %s edits kept before them: %d times these were restored, %d times one more, %d times "
        "less.\n",
        count, std::to_string(tally.Edits).c_str(), tally.All, tally.OneMore, tally.Lost);
    // Kills that come before the first edit show nothing.
    return tally.Lost == 0 && tally.Edits > count ? EXIT_SUCCESS : EXIT_FAILURE;
}

// 0 for what is no number: no kills show nothing.
template <class Number>
Number NumberOf(std::string_view argument) {
    Number number = 0;
    auto const end = argument.data() + argument.size();
    return std::from_chars(argument.data(), end, number).ptr == end ? number : 0;
}

} // namespace
} // namespace quorvex::tests

int main(int argc, char** argv) {
    constexpr int UsualCount = 1000;
    int const count = argc > 1 ? quorvex::tests::NumberOf<int>(argv[1]) : UsualCount;
    unsigned const seed = argc > 2 ? quorvex::tests::NumberOf<unsigned>(argv[2]) : std::random_device()();
    return quorvex::tests::Run(count, seed);
}
