// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Kills a process that saves over and over, so many times at random moments for each kind of save, and looks
// at the files each time: the name holds one of the two contents that are saved in turn, whole, or else what
// stood there before does under the name with the mark behind it. For POSIX systems.
//
//   kill_saves [COUNT [SEED]]

#include "convert/basConvertCSI.h"
#include "convert/basConvertSubs.h"
#include "editor/PlainSpread.h"
#include "editor/basEdit.h"
#include "editor/basSave.h"
#include "editor/basSpread.h"
#include "import/basImport.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/DiskProfile.h"
#include "platform/fake/ScriptedDialogs.h"
#include "quotes/basQuotes.h"
#include "settings/basProfiles.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvex::tests {
namespace {

constexpr std::string_view FileName = "quotes.txt";
constexpr std::string_view BackupName = "quotes.txt~";
constexpr int Days = 500;

// Saves one of two contents under FileName. They differ throughout, and in length.
class Saver {
public:
    explicit Saver(TemporaryFolder const& folder) : folder_(folder) {}

    Saver(Saver const&) = delete;
    Saver& operator=(Saver const&) = delete;
    virtual ~Saver() = default;

    // Returns whether it went well.
    [[nodiscard]] virtual bool Save(bool isLong) = 0;

protected:
    [[nodiscard]] TemporaryFolder const& Folder() const { return folder_; }

    [[nodiscard]] std::string Path() const { return folder_.File(FileName); }

    [[nodiscard]] platform::disk::DiskFiles& Files() { return files_; }

private:
    TemporaryFolder const& folder_;
    platform::disk::DiskFiles files_;
};

class EditorSaver final : public Saver {
public:
    explicit EditorSaver(TemporaryFolder const& folder) : Saver(folder) {
        editor::OpenEditor(*editor_, *series_);
        editor::RebuildGrid(*editor_, settings_);
    }

    [[nodiscard]] bool Save(bool isLong) override {
        for (std::int16_t row = 1; row <= Days; ++row) {
            sheet_.SetText(row, editor::FirstNumberColumn, isLong ? "123456.75" : "1.5");
        }
        return !text::Trap(
            [&] { editor::SaveEditData(Path(), *editor_, series_->Master, settings_, Files()); });
    }

private:
    settings::Settings settings_ = settings::DefaultSettings("./");
    std::unique_ptr<quotes::QuoteSeries> series_ = SeriesOf(QuoteLines(Days));
    editor::Sheet sheet_;
    editor::PlainSpread spread_{sheet_};
    std::unique_ptr<editor::Editor> editor_ =
        std::make_unique<editor::Editor>(editor::Editor{sheet_, spread_, {}, 0});
};

class QuoteFileSaver final : public Saver {
public:
    explicit QuoteFileSaver(TemporaryFolder const& folder)
        : Saver(folder),
          settings_(settings::DefaultSettings(folder.Text())) {}

    [[nodiscard]] bool Save(bool isLong) override {
        for (std::int16_t day = 1; day <= Days; ++day) {
            series_->Working[day].Volume = isLong ? 123456.75 : 1.5;
        }
        platform::fake::ScriptedDialogs dialogs;
        dialogs.Texts = {std::string(FileName)};
        quotes::SaveQuoteFileAs(*series_, settings_, Files(), dialogs);
        return dialogs.Messages.empty();
    }

private:
    settings::Settings settings_;
    std::unique_ptr<quotes::QuoteSeries> series_ = SeriesOf(QuoteLines(Days));
};

class ConverterSaver final : public Saver {
public:
    // More lines than are kept back before the first writing, so that there is a half-written destination.
    explicit ConverterSaver(TemporaryFolder const& folder) : Saver(folder) {
        constexpr int Lines = 3000;
        for (bool const isLong : {false, true}) {
            std::string text;
            for (int line = 0; line < Lines; ++line) {
                text += isLong ? "20020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n"
                               : "20020116,2145.0,2150.0,2140.0,2148.0,2500,40000\r\n";
            }
            sources_.Write(SourceName(isLong), text);
        }
    }

