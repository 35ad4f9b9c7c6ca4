// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/TextPrinting.h"

#include "platform/fake/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"
#include "windows/ModalAnswers.h"
#include "windows/PrintedPdf.h"
#include "windows/WindowTest.h"

#include <QRadioButton>
#include <array>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::PrintRange;
using platform::qt::PrintedText;
using platform::qt::PrinterJob;
using platform::qt::TextPrintDialog;

namespace {

// Three words, the second one selected, and a printer that prints into a file.
struct TextToPrint {
    TextToPrint() {
        Text.setPlainText(u"One two three"_s);
        QTextCursor cursor(Text.document());
        cursor.setPosition(4);
        cursor.setPosition(7, QTextCursor::KeepAnchor);
        Text.setTextCursor(cursor);
        PrintInto(Folder.File("text.pdf"));
    }

    void PrintInto(std::string const& path) {
        Job.Device().setOutputFormat(QPrinter::PdfFormat);
        Job.Device().setOutputFileName(QString::fromStdString(path));
    }

    // The words of the file, nothing when there is none.
    [[nodiscard]] QString Printed() const {
        return Folder.EntryCount() == 0 ? QString() : WordsOf(Folder.Read("text.pdf"));
    }

    TemporaryFolder Folder;
    QTextEdit Text;
    PrinterJob Job{"Text"};
    platform::fake::ScriptedDialogs Dialogs;
};

// The numbers in the bottom margin, page by page.
QStringList PageNumbers(std::string const& pdf) {
    constexpr double PaperMargin = 20 / 25.4; // in inches
    QStringList numbers;
    for (PrintedPage const& page : ReadPdf(pdf)) {
        QString number;
        for (PrintedWord const& word : page.Words) {
            if (word.Box.top() > page.Size.height() - PaperMargin) {
                number += word.Text;
            }
        }
        numbers.append(number);
    }
    return numbers;
}

// Leaves the print dialog by Enter after choosing what to print, if anything is named.
ModalAnswers::Deed Accept(QString const& choice) {
    return [choice](QWidget& dialog) {
        if (!choice.isEmpty()) {
            auto* button = dialog.findChild<QRadioButton*>(choice);
            QVERIFY2(button != nullptr && button->isEnabled(), qPrintable(choice));
            button->setChecked(true);
        }
        qobject_cast<QDialog*>(&dialog)->accept();
    };
}

} // namespace

class TextPrintingTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    // Nothing of the text that changes meanwhile matters.
    void APrinterGetsTheTextAsItWas() {
        for (auto const& [range, words] :
             {std::pair(PrintRange::Selection, u"two"_s), std::pair(PrintRange::All, u"One two three"_s)}) {
            TextToPrint given;
            PrintedText printed(given.Text);
            given.Text.clear();
            QVERIFY(printed.HasSelection());
            printed.Print(range, given.Job);
            QCOMPARE(given.Printed(), words);
        }
    }

    void OnlyAPageThatAnotherOneFollowsHasANumber() {
        TextToPrint given;
        given.Text.setPlainText(u"line\n"_s.repeated(150));
        PrintedText(given.Text).Print(PrintRange::All, given.Job);
        QCOMPARE(PageNumbers(given.Folder.Read("text.pdf")), QStringList({u"1"_s, u"2"_s, u""_s}));
    }

    void WhatTheDialogSaysIsPrinted() {
        for (auto const& [range, words] :
             {std::pair(PrintRange::Selection, u"two"_s), std::pair(PrintRange::All, u"One two three"_s)}) {
            TextToPrint given;
            given.Dialogs.Ranges = {range};
            PrintedText(given.Text).PrintAsChosen(given.Job, given.Dialogs, &given.Text);
            QCOMPARE(given.Dialogs.OfferedRanges, std::vector{PrintRange::Selection});
            QCOMPARE(given.Printed(), words);
        }
    }

    void WithoutASelectionTheDialogOffersEverything() {
        TextToPrint given;
        given.Text.moveCursor(QTextCursor::Start);
        given.Dialogs.Ranges = {PrintRange::All};
        PrintedText(given.Text).PrintAsChosen(given.Job, given.Dialogs, &given.Text);
        QCOMPARE(given.Dialogs.OfferedRanges, std::vector{PrintRange::All});
        QCOMPARE(given.Printed(), u"One two three"_s);
    }

    void ACancelledDialogPrintsNothing() {
        TextToPrint given;
        given.Dialogs.Ranges = {std::nullopt};
        PrintedText(given.Text).PrintAsChosen(given.Job, given.Dialogs, &given.Text);
        QCOMPARE(given.Folder.EntryCount(), 0);
        QVERIFY(given.Dialogs.Messages.empty());
    }

    void APrinterThatFailsIsTold() {
        TextToPrint given;
        given.PrintInto(given.Folder.File("missing/text.pdf"));
        PrintedText printed(given.Text);
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
        try {
            printed.Print(PrintRange::All, given.Job);
            QFAIL("It was printed.");
        } catch (text::RunTimeError const& error) {
            QCOMPARE(error.Kind(), text::Fault::PrinterError);
        }
    }

    void TheHostsDialogReturnsWhatIsChosenInIt_data() {
        QTest::addColumn<bool>("hasSelection");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<int>("range");
        QTest::newRow("selection left alone") << true << u""_s << static_cast<int>(PrintRange::Selection);
        QTest::newRow("selection") << true << u"printSelection"_s << static_cast<int>(PrintRange::Selection);
        QTest::newRow("all of a selection") << true << u"printAll"_s << static_cast<int>(PrintRange::All);
        QTest::newRow("all left alone") << false << u""_s << static_cast<int>(PrintRange::All);
    }

    void TheHostsDialogReturnsWhatIsChosenInIt() {
        QFETCH(bool, hasSelection);
        QFETCH(QString, choice);
        QFETCH(int, range);
        TextToPrint given;
        ModalAnswers answers;
        TextPrintDialog dialog(given.Job, hasSelection, &given.Text);
        answers.Next(Accept(choice));
        auto const chosen = dialog.Show();
        QCOMPARE(answers.Shown(), QStringList(u"PrintDialog"_s));
        QVERIFY(chosen.has_value());
        QCOMPARE(static_cast<int>(*chosen), range);
    }

    void TheHostsDialogOffersNoPagesAndCanBeCancelled() {
        TextToPrint given;
        ModalAnswers answers;
        bool hasPages = true;
        answers.Next([&hasPages](QWidget& window) {
            hasPages = qobject_cast<QPrintDialog*>(&window)->testOption(QAbstractPrintDialog::PrintPageRange);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        TextPrintDialog dialog(given.Job, true, &given.Text);
        QCOMPARE(dialog.Offered(), PrintRange::Selection);
        QVERIFY(!dialog.Show());
        QVERIFY(!hasPages);
        QCOMPARE(TextPrintDialog(given.Job, false, nullptr).Offered(), PrintRange::All);
    }
};

template struct ListedWindowTest<TextPrintingTest>;

} // namespace quorvex::tests

#include "TextPrintingTest.moc"
