// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/WindowPrinting.h"

#include "chart/ui/ShownForecast.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/SystemJob.h"
#include "support/QuoteTexts.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QPrinterInfo>
#include <filesystem>

#ifdef Q_OS_UNIX
#include "support/AsOrdinaryUser.h"
#endif

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::qt::NewPdfPath;

namespace {

constexpr auto PdfName = "Quorvex Forecast - [corn.txt].pdf";

int PageCount(std::string const& pdf) {
    int pages = 0;
    for (std::size_t at = pdf.find("/Type /Page\n"); at != std::string::npos;
         at = pdf.find("/Type /Page\n", at + 1)) {
        ++pages;
    }
    return pages;
}

} // namespace

class WindowPrintingTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    // Otherwise the tests below would waste paper.
    void initTestCase() {
        QVERIFY2(QPrinterInfo::defaultPrinter().isNull(), "The tests want a system without a printer.");
    }

    void ThePdfIsNamedAfterTheDocument() {
        TemporaryFolder folder;
        QCOMPARE(NewPdfPath(folder.Text(), "Forecast"), folder.File("Forecast.pdf"));
    }

    void ThePdfNeverHasTheNameOfAnExistingFile() {
        TemporaryFolder folder;
        folder.Write("Forecast.pdf", "");
        QCOMPARE(NewPdfPath(folder.Text(), "Forecast"), folder.File("Forecast (2).pdf"));
        folder.Write("Forecast (2).pdf", "");
        QCOMPARE(NewPdfPath(folder.Text(), "Forecast"), folder.File("Forecast (3).pdf"));
    }

    void WhatNoFileNameCanHoldIsLeftOut() {
        TemporaryFolder folder;
        QCOMPARE(NewPdfPath(folder.Text(), "a<b>c:d\"e/f\\g|h?i*j\nk [1]"),
                 folder.File("abcdefghijk [1].pdf"));
    }

    void AFolderMayHaveBackslashes() {
        TemporaryFolder folder;
        std::string backslashes = folder.Text();
        std::ranges::replace(backslashes, '/', '\\');
        QCOMPARE(NewPdfPath(backslashes, "Forecast"), folder.File("Forecast.pdf"));
    }

    void WithoutAPrinterTheForecastBecomesAPdfFile() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        shown.Choose("mnuFilePrint");
        std::string const pdf = shown.Folder.Read(PdfName);
        QVERIFY(pdf.starts_with("%PDF-"));
        QCOMPARE(PageCount(pdf), 1);
        QCOMPARE(shown.Dialogs.Messages.size(), 1U);
        platform::Message const& message = shown.Dialogs.Messages[0];
        QCOMPARE(message.Text,
                 "No printer is installed. The page was saved as\n" + shown.Folder.File(PdfName));
        QCOMPARE(message.Title, std::string("Quorvex"));
        QCOMPARE(message.Shown, platform::Icon::Information);
    }

    void PrintingOnceMoreLeavesTheFirstFileAlone() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        shown.Folder.Write(PdfName, "precious");
        shown.Choose("mnuFilePrint");
        QCOMPARE(shown.Folder.Read(PdfName), std::string("precious"));
        QVERIFY(shown.Folder.Read("Quorvex Forecast - [corn.txt] (2).pdf").starts_with("%PDF-"));
        QCOMPARE(shown.Folder.EntryCount(), 2);
    }

    void AFolderThatDoesNotExistIsAPrinterError() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Settings.DataPath = shown.Folder.File("nowhere/");
        shown.Show();
        ModalAnswers answers;
        shown.Choose("mnuFilePrint");
        QCOMPARE(answers.Shown(), QStringList(OkMessage(u"Quorvex"_s, u"none"_s, u"Printer error"_s)));
        QCOMPARE(shown.Folder.EntryCount(), 0);
        QVERIFY(shown.Window->isVisible());
    }

#ifdef Q_OS_UNIX
    void AFolderThatCannotBeWrittenIsAPrinterError() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        ModalAnswers answers;
        std::filesystem::permissions(shown.Folder.Path(), std::filesystem::perms(0555));
        {
            AsOrdinaryUser const user;
            shown.Choose("mnuFilePrint");
        }
        QCOMPARE(answers.Shown(), QStringList(OkMessage(u"Quorvex"_s, u"none"_s, u"Printer error"_s)));
        QCOMPARE(shown.Folder.EntryCount(), 0);
    }
#endif

    void TheMessageStandsOverTheForecast() {
        RunningWindow main;
        main.OpenQuotes("corn.txt", QuoteLines(100));
        main.TypeInto(1, 1, u"100"_s);
        main.TypeInto(2, 1, u"20"_s);
        QWidget* forecast = nullptr;
        QWidget* behind = nullptr;
        main.Answers.NextMessage([&behind](QWidget& message) {
            behind = message.parentWidget();
            QTest::keyClick(&message, Qt::Key_Return);
        });
        main.Answers.Next([&forecast](QWidget& window) {
            forecast = &window;
            window.findChild<QAction*>(u"mnuFilePrint"_s)->trigger();
            QVERIFY(window.isVisible());
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuForecast");
        QCOMPARE(behind, forecast);
        QCOMPARE(main.Answers.Shown(),
                 QStringList({u"frmForecast"_s,
                              OkMessage(u"Quorvex"_s, u"information"_s,
                                        u"No printer is installed. The page was saved as\n%1"_s.arg(
                                            platform::pictures::ToQt(main.Folder.File(PdfName))))}));
    }
};

template struct ListedWindowTest<WindowPrintingTest>;

} // namespace quorvex::tests

#include "WindowPrintingTest.moc"