    [[nodiscard]] bool Save(bool isLong) override {
        return convert::ConvertFile({sources_.File(SourceName(isLong)), Path()}, convert::CsiLayout(),
                                    Files())
            .empty();
    }

private:
    static std::string_view SourceName(bool isLong) { return isLong ? "long.txt" : "short.txt"; }

    TemporaryFolder sources_;
};

class ProfileSaver final : public Saver {
public:
    explicit ProfileSaver(TemporaryFolder const& folder) : Saver(folder) {}

    [[nodiscard]] bool Save(bool isLong) override {
        platform::disk::DiskProfile profile(Path(), Files());
        settings::Settings settings = settings::DefaultSettings(isLong ? "C:\\Quotes\\" : "D:\\");
        settings.DataSource = isLong ? std::string(200, 'x') : "";
        return !text::Trap([&] { settings::WriteProfile(settings, profile); });
    }
};

// Brings the file up to date, over and over with other figures.
class ImportSaver final : public Saver {
public:
    explicit ImportSaver(TemporaryFolder const& folder) : Saver(folder) {
        for (bool const isLong : {false, true}) {
            std::string& table = isLong ? long_ : short_;
            table = "Date,Open,High,Low,Close,Volume\n";
            for (int day = 0; day < Days; ++day) {
                text::CalendarDay const date =
                    text::CalendarDay{std::chrono::year{2018} / 1 / 1} + std::chrono::days(day);
                table += text::FormatDate(date) + ",401.5,404.25,399.75,403," + (isLong ? "12345675" : "15") +
                         "\n";
            }
        }
    }

    [[nodiscard]] bool Save(bool isLong) override {
        bool isNews = false;
        auto const fault = text::Trap([&] {
            text::TextSource table(isLong ? long_ : short_);
            auto const read = imports::ImportTable(table, {}, {});
            auto const file = Merged(read);
            isNews = file.HasNews();
            if (isNews) {
                Files().Replace(Path(), imports::QuoteText(file.Days));
            }
        });
        return !fault && isNews;
    }

private:
    [[nodiscard]] imports::QuoteFile Merged(imports::Conversion const& read) {
        if (!std::filesystem::exists(Path())) {
            return imports::MakeQuoteFile(read, Days);
        }
        auto const old = Files().OpenForInput(Path());
        return imports::UpdateQuoteFile(*old, read, true, Days);
    }

    std::string short_;
    std::string long_;
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

// What the killed one left.
struct Remains {
    std::string Content; // under the name
    std::optional<std::string> Backup;
    bool HasTemporary = false;
};

// Reads what is there and leaves nothing of it.
Remains TakeRemains(TemporaryFolder const& folder) {
    Remains remains;
    for (auto const& entry : std::filesystem::directory_iterator(folder.Path())) {
        auto const name = entry.path().filename();
        if (name == FileName) {
            remains.Content = folder.Read(FileName);
        } else if (name == BackupName) {
            remains.Backup = folder.Read(BackupName);
        } else {
            remains.HasTemporary = true;
        }
        std::filesystem::remove(entry.path());
    }
    return remains;
}

struct Tally {
    int Short = 0;
    int Long = 0;
    int OnlyBackup = 0;
    int Broken = 0;
    int HalfWay = 0;

    // Kills that all miss the saves, or all come before the first one, show nothing.
    [[nodiscard]] bool ShowsSomething() const { return HalfWay > 0 && Short > 0 && Long > 0; }
};

// The two contents that are saved in turn.
struct Contents {
    std::string Short;
    std::string Long;

