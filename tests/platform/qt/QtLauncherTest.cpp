// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/QtLauncher.h"

#include "platform/pictures/QtTexts.h"
#include "support/TemporaryFolder.h"
#include "windows/WindowTest.h"

#include <filesystem>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;

namespace {

// A folder that is the whole search path. Programs in it write their name and arguments to the file
// "started".
class SearchPath {
public:
    SearchPath() : before_(qgetenv("PATH")) {
        qputenv("PATH", QByteArray::fromStdString(folder_.Path().string()));
    }

    SearchPath(SearchPath const&) = delete;
    SearchPath& operator=(SearchPath const&) = delete;

    ~SearchPath() { qputenv("PATH", before_); }

    void Install(std::string const& name) const {
        std::string const log = folder_.File("started");
        folder_.Write(name, "#!/bin/sh\necho " + name + " \"$@\" > '" + log + ".part'\n/bin/mv '" + log +
                                ".part' '" + log + "'\n");
        std::filesystem::permissions(folder_.File(name), std::filesystem::perms::owner_all);
    }

    [[nodiscard]] QString Started() const {
        return std::filesystem::exists(folder_.File("started")) ? ToQt(folder_.Read("started")).trimmed()
                                                                : QString();
    }

private:
    TemporaryFolder folder_;
    QByteArray before_;
};

QString FaultOf(std::string_view program) {
    try {
        platform::qt::QtLauncher().Start(program);
    } catch (text::RunTimeError const& error) {
        return ToQt(error.Description());
    }
    return {};
}

} // namespace

class QtLauncherTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheControlPanelIsThePrinterSettingsOfTheDesktop_data() {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QString>("started");
        QTest::newRow("GNOME") << QByteArray("gnome-control-center") << u"gnome-control-center printers"_s;
        QTest::newRow("Plasma 6") << QByteArray("systemsettings") << u"systemsettings kcm_printer_manager"_s;
        QTest::newRow("Plasma 5") << QByteArray("systemsettings5")
                                  << u"systemsettings5 kcm_printer_manager"_s;
        QTest::newRow("others") << QByteArray("system-config-printer") << u"system-config-printer"_s;
    }

    void TheControlPanelIsThePrinterSettingsOfTheDesktop() {
        QFETCH(QByteArray, program);
        QFETCH(QString, started);
        SearchPath const path;
        path.Install(program.toStdString());
        QCOMPARE(FaultOf("CONTROL.EXE"), QString());
        QTRY_COMPARE(path.Started(), started);
    }

    void TheBestOfSeveralIsStarted() {
        SearchPath const path;
        path.Install("system-config-printer");
        path.Install("gnome-control-center");
        QCOMPARE(FaultOf("CONTROL.EXE"), QString());
        QTRY_COMPARE(path.Started(), u"gnome-control-center printers"_s);
    }

    void AnotherProgramIsStartedByItsName() {
        SearchPath const path;
        path.Install("anything");
        QCOMPARE(FaultOf("anything"), QString());
        QTRY_COMPARE(path.Started(), u"anything"_s);
    }

    void WhereThereIsNoneTheFaultSaysSo() {
        SearchPath const path;
        QCOMPARE(FaultOf("CONTROL.EXE"), u"File not found"_s);
        QCOMPARE(FaultOf("anything"), u"File not found"_s);
    }
};

template struct ListedWindowTest<QtLauncherTest>;

} // namespace quorvex::tests

#include "QtLauncherTest.moc"
