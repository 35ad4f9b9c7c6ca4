// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/frmConvertCSI.h"

#include "convert/basConvertCSI.h"
#include "convert/ui/ShownConverter.h"
#include "windows/WindowTest.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

constexpr auto CsiLines = "20020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n"
                          "20020116,1,2,3,4,5,6\r\n";

struct CsiWindow : ConverterSurroundings {
    convert::ui::frmConvertCSI Window{nullptr, Files, Dialogs, Printing};

    CsiWindow() { ShowWindow(Window); }
};

} // namespace

class frmConvertCSITest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void CarriesItsCaptionsAndFirstTexts() {
        CsiWindow csi;
        QCOMPARE(csi.Window.objectName(), u"frmConvertCSI"_s);
        QCOMPARE(csi.Window.windowTitle(), u"Data Conversion Utility - Commodity Systems, Inc."_s);
        QCOMPARE(csi.Window.findChild<QLabel*>(u"lblTop"_s)->text(),
                 platform::pictures::ToQt(convert::CsiTexts().Top));
        QCOMPARE(csi.Window.findChild<QGroupBox*>(u"Frame2"_s)->title(), u"CSI Source File Name"_s);
        QCOMPARE(csi.Window.findChild<QGroupBox*>(u"Frame3"_s)->title(), u"Veltrano Destination File Name"_s);
        QCOMPARE(csi.Window.findChild<QPushButton*>(u"cmdBrowse"_s)->text(), u"Browse"_s);
        QCOMPARE(csi.Window.findChild<QPushButton*>(u"cmdConvert"_s)->text(), u"Convert"_s);
        QCOMPARE(TextOf(csi.Window, "txtSrceFileName"), u""_s);
        QCOMPARE(TextOf(csi.Window, "txtDestFileName"), u"C:\\Veltrano\\Data\\*.txt"_s);
        auto const* contents = csi.Window.findChild<QPlainTextEdit*>(u"txtContents"_s);
        QVERIFY(contents->isReadOnly());
        QCOMPARE(contents->font().family(), u"Courier New"_s);
        QStringList captions;
        for (char const* name : {"mnuFilePrint", "mnuFileExit", "mnuHelp"}) {
            captions.append(csi.Window.findChild<QAction*>(QLatin1String(name))->text());
        }
        QCOMPARE(captions, QStringList({u"&Print"_s, u"E&xit"_s, u"&Help"_s}));
        QCOMPARE(csi.Window.findChild<QMenu*>(u"mnuFile"_s)->title(), u"&File"_s);
        QCOMPARE(ClippedControls(csi.Window).join(u' '), QString());
    }

    void ConvertsWhatIsTyped() {
        CsiWindow csi;
        csi.Folder.Write("in.txt", CsiLines);
        TypeInto(csi.Window, "txtSrceFileName", csi.Path("in.txt"));
        TypeInto(csi.Window, "txtDestFileName", csi.Path("out.txt"));
        ClickButton(csi.Window, u"cmdConvert"_s);
        QCOMPARE(csi.TakeMessages(),
                 QStringList(ConverterBox(u"information"_s, u"Data file "_s + csi.Path("out.txt") +
                                                                u" created successfully"_s)));
        QCOMPARE(csi.Folder.Read("out.txt"),
                 std::string("01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000\r\n"
                             "01/16/02, 1, 2, 3, 4, 5, 6\r\n"));
        QCOMPARE(PreviewOf(csi.Window), u""_s); // a typed name shows nothing
        QVERIFY(csi.Window.isVisible());
    }

    void EnterConverts() {
        CsiWindow csi;
        csi.Folder.Write("in.txt", CsiLines);
        TypeInto(csi.Window, "txtSrceFileName", csi.Path("in.txt"));
        TypeInto(csi.Window, "txtDestFileName", csi.Path("out.txt"));
        QTest::keyClick(csi.Window.focusWidget(), Qt::Key_Return);
        QCOMPARE(csi.TakeMessages().size(), 1);
        QVERIFY(!csi.Folder.Read("out.txt").empty());
    }

    void RefusesNamesAndBadRecords() {
        CsiWindow csi;
        ClickButton(csi.Window, u"cmdConvert"_s);
        QCOMPARE(csi.TakeMessages(), QStringList(u"Data Conversion|exclamation|Invalid source file name"_s));
        csi.Folder.Write("in.txt", "20020115,1,2,3,4,5,6\r\n20020116,1,2\r\n");
        TypeInto(csi.Window, "txtSrceFileName", csi.Path("in.txt"));
        ClickButton(csi.Window, u"cmdConvert"_s);
        QCOMPARE(csi.TakeMessages(),
                 QStringList(u"Data Conversion|exclamation|Invalid destination file name"_s));
        TypeInto(csi.Window, "txtDestFileName", csi.Path("out.txt"));
        ClickButton(csi.Window, u"cmdConvert"_s);
        QCOMPARE(csi.TakeMessages(),
                 QStringList(ConverterBox(u"exclamation"_s,
                                          u"Invalid record at line 2 in\nfile "_s + csi.Path("in.txt"))));
        QCOMPARE(csi.Folder.EntryCount(), 1);
    }

    void BrowseShowsTheSource() {
        CsiWindow csi;
        csi.Folder.Write("in.txt", CsiLines);
        BrowseTo(csi, csi.Window, csi.Path("in.txt"));
        QCOMPARE(TextOf(csi.Window, "txtSrceFileName"), csi.Path("in.txt"));
        QCOMPARE(PreviewOf(csi.Window), QString::fromLatin1(CsiLines).remove(u'\r'));
        QCOMPARE(csi.TakeMessages(), QStringList());
    }

    void BytesThatAreNoUtf8AreShownAsWindows1252() {
        CsiWindow csi;
        csi.Folder.Write("in.txt", "Caf\xE9 \x80 Caf\xC3\xA9\r\n");
        BrowseTo(csi, csi.Window, csi.Path("in.txt"));
        QCOMPARE(PreviewOf(csi.Window), u"Caf\u00E9 \u20AC Caf\u00E9\n"_s);
    }

    void BrowseOffersTextFilesFirst() {
        CsiWindow csi;
        BrowseTo(csi, csi.Window, u""_s);
        QCOMPARE(csi.Dialogs.FileQuestions.size(), 1U);
        QCOMPARE(csi.Dialogs.FileQuestions[0].Name, std::string("*.txt"));
        QVERIFY(csi.Dialogs.FileQuestions[0].Filter.starts_with("Text Files (*.txt)|*.txt|Comma"));
    }

    void CancellingBrowseEmptiesNameAndPreview() {
        CsiWindow csi;
        csi.Folder.Write("in.txt", CsiLines);
        BrowseTo(csi, csi.Window, csi.Path("in.txt"));
        BrowseTo(csi, csi.Window, u""_s);
        QCOMPARE(TextOf(csi.Window, "txtSrceFileName"), u""_s);
        QCOMPARE(PreviewOf(csi.Window), u""_s);
        QCOMPARE(csi.TakeMessages(), QStringList());
    }

    void BrowseRefusesLargerFilesSilently() {
        CsiWindow csi;
        csi.Folder.Write("fits.txt", std::string(65'000, 'x'));
        csi.Folder.Write("large.txt", std::string(65'001, 'x'));
        BrowseTo(csi, csi.Window, csi.Path("fits.txt"));
        QCOMPARE(PreviewOf(csi.Window).size(), 65'001); // with the line end
        BrowseTo(csi, csi.Window, csi.Path("large.txt"));
        QCOMPARE(TextOf(csi.Window, "txtSrceFileName"), u""_s);
        QCOMPARE(PreviewOf(csi.Window), u""_s);
        QCOMPARE(csi.TakeMessages(), QStringList());
    }

    void BrowseFindsNothingInAnEmptyFile() {
        CsiWindow csi;
        csi.Folder.Write("empty.txt", "");
        BrowseTo(csi, csi.Window, csi.Path("empty.txt"));
        QCOMPARE(TextOf(csi.Window, "txtSrceFileName"), csi.Path("empty.txt"));
        QCOMPARE(csi.TakeMessages(), QStringList(ConverterBox(u"none"_s, u"Source file not found"_s)));
    }

    void PrintPrintsTheNameAndThePreview() {
        CsiWindow csi;
        csi.Folder.Write("in.txt", CsiLines);
        BrowseTo(csi, csi.Window, csi.Path("in.txt"));
        ChooseByKeys(csi.Window, u"fp"_s);
        QCOMPARE(csi.Printing.Documents.size(), 1U);
        auto const& document = csi.Printing.Documents[0];
        QVERIFY(document.IsEnded);
        QCOMPARE(document.Name, std::string("in.txt"));
        QStringList texts;
        for (auto const& text : document.Pages.at(0).Texts) {
            texts.append(platform::pictures::ToQt(text.Text));
        }
        QCOMPARE(texts.takeLast(), u"20020116,1,2,3,4,5,6"_s);
        QCOMPARE(texts.takeLast(), u"20020115,1145.00,1150.00,1140.00,1148.00,25000,400000"_s);
        QCOMPARE(texts.join(u""_s), csi.Path("in.txt")); // which may need more than one line
    }

    void AFaultOfAnyCallIsToldAndTheNextTimeWorks() {
        ConverterSurroundings around;
        convert::ui::frmConvertCSI window(nullptr, around.Failing, around.Dialogs, around.Printing);
        LetEveryCallFail(around, window, "20020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n");
    }

    void HelpIsAMessage() {
        CsiWindow csi;
        ChooseByKeys(csi.Window, u"h"_s);
        QCOMPARE(csi.TakeMessages(),
                 QStringList(ConverterBox(u"information"_s,
                                          platform::pictures::ToQt(convert::CsiHelpMessage().Text))));
    }

    void ExitAndEscapeCloseTheWindowAndItsTextsStay() {
        ConverterSurroundings around;
        QWidget main;
        main.show();
        QVERIFY(QTest::qWaitForWindowActive(&main));
        convert::ui::frmConvertCSI csi(&main, around.Files, around.Dialogs, around.Printing);
        for (bool const byMenu : {true, false}) {
            around.Answers.Next([byMenu](QWidget& window) {
                QVERIFY(window.isModal());
                QCOMPARE(window.focusWidget()->objectName(), u"txtSrceFileName"_s);
                QTest::keyClick(window.focusWidget(), Qt::Key_End);
                QTest::keyClicks(window.focusWidget(), u"x"_s);
                if (byMenu) {
                    ChooseByKeys(window, u"fx"_s);
                } else {
                    QTest::keyClick(&window, Qt::Key_Escape);
                }
            });
            csi.RunModal();
        }
        QCOMPARE(TextOf(csi, "txtSrceFileName"), u"xx"_s);
        QCOMPARE(around.Answers.Shown(), QStringList({u"frmConvertCSI"_s, u"frmConvertCSI"_s}));
    }

    void TabFollowsTheReadingOrder() {
        CsiWindow csi;
        csi.Window.findChild<QLineEdit*>(u"txtSrceFileName"_s)->setFocus();
        QCOMPARE(TabStops(csi.Window, 6),
                 QStringList({u"txtSrceFileName"_s, u"cmdBrowse"_s, u"txtDestFileName"_s, u"cmdConvert"_s,
                              u"txtContents"_s, u"txtSrceFileName"_s}));
    }
};

template struct ListedWindowTest<frmConvertCSITest>;

} // namespace quorvex::tests

#include "frmConvertCSITest.moc"
