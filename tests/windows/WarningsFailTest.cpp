// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/WindowTest.h"

#include <QProcess>
#include <cstring>

namespace quorvex::tests {

// Run by the test below, in a process of its own.
class PlantedWarning final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void Warns() { qWarning("planted"); }
};

class PlantedNotice final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void Notes() { qWarning("This plugin does not support flying"); }
};

class WarningsFailTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void AWarningFailsTheTest() {
        QCOMPARE(Run(QStringLiteral("planted-warning")), 1);
        QVERIFY(output_.contains("FAIL!  : quorvex::tests::PlantedWarning::Warns()"));
        QVERIFY(output_.contains("planted"));
    }

    void ANoticeOfThePlatformDoesNot() {
        QCOMPARE(Run(QStringLiteral("planted-notice")), 0);
        QVERIFY(output_.contains("PASS   : quorvex::tests::PlantedNotice::Notes()"));
    }

private:
    int Run(QString const& argument) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QCoreApplication::applicationFilePath(), {argument});
        process.waitForFinished();
        output_ = process.readAll();
        return process.exitCode();
    }

    QByteArray output_;
};

} // namespace quorvex::tests

int main(int argc, char** argv) {
    using namespace quorvex::tests;
    if (argc == 2 && std::strcmp(argv[1], "planted-warning") == 0) {
        return RunWindowTest<PlantedWarning>(1, argv);
    }
    if (argc == 2 && std::strcmp(argv[1], "planted-notice") == 0) {
        return RunWindowTest<PlantedNotice>(1, argv);
    }
    return RunWindowTest<WarningsFailTest>(argc, argv);
}

#include "WarningsFailTest.moc"
