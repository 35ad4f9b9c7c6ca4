// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/ProgramPlace.h"

#include "app/ui/basResources.h"
#include "platform/disk/DiskFiles.h"
#include "platform/pictures/QtTexts.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"
#include "windows/WindowTest.h"

#include <QDir>
#include <filesystem>
#include <fstream>
#ifdef Q_OS_UNIX
#include "support/AsOrdinaryUser.h"
#endif

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;
using platform::qt::PlaceOf;

class ProgramPlaceTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void AFolderThatCanBeWrittenIsTheProgramsPlace() {
        TemporaryFolder folder;
        auto const place = PlaceOf(folder.File("Quorvex.exe"), folder.File("own"), {});
        QCOMPARE(place.Folder, folder.Text());
        QCOMPARE(place.ExecutableName, std::string("Quorvex"));
        QCOMPARE(folder.EntryCount(), 0); // trying left nothing behind
    }

    void OnlyTheExtensionIsTakenOffTheExecutablesName() {
        TemporaryFolder folder;
        auto const nameOf = [&](char const* file) {
            return PlaceOf(folder.File(file), {}, {}).ExecutableName;
        };
        QCOMPARE(nameOf("Quorvex-2.0.exe"), std::string("Quorvex-2.0"));
        QCOMPARE(nameOf("Quorvex-2.0"), std::string("Quorvex-2.0"));
        QCOMPARE(nameOf("QUORVEX.EXE"), std::string("QUORVEX"));
    }

    void AnInstallationThatCanBeWrittenGivesWayToo() {
        TemporaryFolder prefix;
        TemporaryFolder home;
        std::filesystem::create_directories(prefix.File("bin"));
        std::filesystem::create_directories(prefix.File("share/applications"));
        auto const place = [&] {
            return PlaceOf(prefix.File("bin/Quorvex"), home.File("Quorvex"), [](std::string const& folder) {
                std::ofstream(folder + "sample.txt") << "quotes";
            });
        };
        QCOMPARE(ToQt(place().Folder), QDir::toNativeSeparators(ToQt(prefix.File("bin/"))));
        prefix.Write("share/applications/Quorvex.desktop", "");
        QCOMPARE(ToQt(place().Folder), QDir::toNativeSeparators(ToQt(home.File("Quorvex/"))));
        QVERIFY(std::filesystem::exists(home.File("Quorvex/sample.txt")));
    }

#ifdef Q_OS_UNIX
    void AFolderThatCannotBeWrittenGivesWayToOneOfTheUsersOwn() {
        TemporaryFolder installed;
        TemporaryFolder home;
        std::filesystem::permissions(installed.Path(), std::filesystem::perms(0555));
        std::filesystem::permissions(home.Path(), std::filesystem::perms(0777));
        AsOrdinaryUser const user;
        int fillings = 0;
        auto const place = [&] {
            return PlaceOf(installed.File("Quorvex"), home.File("data/Quorvex"),
                           [&](std::string const& folder) {
                               ++fillings;
                               std::ofstream(folder + "sample.txt") << "quotes";
                           });
        };
        auto const first = place();
        QCOMPARE(first.Folder, home.File("data/Quorvex/"));
        QCOMPARE(first.ExecutableName, std::string("Quorvex"));
        QVERIFY(std::filesystem::exists(home.File("data/Quorvex/sample.txt")));
        QCOMPARE(place().Folder, first.Folder);
        QCOMPARE(fillings, 1);
    }

    void AFirstStartThatFailsIsTriedAgain() {
        TemporaryFolder installed;
        TemporaryFolder home;
        std::filesystem::permissions(installed.Path(), std::filesystem::perms(0555));
        std::filesystem::permissions(home.Path(), std::filesystem::perms(0777));
        AsOrdinaryUser const user;
        auto const place = [&](bool isFull) {
            return PlaceOf(installed.File("Quorvex"), home.File("Quorvex"), [&](std::string const& folder) {
                std::ofstream(folder + "first.txt") << "quotes";
                if (isFull) {
                    throw text::RunTimeError(text::Fault::DiskFull);
                }
            });
        };
        QVERIFY_THROWS_EXCEPTION(text::RunTimeError, static_cast<void>(place(true)));
        QVERIFY(!std::filesystem::exists(home.File("Quorvex")));
        QCOMPARE(place(false).Folder, home.File("Quorvex/"));
        QVERIFY(std::filesystem::exists(home.File("Quorvex/first.txt")));
        QCOMPARE(home.EntryCount(), 1);
    }

    void AFolderThatCannotBeMadeIsAFault() {
        TemporaryFolder installed;
        installed.Write("file", "");
        std::filesystem::permissions(installed.Path(), std::filesystem::perms(0555));
        AsOrdinaryUser const user;
        QString description;
        try {
            static_cast<void>(
                PlaceOf(installed.File("Quorvex"), installed.File("file/own"), [](auto const&) {}));
        } catch (text::RunTimeError const& error) {
            description = ToQt(error.Description());
        }
        QCOMPARE(description, u"Path not found"_s);
    }
#endif

    void TheRunningProgramStandsInItsOwnFolder() {
        auto const place = platform::qt::FindProgramPlace({});
        QCOMPARE(ToQt(place.Folder), QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + u'/'));
        QCOMPARE(place.ExecutableName, std::string("test_windows"));
    }

    void ANewFolderGetsTheSamplesAndTheHelpDocuments() {
        app::ui::LoadResources();
        TemporaryFolder folder;
        platform::disk::DiskFiles files;
        app::ui::FillProgramFolder(folder.Text(), files);
        QVERIFY(!files.List(folder.Text(), "*.txt").empty());
        QVERIFY(!files.List(folder.Text(), "*.dat").empty());
        QCOMPARE(files.List(folder.Text(), "*.rtf").size(), 5U);
        for (QString const& carried : {u":/samples/"_s, u":/help/"_s}) {
            for (QString const& name : QDir(carried).entryList(QDir::Files)) {
                QFile file(carried + name);
                QVERIFY(file.open(QIODevice::ReadOnly));
                QCOMPARE(folder.Read(name.toStdString()), file.readAll().toStdString());
            }
        }
    }
};

template struct ListedWindowTest<ProgramPlaceTest>;

} // namespace quorvex::tests

#include "ProgramPlaceTest.moc"
