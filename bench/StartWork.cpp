// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "StartWork.h"

#include "GeneratedQuotes.h"
#include "OffscreenScreens.h"
#include "Ratio.h"
#include "TemporaryQuoteFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <chrono>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace quorvex::bench {

namespace {

constexpr int Rounds = 25;

// Its own screen is smaller than the first window.
constexpr QSize ScreenSize(1920, 1080);

struct StartFigures {
    double Nanoseconds = 0;
    double PeakKilobytes = 0; // 0 where the system does not tell it
};

// Copies of the two executables in a folder with a quote file: the program finds its quotes beside itself.
class StartFolder {
public:
    StartFolder() {
        environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QString::fromUtf8(screens_.Platform()));
    }

    // Copies the executable of this name, which lies beside this one.
    void Add(QString const& name) const {
        if (!QFile::copy(QCoreApplication::applicationDirPath() + u'/' + name, PathOf(name))) {
            throw std::runtime_error("There is no copying " + name.toStdString());
        }
    }

    // Starts the copy and waits for its end.
    [[nodiscard]] StartFigures Measure(QString const& name) const {
        QProcess process;
        process.setProcessEnvironment(environment_);
        auto const start = std::chrono::steady_clock::now().time_since_epoch();
        process.start(PathOf(name), QStringList());
        bool const ended = process.waitForFinished();
        std::istringstream report(process.readAllStandardOutput().toStdString());
        std::chrono::nanoseconds::rep painted = 0;
        StartFigures figures;
        if (!ended || process.exitCode() != 0 || !(report >> painted >> figures.PeakKilobytes)) {
            throw std::runtime_error(name.toStdString() + " did not come to paint its window.\n" +
                                     process.readAllStandardError().toStdString());
        }
        std::chrono::duration<double, std::nano> const taken = std::chrono::nanoseconds(painted) - start;
        figures.Nanoseconds = taken.count();
        return figures;
    }

private:
    [[nodiscard]] QString PathOf(QString const& name) const {
        return QString::fromStdString(quotes_.Folder()) + name;
    }

    OffscreenScreens screens_{{{ScreenSize}}};
    TemporaryQuoteFile quotes_{GeneratedQuoteText()};
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

} // namespace

StartRatios MeasureStarts() {
    QString const program = QStringLiteral("quorvex-bench-start");
    QString const plain = QStringLiteral("quorvex-bench-plain");
    StartFolder const folder;
    folder.Add(program);
    folder.Add(plain);
    std::vector<double> times;
    std::vector<double> peaks;
    for (int round = 0; round < Rounds; ++round) {
        // Neither always comes first.
        bool const programFirst = round % 2 == 0;
        auto first = folder.Measure(programFirst ? program : plain);
        auto second = folder.Measure(programFirst ? plain : program);
        auto const& [ofProgram, ofPlain] = programFirst ? std::tie(first, second) : std::tie(second, first);
        times.push_back(ofProgram.Nanoseconds / ofPlain.Nanoseconds);
        if (ofProgram.PeakKilobytes > 0 && ofPlain.PeakKilobytes > 0) {
            peaks.push_back(ofProgram.PeakKilobytes / ofPlain.PeakKilobytes);
        }
    }
    StartRatios ratios;
    ratios.Time = Median(std::move(times));
    if (!peaks.empty()) {
        ratios.PeakMemory = Median(std::move(peaks));
    }
    return ratios;
}

} // namespace quorvex::bench
