// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/ContractBox.h"
#include "import/ui/ShownImport.h"
#include "import/ui/frmImport.h"
#include "quotes/QuoteSeries.h"
#include "windows/WindowTest.h"

#include <QCheckBox>
#include <QDate>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableView>
#include <QWheelEvent>
#include <optional>
#include <string>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

class frmImportChoicesTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

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
};

template struct ListedWindowTest<frmImportChoicesTest>;

} // namespace quorvex::tests

#include "frmImportChoicesTest.moc"
