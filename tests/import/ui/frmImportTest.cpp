// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/frmImport.h"

#include "import/basTelling.h"
#include "import/ui/ShownImport.h"
#include "import/ui/TablePreview.h"
#include "support/ShortestOf.h"
#include "text/RunTimeError.h"
#include "windows/WindowTest.h"

#include <QAccessible>
#include <QColor>
#include <QElapsedTimer>
#include <QFont>
#include <QLineEdit>
#include <QPalette>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStringList>
#include <QTableView>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using imports::ui::RoleColour;

namespace {

// Within which a window answers.
constexpr std::chrono::milliseconds LongestWait(200);

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
