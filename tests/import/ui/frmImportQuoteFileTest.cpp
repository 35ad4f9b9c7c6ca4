// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/ShownImport.h"
#include "import/ui/frmImport.h"
#include "platform/pictures/QtTexts.h"
#include "support/Messages.h"
#include "text/RunTimeError.h"
#include "windows/WindowTest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <filesystem>
#include <string>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;

class frmImportQuoteFileTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void EnterImports() {
        ShownImport shown;
        std::string const table = TableHead + TableRows(60);
        auto const imported = shown.Run("wheat.csv", table, [&] {
            shown.PressKey(Qt::Key_Return);
            QVERIFY(!shown.Window->isVisible());
        });
        QVERIFY(imported.has_value());
        QCOMPARE(imported->Folder, shown.Folder.Text());
        QCOMPARE(imported->Name, std::string("wheat.txt"));
        QCOMPARE(shown.Folder.Read("wheat.txt"), QuotesOf(table));
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void AnExistingFileIsReplacedOnlyOnRequestAndKept() {
        ShownImport shown;
        shown.Folder.Write("wheat.txt", "old\r\n");
        std::string const table = TableHead + TableRows(60);
        shown.Dialogs.Answers = {platform::Answer::No, platform::Answer::Yes};
        auto const imported = shown.Run("wheat.csv", table, [&] {
            shown.Press("cmdImport");
            QVERIFY(shown.Window->isVisible());
            QCOMPARE(shown.Folder.Read("wheat.txt"), std::string("old\r\n"));
            shown.Press("cmdImport");
            QVERIFY(!shown.Window->isVisible());
        });
        QVERIFY(imported.has_value());
        QCOMPARE(shown.Folder.Read("wheat.txt"), QuotesOf(table));
        QCOMPARE(shown.Folder.Read("wheat.txt~"), std::string("old\r\n"));
        for (platform::Message const& message : shown.Dialogs.Messages) {
            QCOMPARE(Describe(message), std::string("Import|exclamation|Yes No|wheat.txt already exists.\n"
                                                    "Do you want to replace it?"));
        }
        QCOMPARE(shown.Dialogs.Messages.size(), 2U);
    }

    void AFileThatIsThereIsSuggestedAsItIsSpelled() {
        ShownImport shown;
        shown.Folder.Write("Wheat.TXT", "old\r\n");
        shown.Run("wheat.csv", TableHead + TableRows(60),
                  [&] { QCOMPARE(shown.Find<QLineEdit>(u"txtQuoteFile"_s).text(), u"Wheat.TXT"_s); });
    }

    void TheTableItselfIsNotSuggested() {
        ShownImport shown;
        shown.Run("wheat.txt", TableHead + TableRows(60),
                  [&] { QCOMPARE(shown.Find<QLineEdit>(u"txtQuoteFile"_s).text(), u"wheat quotes.txt"_s); });
    }

    void AnUpdateKeepsWhatHasChangedUnlessItIsToBeReplaced_data() {
        QTest::addColumn<bool>("replaces");
        QTest::newRow("kept") << false;
        QTest::newRow("replaced") << true;
    }

