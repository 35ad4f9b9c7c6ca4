// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/QtPrintQueue.h"

#include "chart/basPrint.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtMousePointer.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"
#include "windows/WindowTest.h"

#include <QPrinterInfo>
#include <vector>

#ifdef Q_OS_UNIX
#include "support/AsOrdinaryUser.h"
#endif

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::Message;
using platform::qt::QtPrintQueue;

namespace {

// A queue that saves in a folder of its own and keeps its messages.
struct SavingQueue {
    TemporaryFolder Files;
    std::string Folder = Files.Text();
    std::vector<Message> Messages;
    QtPrintQueue Queue{[this] { return Folder; },
                       [this](Message const& message) { Messages.push_back(message); }};
};

void PrintOneLine(platform::PrintQueue& queue, std::string_view documentName) {
    auto const printer = queue.Start(documentName);
    PrintLine(*printer, "text");
    printer->EndDocument();
}

// What a document of one line ends with.
QString ErrorOfPrinting(platform::PrintQueue& queue) {
    auto const error = text::Trap([&queue] { PrintOneLine(queue, "Listing"); });
    return error ? platform::pictures::ToQt(error->Description()) : QString();
}

} // namespace

class QtPrintQueueTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    // Otherwise the tests below would waste paper.
    void initTestCase() {
        QVERIFY2(QPrinterInfo::defaultPrinter().isNull(), "The tests want a system without a printer.");
    }

    void WithoutAPrinterADocumentBecomesAPdfFileThatAMessageNames() {
        SavingQueue saving;
        PrintOneLine(saving.Queue, "corn chart");
        QVERIFY(saving.Files.Read("corn chart.pdf").starts_with("%PDF-"));
        QCOMPARE(saving.Files.EntryCount(), 1);
        QCOMPARE(saving.Messages.size(), 1U);
        QCOMPARE(saving.Messages[0].Text,
                 "No printer is installed. The page was saved as\n" + saving.Files.File("corn chart.pdf"));
        QCOMPARE(saving.Messages[0].Title, std::string("Quorvex"));
        QCOMPARE(saving.Messages[0].Shown, platform::Icon::Information);
        QCOMPARE(saving.Messages[0].Offered, platform::Buttons::Ok);
    }

    void TheSameDocumentOnceMoreIsAnotherFile() {
        SavingQueue saving;
        PrintOneLine(saving.Queue, "corn chart");
        std::string const first = saving.Files.Read("corn chart.pdf");
        PrintOneLine(saving.Queue, "corn chart");
        QCOMPARE(saving.Files.Read("corn chart.pdf"), first);
        QVERIFY(saving.Files.Read("corn chart (2).pdf").starts_with("%PDF-"));
        QCOMPARE(saving.Messages.size(), 2U);
        QVERIFY(saving.Messages[1].Text.ends_with("corn chart (2).pdf"));
    }

    void TheFolderIsTheOneOfTheMoment() {
        SavingQueue saving;
        TemporaryFolder other;
        saving.Folder = other.Text();
        PrintOneLine(saving.Queue, "corn chart");
        QCOMPARE(saving.Files.EntryCount(), 0);
        QVERIFY(other.Read("corn chart.pdf").starts_with("%PDF-"));
    }

    void ADocumentThatIsNotEndedLeavesNothing() {
        SavingQueue saving;
        {
            auto const printer = saving.Queue.Start("corn chart");
            PrintLine(*printer, "text");
            printer->NewPage();
        }
        QCOMPARE(saving.Files.EntryCount(), 0);
        QVERIFY(saving.Messages.empty());
    }

    void AFolderThatDoesNotExistIsAPrinterError() {
        SavingQueue saving;
        saving.Folder = saving.Files.File("nowhere/");
        QCOMPARE(ErrorOfPrinting(saving.Queue), u"Printer error"_s);
        QVERIFY(saving.Messages.empty());
        QCOMPARE(saving.Files.EntryCount(), 0);
    }

#ifdef Q_OS_UNIX
    void AFolderThatCannotBeWrittenIsAPrinterError() {
        SavingQueue saving;
        std::filesystem::permissions(saving.Files.Path(), std::filesystem::perms(0555));
        AsOrdinaryUser const user;
        QCOMPARE(ErrorOfPrinting(saving.Queue), u"Printer error"_s);
        QVERIFY(saving.Messages.empty());
        QCOMPARE(saving.Files.EntryCount(), 0);
    }
#endif

    void NothingIsPrintedAfterTheEnd() {
        SavingQueue saving;
        auto const printer = saving.Queue.Start("corn chart");
        printer->EndDocument();
        auto const fails = [](auto&& deed) {
            auto const error = text::Trap(deed);
            return error && error->Kind() == text::Fault::PrinterError;
        };
        QVERIFY(fails([&] { printer->Print("late"); }));
        QVERIFY(fails([&] { printer->Line(0, 0, 1, 1, platform::Black); }));
        QVERIFY(fails([&] { printer->NewPage(); }));
        QVERIFY(fails([&] { printer->EndDocument(); }));
        QCOMPARE(saving.Files.EntryCount(), 1);
        QCOMPARE(saving.Messages.size(), 1U);
    }

    void APageCannotBeEmptied() {
        SavingQueue saving;
        auto const printer = saving.Queue.Start("corn chart");
        auto const error = text::Trap([&] { printer->Clear(); });
        QVERIFY(error && error->Kind() == text::Fault::PrinterError);
    }

    void ThePointerIsTheHourglassButOverMessages() {
        TemporaryFolder const files;
        QWidget window;
        window.show();
        ModalAnswers answers;
        Qt::CursorShape overMessage = Qt::BlankCursor;
        answers.NextMessage([&overMessage](QWidget& message) {
            overMessage = QGuiApplication::overrideCursor()->shape();
            QTest::keyClick(&message, Qt::Key_Return);
        });
        Qt::CursorShape afterMessage = Qt::BlankCursor;
        QtPrintQueue queue([&files] { return files.Text(); },
                           [&](Message const& message) {
                               platform::qt::ShowMessageBox(window, message);
                               afterMessage = QGuiApplication::overrideCursor()->shape();
                           });
        platform::qt::QtMousePointer pointer;
        chart::PrintChart(queue, pointer, quotes::QuoteSeries(), settings::Settings());
        QCOMPARE(overMessage, Qt::ArrowCursor);
        QCOMPARE(afterMessage, Qt::WaitCursor);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        QCOMPARE(answers.Shown().size(), 1);
        QVERIFY(files.Read("Quorvex chart.pdf").starts_with("%PDF-"));
    }
};

template struct ListedWindowTest<QtPrintQueueTest>;

} // namespace quorvex::tests

#include "QtPrintQueueTest.moc"