    [[nodiscard]] bool Has(std::string const& text) const { return text == Short || text == Long; }
};

void Count(Remains const& remains, Contents const& contents, Tally& tally) {
    bool const isWhole = contents.Has(remains.Content);
    bool const hasBackup = remains.Backup && contents.Has(*remains.Backup);
    tally.Short += remains.Content == contents.Short ? 1 : 0;
    tally.Long += remains.Content == contents.Long ? 1 : 0;
    tally.OnlyBackup += !isWhole && hasBackup ? 1 : 0;
    tally.Broken += (remains.Backup && !hasBackup) || (!isWhole && !hasBackup) ? 1 : 0;
    tally.HalfWay += remains.HasTemporary || !isWhole ? 1 : 0;
}

// 0 for what is no number: no kills show nothing.
unsigned NumberOf(std::string_view argument) {
    unsigned number = 0;
    auto const end = argument.data() + argument.size();
    return std::from_chars(argument.data(), end, number).ptr == end ? number : 0;
}

// What one save of each content leaves; nothing when a save fails.
std::optional<Contents> SaveBoth(Saver& saver, TemporaryFolder const& folder) {
    Contents contents;
    for (bool const isLong : {false, true}) {
        if (!saver.Save(isLong)) {
            return std::nullopt;
        }
        (isLong ? contents.Long : contents.Short) = TakeRemains(folder).Content;
    }
    return contents;
}

bool RunKills(std::string_view kind, unsigned count, std::mt19937& random, TemporaryFolder const& folder,
              Saver& saver) {
    using Microseconds = std::chrono::microseconds;
    constexpr Microseconds UsualLongest(15'000);
    auto const begin = std::chrono::steady_clock::now();
    auto const contents = SaveBoth(saver, folder);
    // Three saves, so that some kills come behind the first one however slow it is.
    auto const longest = std::max(UsualLongest, std::chrono::duration_cast<Microseconds>(
                                                    (std::chrono::steady_clock::now() - begin) * 3 / 2));
    if (!contents || contents->Short == contents->Long) {
        return false;
    }
    std::uniform_int_distribution<int> pause(0, static_cast<int>(longest.count()));
    Tally tally;
    constexpr unsigned MostTimesMore = 10; // where saving is the least of the work, or nearly all of it
    unsigned turn = 0;
    for (; turn < count || (!tally.ShowsSomething() && turn < MostTimesMore * count); ++turn) {
        bool const isLongFirst = turn % 2 == 0;
        folder.Write(FileName, isLongFirst ? contents->Short : contents->Long);
        if (!KillAfter(pause(random), saver, isLongFirst)) {
            std::printf("Turn %u: the save failed by itself.\n", turn);
            return false;
        }
        Count(TakeRemains(folder), *contents, tally);
    }
    std::printf("%.*s, %u kills: %d times the one, %d times the other, %d times only under the name with the "
                "mark, %d times broken; %d kills came half-way through a save.\n",
                static_cast<int>(kind.size()), kind.data(), turn, tally.Short, tally.Long, tally.OnlyBackup,
                tally.Broken, tally.HalfWay);
    return tally.Broken == 0 && tally.ShowsSomething();
}

template <class SaverOfKind>
bool KillSaves(std::string_view kind, unsigned count, std::mt19937& random) {
    TemporaryFolder const folder;
    SaverOfKind saver(folder);
    return RunKills(kind, count, random, folder, saver);
}

int Run(unsigned count, unsigned seed) {
    std::printf("Seed %u\n", seed);
    std::mt19937 random(seed);
    std::array<bool, 5> const good = {
        KillSaves<QuoteFileSaver>("Save As", count, random), KillSaves<EditorSaver>("Editor", count, random),
        KillSaves<ConverterSaver>("Converter", count, random),
        KillSaves<ImportSaver>("Update", count, random), KillSaves<ProfileSaver>("INI file", count, random)};
    return std::ranges::find(good, false) == good.end() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace quorvex::tests

int main(int argc, char** argv) {
    constexpr unsigned UsualCount = 1000;
    unsigned const count = argc > 1 ? quorvex::tests::NumberOf(argv[1]) : UsualCount;
    unsigned const seed = argc > 2 ? quorvex::tests::NumberOf(argv[2]) : std::random_device()();
    return quorvex::tests::Run(count, seed);
}