    void AnUpdateKeepsWhatHasChangedUnlessItIsToBeReplaced() {
        QFETCH(bool, replaces);
        ShownImport shown;
        std::string const all = TableRows(60);
        std::string const newest = all.substr(0, all.find("2024-06-26"));
        std::string const before = all.substr(newest.size());
        std::string const old = QuotesOf(TableHead + before);
        shown.Folder.Write("wheat.txt", old);
        std::string changed = all;
        changed.replace(changed.find("998.50"), 6, "998.25"); // the close of the newest day there is
        auto const imported = shown.Run("wheat.csv", TableHead + changed, [&] {
            QVERIFY2(shown.Result().endsWith(
                         u"\nUpdate of wheat.txt: 2 days appended, 57 there already, 1 changed and "
                         u"kept as in the file."),
                     qPrintable(shown.Result()));
            QCOMPARE(shown.Findings().constFirst(),
                     u"06/26/24: 998.25, 998.75, 998, 998.5, 5002, 0 in the file, 998.25, 998.75, 998, "
                     u"998.25, 5002, 0 at line 4"_s);
            auto& box = shown.Find<QCheckBox>(u"chkReplace"_s);
            QVERIFY(box.isEnabled());
            QVERIFY(!box.isChecked());
            if (replaces) {
                shown.PressKey(Qt::Key_P, Qt::AltModifier);
                QTRY_VERIFY(box.isChecked());
                QVERIFY(shown.Result().endsWith(u"1 changed and replaced."));
            }
            QVERIFY(shown.Find<QPushButton>(u"cmdUpdate"_s).isDefault());
            shown.Find<QLineEdit>(u"txtQuoteFile"_s).setFocus();
            shown.PressKey(Qt::Key_Return);
            QVERIFY(!shown.Window->isVisible());
        });
        QVERIFY(imported.has_value());
        QCOMPARE(imported->Name, std::string("wheat.txt"));
        QCOMPARE(shown.Folder.Read("wheat.txt"), QuotesOf(TableHead + (replaces ? changed : all)));
        QCOMPARE(shown.Folder.Read("wheat.txt~"), old);
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void WithoutNewsThereIsNothingToUpdate() {
        ShownImport shown;
        std::string const table = TableHead + TableRows(60);
        shown.Folder.Write("wheat.txt", QuotesOf(table));
        shown.Run("wheat.csv", table, [&] {
            QVERIFY(shown.Result().endsWith(u"0 days appended, 60 there already: nothing is new."));
            QVERIFY(!shown.Can("cmdUpdate"));
            QVERIFY(!shown.Find<QCheckBox>(u"chkReplace"_s).isEnabled());
            QVERIFY(shown.Find<QPushButton>(u"cmdImport"_s).isDefault());
        });
    }

    void AQuoteFileThatContradictsItselfIsNotUpdated() {
        ShownImport shown;
        shown.Folder.Write("wheat.txt", "01/02/24,10,12,9,11,0,0\r\n01/02/24,10,12,9,12,0,0\r\n");
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            QVERIFY(shown.Result().endsWith(u"Update of wheat.txt: The quote file has 01/02/24 twice."));
            QVERIFY(!shown.Can("cmdUpdate"));
            QVERIFY(shown.Can("cmdImport"));
        });
    }

    void AFileTooLongForQuotesIsNotUpdated() {
        ShownImport shown;
        shown.Folder.Write("wheat.txt", std::string(4'194'305, ' '));
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            QVERIFY(shown.Result().endsWith(
                u"wheat.txt cannot be brought up to date: it is too long for a quote file."));
            QVERIFY(!shown.Can("cmdUpdate"));
        });
    }

    void TheNameOfAnotherFileOffersItsUpdate() {
        ShownImport shown;
        std::string const all = TableRows(60);
        shown.Folder.Write("other.txt", QuotesOf(TableHead + all.substr(all.find("2024-06-26"))));
        shown.Run("wheat.csv", TableHead + all, [&] {
            QVERIFY(!shown.Can("cmdUpdate"));
            shown.TypeInto("txtQuoteFile", u"other.txt"_s);
            QVERIFY(shown.Can("cmdUpdate"));
            QVERIFY(shown.Result().endsWith(u"Update of other.txt: 2 days appended, 58 there already."));
            shown.TypeInto("txtQuoteFile", u""_s);
            QVERIFY(!shown.Can("cmdUpdate"));
            QVERIFY(!shown.Can("cmdImport"));
        });
    }

    void ANameThatNoQuoteFileCanHaveIsRefused() {
        ShownImport shown;
        auto const imported = shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            shown.TypeInto("txtQuoteFile", u"wheat.dat"_s);
            shown.Press("cmdImport");
            QVERIFY(shown.Window->isVisible());
        });
        QVERIFY(!imported.has_value());
        QVERIFY(IsOnlyMessage(shown.Dialogs.Messages, "Invalid data file name", "Quorvex",
                              platform::Icon::Critical));
        QCOMPARE(shown.Folder.EntryCount(), 1);
    }

    void AFaultOfWritingIsShownAndTheWindowStays() {
        ShownImport shown;
        auto const imported = shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            shown.TypeInto("txtQuoteFile", u"gone/wheat.txt"_s);
            shown.Press("cmdImport");
            QTRY_COMPARE(shown.Answers.Shown().size(), 2);
            QVERIFY(shown.Window->isVisible());
        });
        QVERIFY(!imported.has_value());
        QVERIFY(shown.Answers.Shown().contains(OkMessage(u"Quorvex"_s, u"none"_s, u"Path not found"_s)));
    }

    void AFaultOfAnUpdateIsToldAndLeavesTheFile_data() {
        QTest::addColumn<int>("fault");
        QTest::addColumn<QString>("told");
        QTest::newRow("full") << static_cast<int>(text::Fault::DiskFull) << u"Disk full"_s;
        QTest::newRow("gone") << static_cast<int>(text::Fault::FileNotFound) << u"File not found"_s;
    }

    void AFaultOfAnUpdateIsToldAndLeavesTheFile() {
        QFETCH(int, fault);
        QFETCH(QString, told);
        ShownImport shown;
        std::string const all = TableRows(60);
        std::string const old = QuotesOf(TableHead + all.substr(all.find("2024-06-26")));
        bool hasMet = true;
        for (int number = 1; hasMet; ++number) {
            shown.Folder.Write("wheat.txt", old);
            std::filesystem::remove(shown.Folder.File("wheat.txt~"));
            auto const imported = shown.Run("wheat.csv", TableHead + all, [&] {
                shown.Failing.FailAt({.Number = number, .Raised = static_cast<text::Fault>(fault)});
                shown.Press("cmdUpdate");
                hasMet = shown.Failing.Failed().has_value();
                shown.Failing.Recover();
                bool const isTold =
                    shown.Answers.TakeShown().contains(OkMessage(u"Quorvex"_s, u"none"_s, told));
                QCOMPARE(shown.Window->isVisible(), isTold);
                if (!isTold) {
                    return; // asked again whether the file is there, it was brought up to date
                }
                QCOMPARE(shown.Folder.Read("wheat.txt"), old);
                if (!shown.Can("cmdUpdate")) { // the file seemed to be gone
                    shown.TypeInto("txtQuoteFile", u"wheat.txt"_s);
                }
                shown.Press("cmdUpdate");
            });
            QVERIFY(imported.has_value());
            QCOMPARE(shown.Folder.Read("wheat.txt"), QuotesOf(TableHead + all));
            QCOMPARE(shown.Folder.Read("wheat.txt~"), old);
        }
    }

    void AnUpdateCanBeTriedAgainBehindAFault() {
        ShownImport shown;
        std::string const all = TableRows(60);
        std::string const old = QuotesOf(TableHead + all.substr(all.find("2024-06-26")));
        shown.Folder.Write("wheat.txt", old);
        auto const imported = shown.Run("wheat.csv", TableHead + all, [&] {
            QString const why = u"\nwheat.txt cannot be brought up to date: Permission denied."_s;
            shown.Failing.FailAt({.Raised = text::Fault::PermissionDenied, .Lasts = true});
            shown.Find<QSpinBox>(u"spnDays"_s).setValue(400); // looks at the file again
            QVERIFY2(shown.Result().endsWith(why), qPrintable(shown.Result()));
            QVERIFY(shown.Can("cmdUpdate"));
            QVERIFY(shown.Find<QPushButton>(u"cmdImport"_s).isDefault());
            shown.Press("cmdUpdate");
            QVERIFY(shown.Answers.TakeShown().contains(
                OkMessage(u"Quorvex"_s, u"none"_s, u"Permission denied"_s)));
            QVERIFY(shown.Result().endsWith(why));
            QVERIFY(shown.Can("cmdUpdate"));
            QCOMPARE(shown.Folder.Read("wheat.txt"), old);
            shown.Failing.Recover();
            shown.Press("cmdUpdate");
            QVERIFY(!shown.Window->isVisible());
        });
        QVERIFY(imported.has_value());
        QCOMPARE(shown.Folder.Read("wheat.txt"), QuotesOf(TableHead + all));
        QCOMPARE(shown.Folder.Read("wheat.txt~"), old);
    }

    void AnotherFolderIsNamedByItsWholePath() {
        ShownImport shown;
        std::filesystem::create_directory(shown.Folder.File("other"));
        std::string const path = shown.Folder.File("other/w.txt");
        auto const imported = shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            shown.Dialogs.Paths = {"", shown.Folder.File("inside.txt"), path};
            shown.Press("cmdBrowse");
            QCOMPARE(shown.Find<QLineEdit>(u"txtQuoteFile"_s).text(), u"wheat.txt"_s);
            shown.Press("cmdBrowse");
            QCOMPARE(shown.Find<QLineEdit>(u"txtQuoteFile"_s).text(), u"inside.txt"_s);
            shown.Press("cmdBrowse");
            QCOMPARE(shown.Find<QLineEdit>(u"txtQuoteFile"_s).text(), ToQt(path));
            shown.Press("cmdImport");
        });
        QCOMPARE(shown.Dialogs.SaveQuestions.front().Title, std::string("Quote File"));
        QCOMPARE(shown.Dialogs.SaveQuestions.front().Folder, shown.Folder.Text());
        QCOMPARE(shown.Dialogs.SaveQuestions.front().Name, std::string("wheat.txt"));
        QVERIFY(imported.has_value());
        QCOMPARE(imported->Folder, shown.Folder.Text() + "other/");
        QCOMPARE(imported->Name, std::string("w.txt"));
        QVERIFY(std::filesystem::exists(path));
    }
};

template struct ListedWindowTest<frmImportQuoteFileTest>;

} // namespace quorvex::tests

#include "frmImportQuoteFileTest.moc"
