// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/frmConvertCustom.h"

#include "convert/ui/ShownConverter.h"
#include "windows/WindowTest.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

struct CustomWindow : ConverterSurroundings {
    convert::ui::frmConvertCustom Window{nullptr, Files, Dialogs, Printing, [this] { ++HelpCount; }};

    CustomWindow() { ShowWindow(Window); }

    QComboBox& List(QString const& name) { return *Window.findChild<QComboBox*>(name); }

    // Chooses with the arrow keys.
    void Choose(QString const& name, QString const& text) {
        QComboBox& list = List(name);
        list.setFocus();
        while (list.currentIndex() > 0) {
            QTest::keyClick(&list, Qt::Key_Up);
        }
        while (list.currentText() != text && list.currentIndex() + 1 < list.count()) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
        QCOMPARE(list.currentText(), text);
    }

    // Types over what stands in the list, without leaving it.
    void TypeOver(QString const& name, QString const& text) {
        QComboBox& list = List(name);
        list.setFocus();
        list.lineEdit()->selectAll();
        QTest::keyClicks(&list, text);
        QCOMPARE(list.currentText(), text);
    }

    // The rows that are shown, as "caption text".
    QStringList Rows() {
        QStringList rows;
        for (int row = 1; row <= 10; ++row) {
            auto const* caption = Window.findChild<QLabel*>(u"txtField_%1"_s.arg(row));
            QComboBox const& list = List(u"cboField_%1"_s.arg(row));
            if (caption->isVisible() != list.isVisible()) {
                rows.append(u"half a row"_s);
            }
            if (list.isVisible()) {
                rows.append(caption->text() + u' ' + list.currentText());
            }
        }
        return rows;
    }

    void Convert(std::string const& source) {
        Folder.Write("in.txt", source);
        TypeInto(Window, "txtSrceFileName", Path("in.txt"));
        TypeInto(Window, "txtDestFileName", Path("out.txt"));
        ClickButton(Window, u"cmdConvert"_s);
    }
};

QStringList OffersOf(QComboBox const& list) {
    QStringList offers;
    for (int index = 0; index < list.count(); ++index) {
        offers.append(list.itemText(index));
    }
    return offers;
}

} // namespace

class frmConvertCustomTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void CarriesItsCaptionsAndFirstTexts() {
        CustomWindow custom;
        QCOMPARE(custom.Window.objectName(), u"frmConvertCustom"_s);
        QCOMPARE(custom.Window.windowTitle(), u"Data Conversion Utility - Custom Files"_s);
        QCOMPARE(custom.Window.findChild<QLabel*>(u"lblTop"_s)->text(),
                 u"Required Format:  Date (mm/dd/yy), Open, High, Low, Close, Volume (opt.), Open Interest "
                 "(opt.)  <CR>"_s);
        QStringList frames;
        for (auto const* frame : custom.Window.findChildren<QGroupBox*>()) {
            frames.append(frame->title());
        }
        frames.sort();
        QCOMPARE(frames, QStringList({u"Custom Source File Name"_s, u"Source Field Names and Order"_s,
                                      u"Source File Format"_s, u"Veltrano Destination File Name"_s}));
        QCOMPARE(custom.List(u"cboNumFields"_s).currentText(), u"7"_s);
        QCOMPARE(OffersOf(custom.List(u"cboNumFields"_s)).join(u' '), u"1 2 3 4 5 6 7 8 9 10"_s);
        QCOMPARE(custom.List(u"cboFieldDelimiter"_s).currentText(), u"comma"_s);
        QCOMPARE(OffersOf(custom.List(u"cboFieldDelimiter"_s)).join(u' '), u"comma tab space bar"_s);
        QCOMPARE(custom.List(u"cboDateFormat"_s).currentText(), u"mm/dd/yy"_s);
        QCOMPARE(OffersOf(custom.List(u"cboDateFormat"_s)).join(u' '),
                 u"mm/dd/yy mm/dd/yyyy yy/mm/dd yyyy/mm/dd yymmdd yyyymmdd"_s);
        for (int row = 1; row <= 10; ++row) {
            QCOMPARE(OffersOf(custom.List(u"cboField_%1"_s.arg(row))).join(u','),
                     u"not used,date,open,high,low,close,volume,open interest"_s);
        }
        QCOMPARE(ClippedControls(custom.Window).join(u' '), QString());
    }

    void ShowsAsManyRowsAsAreChosen() {
        CustomWindow custom;
        QCOMPARE(custom.Rows(),
                 QStringList({u"Field 1 date"_s, u"Field 2 open"_s, u"Field 3 high"_s, u"Field 4 low"_s,
                              u"Field 5 close"_s, u"Field 6 volume"_s, u"Field 7 open interest"_s}));
        QSize const size = custom.Window.size();
        custom.Choose(u"cboNumFields"_s, u"10"_s);
        QCOMPARE(custom.Rows().size(), 10);
        QCOMPARE(custom.Rows().last(), u"Field 10 not used"_s);
        custom.Choose(u"cboNumFields"_s, u"1"_s);
        QCOMPARE(custom.Rows(), QStringList(u"Field 1 date"_s));
        QCOMPARE(custom.Window.size(), size);
    }

    void ShowsAsManyRowsAsAreTyped() {
        CustomWindow custom;
        custom.TypeOver(u"cboNumFields"_s, u"3"_s);
        QCOMPARE(custom.Rows(), QStringList({u"Field 1 date"_s, u"Field 2 open"_s, u"Field 3 high"_s}));
        custom.TypeOver(u"cboNumFields"_s, u"10"_s);
        QCOMPARE(custom.Rows().size(), 10);
        custom.TypeOver(u"cboNumFields"_s, u"none"_s);
        QCOMPARE(custom.Rows(), QStringList());
        QCOMPARE(custom.List(u"cboNumFields"_s).count(), 10); // nothing is added to what is offered
    }

    void TellsOfANumberThatIsTooLargeWhenItsEntryIsLeft() {
        CustomWindow custom;
        custom.TypeOver(u"cboNumFields"_s, u"99999"_s);
        QCoreApplication::processEvents();
        QCOMPARE(custom.Rows().size(), 10); // as 9999 showed
        QCOMPARE(custom.TakeMessages(), QStringList());
        QTest::keyClick(custom.Window.focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
        QCOMPARE(custom.Rows().size(), 10);
        QCOMPARE(custom.TakeMessages(), QStringList(ConverterBox(u"exclamation"_s, u"Overflow"_s)));
        QCOMPARE(custom.Answers.Shown(), QStringList());
    }

    void TellsNothingOfANumberThatIsCorrectedInTime() {
        CustomWindow custom;
        custom.TypeOver(u"cboNumFields"_s, u"99999"_s);
        custom.Choose(u"cboNumFields"_s, u"2"_s);
        QTest::keyClick(custom.Window.focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
        QCOMPARE(custom.Rows().size(), 2);
        QCOMPARE(custom.TakeMessages(), QStringList());
    }

    void TellsOfANumberThatIsTooLargeOnceWhenEnterConverts() {
        CustomWindow custom;
        TypeInto(custom.Window, "txtSrceFileName", u"a"_s);
        TypeInto(custom.Window, "txtDestFileName", u"b"_s);
        QCoreApplication::processEvents();
        custom.TypeOver(u"cboNumFields"_s, u"99999"_s);
        QTest::keyClick(custom.Window.focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(custom.TakeMessages(), QStringList(ConverterBox(u"exclamation"_s, u"Overflow"_s)));
    }

    void TellsNothingOfANumberOnceTheWindowIsClosed() {
        CustomWindow custom;
        custom.TypeOver(u"cboNumFields"_s, u"99999"_s);
        custom.Window.close();
        QCoreApplication::processEvents();
        QCOMPARE(custom.TakeMessages(), QStringList());
    }

    void ConvertsWhatIsTyped() {
        CustomWindow custom;
        custom.TypeOver(u"cboNumFields"_s, u"6"_s);
        custom.TypeOver(u"cboFieldDelimiter"_s, u";"_s);
        custom.TypeOver(u"cboDateFormat"_s, u"yyyymmdd"_s);
        custom.TypeOver(u"cboField_6"_s, u"remark"_s);
        custom.Convert("20020115,1,2,3,4,x\r\n");
        QCOMPARE(custom.Folder.Read("out.txt"), std::string("01/15/02, 1, 2, 3, 4, 0, 0\r\n"));
    }

    void NamesWhatHasTheFocus() {
        CustomWindow custom;
        for (auto const& [name, spoken] :
             {std::pair(u"cboNumFields"_s, u"No. of Fields"_s),
              std::pair(u"cboFieldDelimiter"_s, u"Field Delimiter"_s),
              std::pair(u"cboDateFormat"_s, u"Date Format"_s), std::pair(u"cboField_10"_s, u"Field 10"_s)}) {
            QCOMPARE(custom.List(name).accessibleName(), spoken);
            QCOMPARE(custom.List(name).lineEdit()->accessibleName(), spoken);
        }
    }

    void ConvertsAsDescribed() {
        CustomWindow custom;
        custom.Choose(u"cboNumFields"_s, u"6"_s);
        custom.Choose(u"cboDateFormat"_s, u"yyyy/mm/dd"_s);
        custom.Choose(u"cboField_1"_s, u"close"_s);
        custom.Choose(u"cboField_5"_s, u"date"_s);
        custom.Choose(u"cboField_6"_s, u"not used"_s);
        custom.Convert("4,1,2,3,2002/01/15,x\r\n");
        QCOMPARE(custom.Folder.Read("out.txt"), std::string("01/15/02, 1, 2, 3, 4, 0, 0\r\n"));
        QCOMPARE(custom.TakeMessages(),
                 QStringList(ConverterBox(u"information"_s, u"Data file "_s + custom.Path("out.txt") +
                                                                u" created successfully"_s)));
    }

    void RefusesADescriptionBeforeAnyFileIsOpened() {
        CustomWindow custom;
        custom.Folder.Write("out.txt", "older");
        custom.Choose(u"cboField_6"_s, u"close"_s);
        custom.Convert("01/15/02,1,2,3,4,5,6\r\n");
        QCOMPARE(custom.TakeMessages(),
                 QStringList(ConverterBox(u"exclamation"_s, u"Missing or duplicate close field"_s)));
        QCOMPARE(custom.Folder.Read("out.txt"), std::string("older"));
    }

    void ChecksTheNamesBeforeTheDescription() {
        CustomWindow custom;
        custom.Choose(u"cboField_6"_s, u"close"_s);
        ClickButton(custom.Window, u"cmdConvert"_s);
        QCOMPARE(custom.TakeMessages(),
                 QStringList(u"Data Conversion|exclamation|Invalid source file name"_s));
    }

    void SeparatesAtCommasWhateverTheDelimiter() {
        CustomWindow custom;
        custom.Choose(u"cboFieldDelimiter"_s, u"tab"_s);
        custom.Convert("01/15/02\t1\t2\t3\t4\t5\t6\r\n");
        QCOMPARE(custom.TakeMessages(),
                 QStringList(ConverterBox(u"exclamation"_s,
                                          u"Invalid record at line 1 in\nfile "_s + custom.Path("in.txt"))));
        QCOMPARE(custom.Folder.EntryCount(), 1);
    }

    void BrowseOffersCommaSeparatedValuesFirst() {
        CustomWindow custom;
        BrowseTo(custom, custom.Window, u""_s);
        QCOMPARE(custom.Dialogs.FileQuestions.size(), 1U);
        QCOMPARE(custom.Dialogs.FileQuestions[0].Name, std::string("*.csv"));
        QVERIFY(
            custom.Dialogs.FileQuestions[0].Filter.starts_with("Comma Separated Values (*.csv)|*.csv|Text"));
    }

    void AFaultOfAnyCallIsToldAndTheNextTimeWorks() {
        ConverterSurroundings around;
        convert::ui::frmConvertCustom window(nullptr, around.Failing, around.Dialogs, around.Printing, [] {});
        LetEveryCallFail(around, window, "01/15/02,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n");
    }

    void HelpOpensTheDocument() {
        CustomWindow custom;
        ChooseByKeys(custom.Window, u"h"_s);
        QCOMPARE(custom.HelpCount, 1);
    }

    void TabFollowsTheReadingOrder() {
        CustomWindow custom;
        custom.List(u"cboNumFields"_s).setFocus();
        QStringList expected = {u"cboNumFields"_s, u"cboFieldDelimiter"_s, u"cboDateFormat"_s};
        for (int row = 1; row <= 7; ++row) {
            expected.append(u"cboField_%1"_s.arg(row));
        }
        expected.append({u"txtSrceFileName"_s, u"cmdBrowse"_s, u"txtDestFileName"_s, u"cmdConvert"_s,
                         u"txtContents"_s, u"cboNumFields"_s});
        QCOMPARE(TabStops(custom.Window, static_cast<int>(expected.size())), expected);
    }
};

template struct ListedWindowTest<frmConvertCustomTest>;

} // namespace quorvex::tests

#include "frmConvertCustomTest.moc"
