// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/frmImport.h"

#include "import/basTelling.h"
#include "import/ui/ContractBox.h"
#include "import/ui/ShownImport.h"
#include "platform/pictures/QtTexts.h"
#include "support/Messages.h"
#include "support/ShortestOf.h"
#include "windows/WindowTest.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QDate>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QWheelEvent>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <set>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using imports::ui::RoleColour;
using platform::pictures::ToQt;

namespace {

// Within which a window answers.
constexpr std::chrono::milliseconds LongestWait(200);

// The quote file that the companion would make of the table.
std::string QuotesOf(std::string const& table, std::size_t most = 500) {
    text::TextSource source(table);
    return imports::QuoteText(imports::MakeQuoteFile(imports::ImportTable(source, {}, {}), most).Days);
}

// As the standard of the web reckons it, from 1 to 21.
double ContrastOf(QColor const& one, QColor const& other) {
    auto const luminance = [](QColor const& colour) {
        auto const linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.red() / 255.0) + 0.7152 * linear(colour.green() / 255.0) +
               0.0722 * linear(colour.blue() / 255.0);
    };
    auto const [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

class frmImportTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheWindowTellsWhatItTakesTheTableFor() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            QCOMPARE(shown.Window->windowTitle(), u"Quorvex - Import - [wheat.csv]"_s);
            QCOMPARE(shown.Roles(), u"date, open, high, low, close, volume"_s);
            QCOMPARE(shown.PlanLines().size(), 6);
            QVERIFY2(shown.PlanLines().constFirst().startsWith(u"date|1  Date|"),
                     qPrintable(shown.PlanLines().constFirst()));
            QCOMPARE(shown.Chosen(u"cboEncoding"_s), u"automatic: UTF-8"_s);
            QCOMPARE(shown.Chosen(u"cboSeparator"_s), u"automatic: commas"_s);
            QCOMPARE(shown.Chosen(u"cboDates"_s), u"automatic: year, month, day"_s);
            QCOMPARE(shown.Chosen(u"cboDecimal"_s), u"automatic: point"_s);
            QCOMPARE(shown.Result(), u"60 rows, newest first: 60 days, 04/08/24 to 06/28/24.\n"
                                     u"Quote file: 60 days, 04/08/24 to 06/28/24."_s);
            QCOMPARE(shown.Findings(), QStringList(u"60 days without open interest, which is 0"_s));
            QCOMPARE(shown.Find<QLineEdit>(u"txtQuoteFile"_s).text(), u"wheat.txt"_s);
            auto const& table = shown.Find<QTableView>(u"tblTable"_s);
            QCOMPARE(table.model()->rowCount(), 61);
            QCOMPARE(table.model()->index(1, 0).data().toString(), u"2024-06-28"_s);
            QCOMPARE(table.model()->headerData(1, Qt::Horizontal).toString(), u"2  Open"_s);
            QCOMPARE(table.model()->headerData(1, Qt::Vertical).toString(), u"2"_s);
        });
        QCOMPARE(shown.Folder.EntryCount(), 1);
    }

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

    void OpenDatesAreRefusedUntilTheirOrderIsChosen() {
        ShownImport shown;
        std::string table = TableHead;
        for (int day = 1; day <= 12; ++day) { // every one can be a month
            for (int month = 1; month <= 12; month += 3) {
                table += std::to_string(day) + '/' + std::to_string(month) + "/2024,10,12,9,11,5\n";
            }
        }
        auto const imported = shown.Run("wheat.csv", table, [&] {
            QVERIFY2(shown.Result().startsWith(u"Line 2: \"1/1/2024\" and all other dates can be "),
                     qPrintable(shown.Result()));
            QVERIFY(shown.Result().endsWith(u"Choose the order under Dates."));
            QCOMPARE(shown.Chosen(u"cboDates"_s), u"automatic"_s);
            QVERIFY(!shown.Can("cmdImport"));
            QVERIFY(!shown.Can("cmdUpdate"));
            shown.PressKey(Qt::Key_Return);
            QVERIFY(shown.Window->isVisible());
            shown.Choose(u"cboDates"_s, u"day, month, year"_s);
            QVERIFY2(shown.Result().startsWith(u"48 rows, in no order: 48 days, 01/01/24 to 10/12/24."),
                     qPrintable(shown.Result()));
            QVERIFY(shown.Can("cmdImport"));
            shown.Press("cmdImport");
        });
        QVERIFY(imported.has_value());
        QVERIFY(shown.Folder.Read("wheat.txt").starts_with("01/01/24, 10.00, 12.00, 9.00, 11.00, 5, 0\r\n"));
        QVERIFY(shown.Folder.Read("wheat.txt").find("\r\n01/12/24, ") != std::string::npos);
    }

    void AColumnCanBeAnotherOne() {
        ShownImport shown;
        std::string const table = "Date,Open,High,Low,Close,First\n" + TableRows(30);
        shown.Run("wheat.csv", table, [&] {
            QCOMPARE(shown.Roles(), u"date, open, high, low, close, not used"_s);
            shown.Choose(u"cboRole_6"_s, u"volume"_s);
            QCOMPARE(shown.Roles(), u"date, open, high, low, close, volume"_s);
            QVERIFY(shown.PlanLines().contains(u"volume|6  First|chosen"_s));
            shown.Choose(u"cboRole_6"_s, u"open interest"_s);
            QCOMPARE(shown.Roles(), u"date, open, high, low, close, open interest"_s);
            shown.Choose(u"cboRole_5"_s, u"not used"_s);
            QCOMPARE(shown.Result(), u"No column is the close. Choose in the boxes above the table what its "
                                     u"columns are."_s);
            QVERIFY(shown.PlanLines().contains(u"close||no column was found"_s));
            QVERIFY(!shown.Can("cmdImport"));
            shown.Press("cmdAsFound");
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Roles(), u"date, open, high, low, close, not used"_s);
            shown.Choose(u"cboRole_6"_s, u"volume"_s);
            shown.Press("cmdImport");
        });
        QVERIFY(shown.Folder.Read("wheat.txt").ends_with(", 5000, 0\r\n"));
    }

    // The column that had it becomes free.
    void AChosenRoleLeavesTheColumnThatHadIt() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(30), [&] {
            shown.Choose(u"cboRole_6"_s, u"open interest"_s);
            shown.Choose(u"cboRole_2"_s, u"not used"_s);
            shown.Choose(u"cboRole_5"_s, u"open"_s);
            QCOMPARE(shown.Roles(), u"date, not used, high, low, open, open interest"_s);
            shown.Choose(u"cboRole_2"_s, u"close"_s);
            QCOMPARE(shown.Roles(), u"date, close, high, low, open, open interest"_s);
            shown.Press("cmdImport");
        });
        QVERIFY(shown.Folder.Read("wheat.txt").ends_with("1000.50, 1000.75, 1000.00, 1000.25, 0, 5000\r\n"));
    }

    void AWheelOverTheBoxesChangesNoColumn() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(30), [&] {
            auto& box = shown.Find<QComboBox>(u"cboRole_6"_s);
            QPointF const place(5, 5);
            QWheelEvent event(place, box.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&box, &event);
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Roles(), u"date, open, high, low, close, volume"_s);
        });
    }

    void TheSeparatorCanBeChosen() {
        ShownImport shown;
        shown.Run("wheat.csv", TableRows(30, "%Y-%m-%d", ';'), [&] {
            QCOMPARE(shown.Chosen(u"cboSeparator"_s), u"automatic: semicolons"_s);
            shown.Choose(u"cboSeparator"_s, u"tabs"_s);
            QCOMPARE(shown.Result(),
                     u"No row with a date and four prices was found. Choose the separator, if "
                     u"another one is right."_s);
            QCOMPARE(shown.Find<QTableView>(u"tblTable"_s).model()->columnCount(), 1);
            shown.Choose(u"cboSeparator"_s, u"semicolons"_s);
            QVERIFY(shown.Can("cmdImport"));
        });
    }

    void TheDecimalMarkCanBeChosen() {
        ShownImport shown;
        std::string table = "Date;Open;High;Low;Close\n";
        for (int day = 1; day <= 28; ++day) {
            table += "2024-02-" + std::to_string(100 + day).substr(1) + ";1.100;1.300;1.000;1.200\n";
        }
        shown.Run("euro.csv", table, [&] {
            QVERIFY2(shown.Result().endsWith(u"Choose the decimal mark."), qPrintable(shown.Result()));
            QCOMPARE(shown.Chosen(u"cboDecimal"_s), u"automatic"_s);
            shown.Choose(u"cboDecimal"_s, u"comma"_s);
            shown.Press("cmdImport");
        });
        QVERIFY(
            shown.Folder.Read("euro.txt").starts_with("02/01/24, 1100.00, 1300.00, 1000.00, 1200.00, 0, 0"));
    }

    void TheFractionCanBeChosen() {
        ShownImport shown;
        std::string table = "Date,Open,High,Low,Close\n";
        for (int day = 1; day <= 28; ++day) {
            table += "2024-02-" + std::to_string(100 + day).substr(1) + ",118'16,118'24,118'00,118'08\n";
        }
        shown.Run("bonds.csv", table, [&] {
            QVERIFY2(shown.Result().endsWith(u"Choose the fraction."), qPrintable(shown.Result()));
            shown.Choose(u"cboFraction"_s, u"1/32"_s);
            shown.Press("cmdImport");
        });
        QVERIFY(shown.Folder.Read("bonds.txt").starts_with("02/01/24, 118.50, 118.75, 118.00, 118.25, 0, 0"));
    }

    void TheEncodingCanBeChosen() {
        ShownImport shown;
        shown.Run("wheat.csv",
                  "Datum,Er\xC3\xB6"
                  "ffnung,Hoch,Tief,Schluss,St\xC3\xBC"
                  "cke\n" +
                      TableRows(30),
                  [&] {
                      auto const headAt = [&](int column) {
                          return shown.Find<QTableView>(u"tblTable"_s)
                              .model()
                              ->headerData(column, Qt::Horizontal)
                              .toString();
                      };
                      QCOMPARE(headAt(1), u"2  Er\u00F6ffnung"_s);
                      shown.Choose(u"cboEncoding"_s, u"Windows-1252"_s);
                      QCOMPARE(headAt(1), u"2  Er\u00C3\u00B6ffnung"_s);
                  });
    }

    void OfSeveralContractsOneIsChosen() {
        ShownImport shown;
        std::string table = "Symbol,Date,Open,High,Low,Close\n";
        for (int day = 1; day <= 28; ++day) {
            std::string const date = "2024-02-" + std::to_string(100 + day).substr(1);
            table += "ZWH24," + date + ",10,12,9,11\nZWK24," + date + ",20,22,19,21\n";
        }
        auto const imported = shown.Run("wheat.csv", table, [&] {
            QCOMPARE(shown.Result(), u"There are several contracts: ZWH24, ZWK24. Choose the contract."_s);
            shown.Choose(u"cboSymbol"_s, u"ZWK24"_s);
            QCOMPARE(shown.Chosen(u"cboSymbol"_s), u"ZWK24"_s);
            QVERIFY(shown.Findings().contains(u"28 rows of other contracts"_s));
            shown.Press("cmdImport");
        });
        QVERIFY(imported.has_value());
        QVERIFY(shown.Folder.Read("wheat.txt").starts_with("02/01/24, 20.00, 22.00, 19.00, 21.00, 0, 0"));
    }

    static std::string TwoContracts(std::string const& one, std::string const& other) {
        std::string table = "Symbol,Date,Open,High,Low,Close\n";
        for (int day = 1; day <= 28; ++day) {
            std::string const date = ",2024-02-" + std::to_string(100 + day).substr(1);
            table.append(one).append(date).append(",10,12,9,11\n");
            table.append(other).append(date).append(",20,22,19,21\n");
        }
        return table;
    }

    void AContractWithoutANameIsChosen() {
        ShownImport shown;
        shown.Run("wheat.csv", TwoContracts("ZWH24", ""), [&] {
            QCOMPARE(shown.Result(),
                     u"There are several contracts: ZWH24, one without a name. Choose the contract."_s);
            shown.Choose(u"cboSymbol"_s, u"(without a name)"_s);
            QCOMPARE(shown.Chosen(u"cboSymbol"_s), u"(without a name)"_s);
            QVERIFY(shown.Findings().contains(u"28 rows of other contracts"_s));
            shown.Press("cmdImport");
        });
        QVERIFY(shown.Folder.Read("wheat.txt").starts_with("02/01/24, 20.00, 22.00, 19.00, 21.00, 0, 0"));
    }

    // A reading that ends meanwhile must not close it, nor change what an entry stands for.
    void TheListOfContractsStaysAsItIsWhileItIsOpen() {
        ShownImport shown;
        shown.Run("wheat.csv", TwoContracts("ZWH24", "ZWK24"), [&] {
            auto& box = shown.Find<imports::ui::ContractBox>(u"cboSymbol"_s);
            box.showPopup();
            QTRY_VERIFY(box.view()->isVisible());
            box.Offer({"ZWN24"}, "ZWN24");
            QVERIFY(box.view()->isVisible());
            QCOMPARE(box.count(), 3);
            QCOMPARE(box.itemText(2), u"ZWK24"_s);
            QTest::keyClick(box.view(), Qt::Key_Down);
            QTest::keyClick(box.view(), Qt::Key_Return);
            QTRY_VERIFY(!box.view()->isVisible());
            QVERIFY(shown.WaitForEnd());
            QTRY_COMPARE(box.currentText(), u"ZWH24"_s);
            QCOMPARE(box.ContractAt(box.currentIndex()), std::optional<std::string>("ZWH24"));
            QVERIFY(shown.Can("cmdImport"));
            QCOMPARE(box.count(), 3);
        });
    }

    void WhatIsLeftOutIsTold() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + "2024-07-01,10,9,11,10,5\nthe end,,,,,\n" + TableRows(30), [&] {
            QVERIFY2(shown.Result().startsWith(
                         u"31 rows, newest first: 30 days, 05/20/24 to 06/28/24. 1 row is left out."),
                     qPrintable(shown.Result()));
            QCOMPARE(shown.Findings().first(2), QStringList({u"Line 2: the high is below the low, left out"_s,
                                                             u"Line 3: the end (no row)"_s}));
            QAbstractItemModel const& model = *shown.Find<QTableView>(u"tblTable"_s).model();
            QVERIFY(model.index(0, 0).data(Qt::FontRole).value<QFont>().bold());
            QVERIFY(model.index(1, 0).data(Qt::FontRole).value<QFont>().strikeOut());
            QCOMPARE(model.index(1, 3).data(Qt::ToolTipRole).toString(), u"the high is below the low"_s);
            QVERIFY(!model.index(3, 0).data(Qt::FontRole).value<QFont>().strikeOut());
            // What screen readers say of it.
            QString const why = u"left out: the high is below the low"_s;
            QCOMPARE(model.index(0, 1).data(Qt::AccessibleDescriptionRole).toString(), u"heading"_s);
            QCOMPARE(model.index(1, 3).data(Qt::AccessibleDescriptionRole).toString(), why);
            QVERIFY(model.index(3, 0).data(Qt::AccessibleDescriptionRole).isNull());
            QCOMPARE(model.headerData(1, Qt::Vertical, Qt::AccessibleDescriptionRole).toString(), why);
            QCOMPARE(model.headerData(1, Qt::Vertical, Qt::ToolTipRole).toString(),
                     u"the high is below the low"_s);
            QAccessibleInterface* table =
                QAccessible::queryAccessibleInterface(&shown.Find<QTableView>(u"tblTable"_s));
            QCOMPARE(table->tableInterface()->cellAt(1, 0)->text(QAccessible::Description), why);
        });
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

    void AFaultOfAnyCallIsToldAndTheNextReadingWorks() {
        ShownImport shown;
        std::string const all = TableRows(60);
        shown.Folder.Write("wheat.txt", QuotesOf(TableHead + all.substr(all.find("2024-06-26"))));
        shown.Run("wheat.csv", TableHead + all, [&] {
            QString const whole = shown.Result();
            bool hasMet = true;
            for (int number = 1; hasMet; ++number) {
                shown.Failing.FailAt({.Number = number, .Raised = text::Fault::PermissionDenied});
                shown.Press("cmdAsFound");
                QVERIFY(shown.WaitForEnd());
                hasMet = shown.Failing.Failed().has_value();
                QVERIFY2(shown.Result() == whole || shown.Result().endsWith(u"Permission denied."_s),
                         qPrintable(shown.Result()));
                shown.Failing.Recover();
                shown.Press("cmdAsFound");
                QVERIFY(shown.WaitForEnd());
                QCOMPARE(shown.Result(), whole);
                QVERIFY(shown.Can("cmdUpdate"));
            }
        });
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

    void AFileThatCannotBeReadTellsWhy() {
        ShownImport shown;
        shown.RunAtOnce({shown.Folder.File("gone.csv"), nullptr}, [&] {
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Result(), u"File not found."_s);
            QVERIFY(!shown.Can("cmdImport"));
        });
        std::filesystem::create_directory(shown.Folder.File("folder"));
        shown.RunAtOnce({shown.Folder.File("folder"), nullptr}, [&] {
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Result(), u"Permission denied."_s);
        });
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

    void DatesNarrowWhatIsTaken() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            shown.TypeInto("txtFrom", u"04/15/2024"_s);
            shown.TypeInto("txtTo", u"2024-06-14"_s);
            QVERIFY(shown.WaitForEnd());
            QVERIFY2(shown.Result().contains(u"Quote file: 45 days, 04/15/24 to 06/14/24."),
                     qPrintable(shown.Result()));
            QVERIFY(shown.Findings().contains(u"15 rows outside of the days asked for"_s));
            shown.TypeInto("txtTo", u"soon"_s);
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Result(), u"soon is no date such as 01/31/24."_s);
            QVERIFY(!shown.Can("cmdImport"));
            shown.TypeInto("txtTo", u"04/16/24"_s);
            QVERIFY(shown.WaitForEnd());
            QVERIFY(
                shown.Result().endsWith(u"Quote file: A quote file has 25 days at least, and there are 2."));
            QVERIFY(!shown.Can("cmdImport"));
        });
        // The next table begins without them.
        shown.Run("corn.csv", TableHead + TableRows(60),
                  [&] { QVERIFY(shown.Find<QLineEdit>(u"txtTo"_s).text().isEmpty()); });
    }

    void FromBehindToIsRefused() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            shown.TypeInto("txtFrom", u"06/14/24"_s);
            shown.TypeInto("txtTo", u"06/13/24"_s);
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Result(), u"From 06/14/24 lies behind To 06/13/24."_s);
            QVERIFY(!shown.Can("cmdImport"));
            shown.TypeInto("txtTo", u"06/14/24"_s);
            QVERIFY(shown.WaitForEnd());
            QVERIFY2(shown.Result().contains(u"1 day, 06/14/24 to 06/14/24."), qPrintable(shown.Result()));
        });
    }

    // Not at each key: the table may be large, and half a date is none.
    void ADateIsTakenOnceItIsTyped() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            int const before = shown.Files.OpenedInAll;
            shown.TypeInto("txtFrom", u"04/15/2024"_s);
            QCOMPARE(shown.Result(), u"Reading..."_s);
            QVERIFY(!shown.Can("cmdImport"));
            shown.PressKey(Qt::Key_Return);
            QVERIFY(shown.Window->isVisible());
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Files.OpenedInAll - before, 1);
            QVERIFY(shown.Result().contains(u"Quote file: 55 days, 04/15/24 to 06/28/24."));
            shown.TypeInto("txtFrom", u"04/16/2024"_s);
            shown.PressKey(Qt::Key_Tab); // has ended typing
            QTRY_COMPARE(shown.Files.OpenedInAll - before, 2);
            QVERIFY(shown.WaitForEnd());
            QVERIFY(shown.Result().contains(u"Quote file: 54 days, 04/16/24 to 06/28/24."));
            QTest::qWait(500);
            QCOMPARE(shown.Files.OpenedInAll - before, 2);
        });
    }

    void RowsOfWeeksAreTakenOnlyOnRequest() {
        ShownImport shown;
        std::string table = "Date,Open,High,Low,Close\n";
        QDate const first(2023, 1, 6);
        for (int week = 0; week < 30; ++week) {
            table += first.addDays(7 * week).toString(Qt::ISODate).toStdString() + ",10,12,9,11\n";
        }
        shown.Run("wheat.csv", table, [&] {
            QCOMPARE(shown.Result(),
                     u"The rows look weekly, not daily: the median distance of the days is 7. Tick \"Rows of "
                     u"weeks or months, too\" to take each row for a day."_s);
            QVERIFY(!shown.Can("cmdImport"));
            shown.PressKey(Qt::Key_W, Qt::AltModifier);
            QTRY_VERIFY(shown.Can("cmdImport"));
            QVERIFY(shown.Findings().contains(
                u"The rows look weekly, not daily: the median distance of the days is 7"_s));
            shown.Press("cmdAsFound");
            QVERIFY(shown.WaitForEnd());
            QVERIFY(!shown.Find<QCheckBox>(u"chkAnyBars"_s).isChecked());
            QVERIFY(!shown.Can("cmdImport"));
            shown.PressKey(Qt::Key_W, Qt::AltModifier);
            QTRY_VERIFY(shown.Can("cmdImport"));
        });
        shown.Run("corn.csv", table, [&] { QVERIFY(!shown.Find<QCheckBox>(u"chkAnyBars"_s).isChecked()); });
    }

    void PricesThatTheCurrencyFormatRoundsAreTold() {
        ShownImport shown;
        shown.Settings.CurrencyFormat = "####0.0";
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            QVERIFY(shown.Findings().contains(
                u"60 days with prices of more decimals than the Currency Format ####0.0 keeps, the first at "
                u"line 2: the program rounds them"_s));
            shown.Settings.CurrencyFormat = "####0.00";
            shown.Find<QSpinBox>(u"spnDays"_s).setValue(100);
            QCOMPARE(shown.Findings(), QStringList(u"60 days without open interest, which is 0"_s));
        });
    }

    void TheLatestDaysAreTaken() {
        ShownImport shown;
        std::string const table = TableHead + TableRows(700);
        shown.Run("wheat.csv", table, [&] {
            QVERIFY(shown.Result().contains(u"Quote file: 500 days, "));
            QCOMPARE(shown.Find<QTableView>(u"tblTable"_s).model()->rowCount(), 500);
            auto& days = shown.Find<QSpinBox>(u"spnDays"_s);
            QCOMPARE(days.minimum(), quotes::MinQuotes);
            QCOMPARE(days.maximum(), quotes::MaxQuotes);
            days.setValue(100);
            QVERIFY(shown.Result().contains(u"Quote file: 100 days, "));
            shown.Press("cmdImport");
        });
        QCOMPARE(shown.Folder.Read("wheat.txt"), QuotesOf(table, 100));
    }

    void APastedTableIsATextOfItsOwn() {
        ShownImport shown;
        auto const text = std::make_shared<std::string const>(TableHead + TableRows(60));
        auto const imported = shown.RunAtOnce({{}, text}, [&] {
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Window->windowTitle(), u"Quorvex - Import - [pasted table]"_s);
            QCOMPARE(shown.Find<QLineEdit>(u"txtQuoteFile"_s).text(), u"Pasted.txt"_s);
            QVERIFY(!shown.Find<QComboBox>(u"cboEncoding"_s).isEnabled());
            shown.Press("cmdImport");
        });
        QVERIFY(imported.has_value());
        QCOMPARE(shown.Folder.Read("Pasted.txt"), QuotesOf(*text));
        shown.Series.QuoteFileName = "Wheat.txt";
        shown.RunAtOnce({{}, text},
                        [&] { QCOMPARE(shown.Find<QLineEdit>(u"txtQuoteFile"_s).text(), u"Wheat.txt"_s); });
    }

    void CancelAnswersAtOnceAndEndsTheReading_data() {
        QTest::addColumn<int>("way");
        QTest::newRow("Escape") << 0;
        QTest::newRow("Cancel") << 1;
        QTest::newRow("the frame's button") << 2;
    }

    void CancelAnswersAtOnceAndEndsTheReading() {
        QFETCH(int, way);
        QVERIFY(tests::ShortestOf(3, LongestWait, [way] { return TimeOfCancelling(way); }) < LongestWait);
    }

    // How long it takes until the window is gone. What is read then ends soon.
    static std::chrono::nanoseconds TimeOfCancelling(int way) {
        ShownImport shown;
        shown.Folder.Write("big.csv", TableHead + TableRows(30'000));
        shown.Files.IsSlow = true;
        QElapsedTimer timer;
        auto const imported = shown.RunAtOnce({shown.Folder.File("big.csv"), nullptr}, [&] {
            QTRY_VERIFY(shown.Find<QProgressBar>(u"prgImport"_s).value() > 0);
            QCOMPARE(shown.Result(), u"Reading..."_s);
            QVERIFY(!shown.Can("cmdImport"));
            QVERIFY(shown.Find<QPushButton>(u"cmdCancel"_s).isVisible());
            QVERIFY(!shown.Find<QPushButton>(u"cmdClose"_s).isVisible());
            // What it is taken for is there long before its end.
            QTRY_COMPARE(shown.Roles(), u"date, open, high, low, close, volume"_s);
            QVERIFY(shown.IsReading());
            timer.start();
            switch (way) {
            case 0:
                shown.PressKey(Qt::Key_Escape);
                break;
            case 1:
                shown.Press("cmdCancel");
                break;
            default:
                shown.Window->close();
            }
            QVERIFY(!shown.Window->isVisible());
        });
        std::chrono::milliseconds const answered(timer.elapsed());
        [&] {
            QVERIFY(!imported.has_value());
            QTRY_COMPARE(shown.Files.OpenCount.load(), 0);
        }();
        return answered;
    }

    void TheWindowMayGoWhileATableIsRead() {
        ShownImport shown;
        shown.Folder.Write("big.csv", TableHead + TableRows(30'000));
        shown.Files.IsSlow = true;
        shown.RunAtOnce({shown.Folder.File("big.csv"), nullptr},
                        [&] { QTRY_COMPARE(shown.Files.OpenCount.load(), 1); });
        shown.Window.reset();
        QCOMPARE(shown.Files.OpenCount.load(), 0);
        QCoreApplication::processEvents();
    }

    void AVeryWideTableIsShownInPart() {
        ShownImport shown;
        std::string head = "Date,Open,High,Low,Close";
        std::string tail;
        for (int column = 6; column <= 150; ++column) {
            head += ",c" + std::to_string(column);
            tail += ",x";
        }
        std::string table = head + "\n";
        for (int day = 1; day <= 28; ++day) {
            table += "2024-02-" + std::to_string(100 + day).substr(1) + ",10,12,9,11" + tail + "\n";
        }
        shown.Run("wide.csv", table, [&] {
            auto const& view = shown.Find<QTableView>(u"tblTable"_s);
            QCOMPARE(view.model()->columnCount(), 100);
            QVERIFY(shown.Findings().contains(u"Of 150 columns the first 100 are shown"_s));
            auto& last = shown.Find<QComboBox>(u"cboRole_100"_s);
            QVERIFY(!last.visibleRegion().intersects(last.rect()));
            last.setFocus(Qt::TabFocusReason);
            QVERIFY(last.visibleRegion().contains(last.rect().center()));
            QVERIFY(shown.Can("cmdImport"));
        });
    }

    void TextCanBeReadOnEveryColourOfARole() {
        QPalette light;
        light.setColor(QPalette::Base, Qt::white);
        light.setColor(QPalette::Text, Qt::black);
        QPalette dark;
        dark.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
        dark.setColor(QPalette::Text, QColor(0xEF, 0xF0, 0xF1));
        for (QPalette const& palette : {light, dark}) {
            std::set<QRgb> colours;
            for (imports::Role const role : imports::RoleChoices) {
                QColor const colour = RoleColour(role, palette);
                QVERIFY(ContrastOf(colour, palette.color(QPalette::Text)) >= 7);
                QVERIFY2(colours.insert(colour.rgb()).second, "two roles have one colour");
            }
        }
    }

    void TabGoesFromTheNameThroughTheWholeWindow() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            QStringList names;
            for (int step = 0; step < 27; ++step) {
                names.append(QApplication::focusWidget()->objectName());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(
                names.join(u' '),
                u"txtQuoteFile cmdBrowse txtFrom txtTo spnDays cmdImport cmdClose tblPlan cboEncoding "
                u"cboSeparator cboDates cboDecimal cboFraction cboSymbol chkAnyBars cmdAsFound cboRole_1 "
                u"cboRole_2 "
                u"cboRole_3 cboRole_4 cboRole_5 cboRole_6 tblTable lstFindings txtQuoteFile cmdBrowse txtFrom"_s);
        });
    }

    void LettersReachTheBoxes() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            for (auto const& [key, name] :
                 {std::pair(Qt::Key_E, "cboEncoding"), std::pair(Qt::Key_S, "cboSeparator"),
                  std::pair(Qt::Key_D, "cboDates"), std::pair(Qt::Key_M, "cboDecimal"),
                  std::pair(Qt::Key_F, "cboFraction"), std::pair(Qt::Key_O, "cboSymbol"),
                  std::pair(Qt::Key_R, "txtFrom"), std::pair(Qt::Key_T, "txtTo"),
                  std::pair(Qt::Key_L, "spnDays"), std::pair(Qt::Key_N, "txtQuoteFile")}) {
                shown.PressKey(key, Qt::AltModifier);
                QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(name));
            }
            shown.PressKey(Qt::Key_I, Qt::AltModifier);
            QTRY_VERIFY(!shown.Window->isVisible());
        });
        QCOMPARE(shown.Folder.EntryCount(), 2);
    }

    void EveryControlHasANameForScreenReaders() {
        ShownImport shown;
        shown.Run("wheat.csv", TableHead + TableRows(60), [&] {
            for (QWidget const* control : shown.Window->findChildren<QWidget*>(
                     QRegularExpression(u"^(cbo|txtQ|txtF|txtT|spn|tbl|lstF|prg)"_s))) {
                QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
            }
            QCOMPARE(shown.Find<QComboBox>(u"cboRole_3"_s).accessibleName(), u"Column 3  High"_s);
        });
    }
};

template struct ListedWindowTest<frmImportTest>;

} // namespace quorvex::tests

#include "frmImportTest.moc"
