// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A user who clicks, types and resizes at random. The program must neither crash nor hang nor make Qt warn,
// it must show and write what is expected, and it must keep to its folder.
//
//     test_RandomUse [--seed N] [--actions N] [--trace]

#include "app/Program.h"
#include "app/ui/basResources.h"
#include "app/ui/frmMain.h"
#include "platform/Registry.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/DiskProfile.h"
#include "platform/fake/RecordingLauncher.h"
#include "platform/fake/RecordingPrinter.h"
#include "random/Journal.h"
#include "random/RandomUser.h"
#include "random/Watchdog.h"
#include "settings/basProfiles.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"
#include "windows/WindowTest.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPrinterInfo>
#include <filesystem>
#include <iostream>
#include <memory>
#include <set>
#include <stdexcept>

namespace quorvex::tests {

namespace {

struct Options {
    std::uint64_t Seed = 1;
    int Actions = 10'000;
    bool IsTraced = false;
};

void Require(bool isNumber) {
    if (!isNumber) {
        throw std::invalid_argument("--seed and --actions want whole numbers");
    }
}

Options ReadOptions(QStringList const& arguments) {
    QCommandLineParser parser;
    QCommandLineOption const seed(QStringLiteral("seed"), QString(), QStringLiteral("N"),
                                  QStringLiteral("1"));
    QCommandLineOption const actions(QStringLiteral("actions"), QString(), QStringLiteral("N"),
                                     QStringLiteral("10000"));
    QCommandLineOption const trace(QStringLiteral("trace"));
    parser.addOptions({seed, actions, trace});
    parser.process(arguments);
    bool isValid = false;
    Options options;
    options.Seed = parser.value(seed).toULongLong(&isValid);
    Require(isValid);
    options.Actions = parser.value(actions).toInt(&isValid);
    Require(isValid);
    options.IsTraced = parser.isSet(trace);
    return options;
}

// The folder of the program and, beside it, one that stands for all that belongs to the user.
class Surroundings {
public:
    Surroundings() {
        namespace fs = std::filesystem;
        for (char const* name : {"program", "home", "home/run"}) {
            fs::create_directory(folder_.File(name));
        }
        fs::permissions(folder_.File("home/run"), fs::perms::owner_all);
        QByteArray const home = QByteArray::fromStdString(folder_.File("home"));
        for (char const* variable : {"HOME", "USERPROFILE", "TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                     "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
            qputenv(variable, home);
        }
        qputenv("XDG_RUNTIME_DIR", home + "/run");
    }

    [[nodiscard]] std::string ProgramFolder() const { return folder_.File("program") + "/"; }

    void AddFile(std::string const& name, std::string const& content) const {
        folder_.Write("program/" + name, content);
    }

    // The names of what lies beside the program's folder.
    [[nodiscard]] std::set<std::string> Entries() const {
        std::set<std::string> names;
        for (auto const& entry : std::filesystem::directory_iterator(folder_.Path())) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

private:
    TemporaryFolder folder_;
};

void FillFolder(Surroundings const& surroundings, platform::Files& files) {
    app::ui::FillProgramFolder(surroundings.ProgramFolder(), files);
    surroundings.AddFile("Empty.txt", "");
    surroundings.AddFile("Few.txt", QuoteLines(5));
    surroundings.AddFile("Rising.txt", QuoteLines(60));
    surroundings.AddFile("Damaged.txt", QuoteLines(40) + "01/02/03,\xFF\xFE,1e400,-1\n" + QuoteLines(40));
    surroundings.AddFile("Damaged.dat", "50, 1e300, x\n,,,,\n-7");
}

void UseWindows(Surroundings const& surroundings, platform::Files& files, RandomUser& user) {
    platform::fake::RecordingLauncher launcher;
    platform::NoRegistry const registry;
    while (!user.IsDone()) {
        auto const program = std::make_unique<app::Program>();
        platform::fake::RecordingPrintQueue printing;
        platform::disk::DiskProfile profile(
            settings::ProfileFileName(surroundings.ProgramFolder(), "Quorvex"), files);
        app::ui::frmMain window(*program, surroundings.ProgramFolder(),
                                {profile, files, launcher, registry, printing, printing});
        window.show();
        Expectations expectations(Journal::OfThisRun(), *program, window, files);
        user.Use(window, expectations);
        QApplication::exec();
    }
}

int Run(int argc, char** argv) {
    EnterHostileLocale();
    Surroundings const surroundings;
    QApplication const application(argc, argv);
    Options const options = ReadOptions(QApplication::arguments());
    if (!QPrinterInfo::defaultPrinter().isNull()) {
        throw std::runtime_error("This wants a system without a printer.");
    }
    Journal& journal = Journal::OfThisRun();
    journal.Begin(options.Seed, options.IsTraced);
    AbortOnWarnings();
    PrepareApplication();
    app::ui::LoadResources();
    platform::disk::DiskFiles files;
    FillFolder(surroundings, files);
    files.EnterFolder(surroundings.ProgramFolder());
    auto const before = surroundings.Entries();

    Watchdog const watchdog(journal, std::chrono::seconds(60));
    RandomUser user(options.Seed, options.Actions, journal);
    UseWindows(surroundings, files, user);

    journal.PrintSummary();
    if (surroundings.Entries() != before) {
        throw std::runtime_error("Something was written outside of the program's folder.");
    }
    return EXIT_SUCCESS;
}

} // namespace

} // namespace quorvex::tests

int main(int argc, char** argv) {
    try {
        return quorvex::tests::Run(argc, argv);
    } catch (std::exception const& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
