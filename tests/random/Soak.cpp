// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A user who does a day's work over and over without ever leaving the program: opens quotes, fits cycles,
// looks at the forecast, edits and saves, prints, closes. Neither the memory nor the open files of the
// process may grow, and Qt may not warn. For Linux.
//
//     test_Soak [ROUNDS]

#include "app/Program.h"
#include "app/ui/basResources.h"
#include "app/ui/frmMain.h"
#include "platform/Registry.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/DiskProfile.h"
#include "platform/fake/RecordingLauncher.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtMousePointer.h"
#include "platform/qt/QtPrintQueue.h"
#include "random/Journal.h"
#include "settings/basProfiles.h"
#include "support/Golden.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"
#include "windows/WindowTest.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace quorvex::tests {

namespace {

constexpr auto QuoteFile = "q250.txt";

// Ends the program: no exception may leave what is done within a window of Qt.
void Require(bool isSo, std::string const& what) {
    if (!isSo) {
        std::cerr << what << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
}

// What the process has of the system.
struct Holdings {
    std::int64_t Memory = 0; // in bytes, resident
    std::int64_t Handles = 0;
};

Holdings CountHoldings() {
    std::ifstream file("/proc/self/statm");
    std::int64_t all = 0;
    std::int64_t resident = 0;
    Require(static_cast<bool>(file >> all >> resident), "The memory cannot be told.");
    namespace fs = std::filesystem;
    auto const handles = std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    return {resident * sysconf(_SC_PAGESIZE), handles};
}

class Worker {
public:
    Worker() {
        folder_.Write(QuoteFile, GoldenFile(std::string("quotes/") + QuoteFile));
        files_.EnterFolder(folder_.Text());
        window_.show();
        window_.activateWindow();
        Require(QTest::qWaitForWindowActive(&window_), "The main window does not come up.");
    }

    void DoADaysWork(int round) {
        answers_.Choose(QString::fromLatin1(QuoteFile));
        Choose(window_, "mnuFileOpen");
        Require(program_->Quotes.WorkingCount == Days, "The quotes are not open.");
        Choose(window_, "mnuParametersAutomate3");
        Require(program_->Cycles.Cycles[3].Period > 0, "No cycles were fitted.");
        answers_.Next([](QWidget& forecast) { forecast.close(); });
        Choose(window_, "mnuForecast");
        answers_.Next([&](QWidget& editor) { Edit(editor, round); });
        Choose(window_, "mnuFileEdit");
        Choose(window_, "mnuFilePrint");
        RemovePrinted();
        Choose(window_, "mnuFileClose");
        Require(answers_.IsDone(), "A window did not come.");
        for (QString const& shown : answers_.TakeShown()) {
            Require(!shown.contains(QStringLiteral("unexpected")), shown.toStdString());
        }
    }

private:
    static constexpr int Days = 250;
    static constexpr int CloseColumn = 4; // from zero

    static void Choose(QWidget& window, char const* menuItem) {
        window.findChild<QAction*>(QLatin1String(menuItem))->trigger();
        QCoreApplication::processEvents();
    }

    void Edit(QWidget& editor, int round) {
        auto* grid = editor.findChild<QAbstractItemView*>(QStringLiteral("Spread"));
        grid->setCurrentIndex(grid->model()->index(0, CloseColumn));
        std::string const price = "394." + std::to_string(10 + round % 90); // between the day's low and high
        for (char const digit : price) {
            QTest::keyClick(QApplication::focusWidget(), digit);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        Choose(editor, "mnuFileSave");
        QString const status = editor.findChild<QLabel*>(QStringLiteral("StatusLine"))->text();
        Require(status.contains(QStringLiteral("saved to")), status.toStdString());
        std::string const file = folder_.Read(QuoteFile);
        std::string const line = file.substr(0, file.find('\r'));
        Require(line.find(", " + price + ", ") != std::string::npos, price + " was typed, and not: " + line);
        editor.close();
    }

    void RemovePrinted() {
        int count = 0;
        for (auto const& entry : std::filesystem::directory_iterator(folder_.Path())) {
            if (entry.path().extension() == ".pdf") {
                std::filesystem::remove(entry.path());
                ++count;
            }
        }
        Require(count == 2, std::to_string(count) + " documents were printed."); // see docs/behaviour.md
    }

    TemporaryFolder folder_;
    platform::disk::DiskFiles files_;
    platform::fake::RecordingLauncher launcher_;
    platform::NoRegistry registry_;
    platform::disk::DiskProfile profile_{settings::ProfileFileName(folder_.Text(), "Quorvex"), files_};
    platform::qt::QtPrintQueue printing_{
        [this] { return folder_.Text(); },
        [this](auto const& message) { platform::qt::ShowMessageBox(window_, message); }};
    platform::qt::QtMousePointer pointer_;
    std::unique_ptr<app::Program> program_ = std::make_unique<app::Program>();
    app::ui::frmMain window_{*program_, folder_.Text(),
                             app::Host{profile_, files_, launcher_, registry_, printing_, pointer_}};
    ModalAnswers answers_;
};

std::int64_t MeanMemory(std::vector<Holdings> const& held, std::size_t from, std::size_t to) {
    std::int64_t sum = 0;
    for (std::size_t round = from; round < to; ++round) {
        sum += held[round].Memory;
    }
    return sum / static_cast<std::int64_t>(to - from);
}

std::string Kilobytes(std::int64_t bytes) {
    return std::to_string(bytes / 1024) + " KiB";
}

// The first fifth of the rounds fills what is kept for good, such as fonts and the pools of the allocator.
bool IsFlat(std::vector<Holdings> const& held) {
    constexpr std::int64_t Noise = 1 << 20; // bytes
    constexpr std::size_t Parts = 10;
    std::size_t const part = held.size() / Parts;
    for (std::size_t number = 0; number < Parts; ++number) {
        std::size_t const end = number + 1 == Parts ? held.size() : (number + 1) * part;
        std::cout << "to round " + std::to_string(end) + ": " +
                         Kilobytes(MeanMemory(held, number * part, end)) + ", " +
                         std::to_string(held[end - 1].Handles) + " handles\n";
    }
    std::int64_t const growth =
        MeanMemory(held, held.size() - part, held.size()) - MeanMemory(held, 2 * part, 3 * part);
    std::cout << "grown by " + Kilobytes(growth) + '\n';
    return growth <= Noise && held.back().Handles == held[2 * part].Handles;
}

int Run(int argc, char** argv) {
    EnterHostileLocale();
    QApplication const application(argc, argv);
    int rounds = 50;
    if (argc > 1) {
        std::string_view const text(argv[1]);
        bool const isNumber =
            std::from_chars(text.data(), text.data() + text.size(), rounds).ptr == text.data() + text.size();
        Require(isNumber && rounds >= 20, "At least 20 rounds are wanted.");
    }
    AbortOnWarnings();
    PrepareApplication();
    app::ui::LoadResources();
    Worker worker;
    std::vector<Holdings> held;
    for (int round = 1; round <= rounds; ++round) {
        worker.DoADaysWork(round);
        held.push_back(CountHoldings());
    }
    return IsFlat(held) ? EXIT_SUCCESS : EXIT_FAILURE;
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
