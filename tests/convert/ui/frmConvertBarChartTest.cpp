// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/frmConvertBarChart.h"

#include "convert/ui/ShownConverter.h"
#include "windows/WindowTest.h"

#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

struct BarchartWindow : ConverterSurroundings {
    convert::ui::frmConvertBarChart Window{nullptr, Files, Dialogs, Printing, [this] { ++HelpCount; }};

    BarchartWindow() { ShowWindow(Window); }

    QRadioButton& Option(char letter) {
        return *Window.findChild<QRadioButton*>(u"optFormat_"_s + QLatin1Char(letter));
    }

    void Convert(std::string const& source) {
        Folder.Write("in.txt", source);
        TypeInto(Window, "txtSrceFileName", Path("in.txt"));
        TypeInto(Window, "txtDestFileName", Path("out.txt"));
        ClickButton(Window, u"cmdConvert"_s);
    }
};

} // namespace

class frmConvertBarChartTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void CarriesItsCaptions() {
        BarchartWindow barchart;
        QCOMPARE(barchart.Window.objectName(), u"frmConvertBarChart"_s);
        QCOMPARE(barchart.Window.windowTitle(), u"Data Conversion Utility - Barchart Files"_s);
        QCOMPARE(barchart.Window.findChild<QLabel*>(u"lblTop"_s)->text(),
                 platform::pictures::ToQt(convert::BarchartTexts().Top));
        QCOMPARE(barchart.Window.findChild<QGroupBox*>(u"Frame1"_s)->title(),
                 u"Select Barchart Source File Format"_s);
        QCOMPARE(barchart.Window.findChild<QGroupBox*>(u"Frame2"_s)->title(), u"Barchart Source File Name"_s);
        for (auto const& option : convert::BarchartOptions()) {
            QRadioButton const& button = barchart.Option(option.Letter);
            QCOMPARE(button.text(), platform::pictures::ToQt(option.Caption));
            QVERIFY(QFontInfo(button.font()).fixedPitch());
        }
        QVERIFY(barchart.Option('C').isChecked());
        QCOMPARE(ClippedControls(barchart.Window).join(u' '), QString());
    }

    void ConvertsInTheFormatThatIsSelected() {
        BarchartWindow barchart;
        QTest::mouseClick(&barchart.Option('N'), Qt::LeftButton, {}, QPoint(10, 8));
        QVERIFY(barchart.Option('N').isChecked());
        QVERIFY(!barchart.Option('C').isChecked());
        barchart.Convert("SPH2,020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n");
        QCOMPARE(barchart.Folder.Read("out.txt"),
                 std::string("01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000\r\n"));
        QCOMPARE(barchart.TakeMessages(),
                 QStringList(ConverterBox(u"information"_s, u"Data file "_s + barchart.Path("out.txt") +
                                                                u" created successfully"_s)));
        barchart.Option('N').setFocus();
        QTest::keyClick(&barchart.Option('N'), Qt::Key_Up); // G
        barchart.Convert("SP,32002,020115,1,2,3,4,5,6\r\n");
        QCOMPARE(barchart.Folder.Read("out.txt"), std::string("01/15/02, 1, 2, 3, 4, 5, 6\r\n"));
    }

    void ConvertsInFormatYWhenNoneIsSelected() {
        BarchartWindow barchart;
        barchart.Option('C').setAutoExclusive(false);
        barchart.Option('C').setChecked(false);
        barchart.Convert("SPH2,020115,1,2,3,4\r\n");
        QCOMPARE(barchart.Folder.Read("out.txt"), std::string("01/15/02, 1, 2, 3, 4, 0, 0\r\n"));
    }

    void TellsOfTheWrongCountBeforeTheInvalidRecord() {
        BarchartWindow barchart;
        barchart.Convert("SP,32002,01/15/2002,1,2,3,4,5\r\n");
        QCOMPARE(barchart.TakeMessages(),
                 QStringList({ConverterBox(u"exclamation"_s, u"Wrong number of fields!"_s),
                              ConverterBox(u"exclamation"_s, u"Invalid record at line 1 in\nfile "_s +
                                                                 barchart.Path("in.txt"))}));
        QCOMPARE(barchart.Folder.EntryCount(), 1);
    }

    void AFaultOfAnyCallIsToldAndTheNextTimeWorks() {
        ConverterSurroundings around;
        convert::ui::frmConvertBarChart window(nullptr, around.Failing, around.Dialogs, around.Printing,
                                               [] {});
        window.findChild<QRadioButton*>(u"optFormat_N"_s)->setChecked(true);
        LetEveryCallFail(around, window, "SPH2,020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n");
    }

    void HelpOpensTheDocument() {
        BarchartWindow barchart;
        ChooseByKeys(barchart.Window, u"h"_s);
        QCOMPARE(barchart.HelpCount, 1);
        QCOMPARE(barchart.TakeMessages(), QStringList());
    }

    void TabFollowsTheReadingOrder() {
        BarchartWindow barchart;
        barchart.Option('C').setFocus();
        QCOMPARE(TabStops(barchart.Window, 7),
                 QStringList({u"optFormat_C"_s, u"txtSrceFileName"_s, u"cmdBrowse"_s, u"txtDestFileName"_s,
                              u"cmdConvert"_s, u"txtContents"_s, u"optFormat_C"_s}));
    }
};

template struct ListedWindowTest<frmConvertBarChartTest>;

} // namespace quorvex::tests

#include "frmConvertBarChartTest.moc"
