// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/ui/frmHelp.h"

#include "platform/fake/FailingFiles.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "windows/PrintedPdf.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QBuffer>
#include <QChildEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPrinterInfo>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextTable>
#include <filesystem>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ReadMe = "Quorvex-ReadMe.rtf";
constexpr auto ReadMePdf = "Quorvex-ReadMe.pdf";

QTextEdit& TextOf(QWidget& window) {
    return *window.findChild<QTextEdit*>(u"RichTextBox1"_s);
}

void Choose(QWidget& window, char const* item) {
    window.findChild<QAction*>(QLatin1String(item))->trigger();
}

// Longer than any window.
std::string LongDocument() {
    std::string document = R"({\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}\fs20 )";
    for (int line = 1; line <= 200; ++line) {
        document += "Line " + std::to_string(line) + R"(\par )";
    }
    return document + "}";
}

// The help window with this document, closed when the deed is over.
void OnHelp(RunningWindow& main, std::function<void(QWidget&)> const& deed) {
    main.Answers.Next([&](QWidget& window) {
        deed(window);
        Choose(window, "mnuFileExit");
    });
    main.Choose("mnuHelpReadMe");
}

// Counts the documents that a text box is given.
class DocumentCount final : public QObject {
public:
    explicit DocumentCount(QTextEdit& box) { box.installEventFilter(this); }

    int Count = 0;

protected:
    bool eventFilter(QObject* /*box*/, QEvent* event) override {
        if (event->type() == QEvent::ChildAdded &&
            qobject_cast<QTextDocument*>(static_cast<QChildEvent*>(event)->child()) != nullptr) {
            ++Count;
        }
        return false;
    }
};

void Resize(QWidget& window) {
    window.resize(window.width() + 40, window.height());
    QTest::qWait(0);
}

// What another program's window in front of it and back again does.
void Activate(QWidget& window) {
    for (QEvent::Type const type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&window, &event);
    }
}

// A way to have the document loaded again.
using Reload = void (*)(QWidget&);

} // namespace

class frmHelpTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    // Otherwise the tests below would waste paper.
    void initTestCase() {
        QVERIFY2(QPrinterInfo::defaultPrinter().isNull(), "The tests want a system without a printer.");
    }

    void EachHelpItemShowsItsDocument_data() {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("document");
        QTest::addRow("Read Me") << u"mnuHelpReadMe"_s << u"Quorvex-ReadMe.rtf"_s;
        QTest::addRow("Quick Start") << u"mnuHelpQuickStart"_s << u"Quorvex-QuickStart.rtf"_s;
        QTest::addRow("Index") << u"mnuHelpIndex"_s << u"Quorvex-Index.rtf"_s;
        QTest::addRow("Commodity Symbols") << u"mnuHelpCommoditySymbols"_s << u"CommoditySymbols.rtf"_s;
    }

    void EachHelpItemShowsItsDocument() {
        QFETCH(QString, item);
        QFETCH(QString, document);
        RunningWindow main;
        main.Folder.Write(document.toStdString(), R"({\rtf1 This one})");
        QString title;
        QString text;
        main.Answers.Next([&](QWidget& window) {
            title = window.windowTitle();
            text = TextOf(window).toPlainText();
            Choose(window, "mnuFileExit");
        });
        main.Choose(qPrintable(item));
        QCOMPARE(title, u"Quorvex Help"_s);
        QCOMPARE(text, u"This one"_s);
        QCOMPARE(main.Answers.TakeShown(), QStringList{u"frmHelp"_s});
    }

    void TheMenuOffersPrintAndExit() {
        RunningWindow main;
        QStringList captions;
        OnHelp(main, [&](QWidget& window) {
            for (QAction const* menu : window.findChild<QMenuBar*>()->actions()) {
                captions.append(menu->text());
                for (QAction const* item : menu->menu()->actions()) {
                    captions.append(item->isSeparator() ? u"-"_s : item->text());
                }
            }
        });
        QCOMPARE(captions, (QStringList{u"&File"_s, u"&Print"_s, u"-"_s, u"E&xit"_s}));
    }

    void TheWindowStandsInTheMiddleOfTheScreen() {
        RunningWindow main;
        QPoint centre;
        OnHelp(main, [&](QWidget& window) { centre = window.frameGeometry().center(); });
        QPoint const distance = centre - QGuiApplication::primaryScreen()->geometry().center();
        QVERIFY(distance.manhattanLength() <= 4);
    }

    // The frame that is not there counts as 8 by 46 pixels.
    void TheTextTakesItsShareOfTheWindow() {
        RunningWindow main;
        QRect text;
        QSize size;
        int top = 0;
        OnHelp(main, [&](QWidget& window) {
            window.resize(700, 500);
            QTest::qWait(0);
            size = window.size();
            top = window.findChild<QMenuBar*>()->height();
            text = TextOf(window).geometry();
        });
        QCOMPARE(size, QSize(700, 500));
        QCOMPARE(text.topLeft(), QPoint(3, top));
        QCOMPARE(text.width(), 700 + 8 - 14); // less 200 twips, rounded down
        QCOMPARE(text.height(), static_cast<int>((500 - top + 46) * 0.9));
        QVERIFY(text.bottom() < 500);
    }

    void AMissingDocumentLeavesTheViewerOpenAndEmpty() {
        RunningWindow main;
        bool isVisible = false;
        QString text = u"something"_s;
        OnHelp(main, [&](QWidget& window) {
            isVisible = window.isVisible();
            text = TextOf(window).toPlainText();
        });
        QVERIFY(isVisible);
        QCOMPARE(text, QString());
        QCOMPARE(main.Answers.TakeShown(), QStringList{u"frmHelp"_s});
    }

    void AnotherDocumentReplacesTheFirst() {
        RunningWindow main;
        main.Folder.Write(ReadMe, R"({\rtf1 First})");
        OnHelp(main, [](QWidget&) {});
        std::filesystem::remove(main.Folder.File(ReadMe));
        QString text;
        OnHelp(main, [&](QWidget& window) { text = TextOf(window).toPlainText(); });
        QCOMPARE(text, QString());
    }

    void OpeningAnotherItemShowsItsDocumentAtOnce() {
        RunningWindow main;
        main.Folder.Write(ReadMe, R"({\rtf1 First})");
        main.Folder.Write("Quorvex-Index.rtf", R"({\rtf1 Second})");
        OnHelp(main, [](QWidget&) {});
        QString text;
        main.Answers.Next([&](QWidget& window) {
            text = TextOf(window).toPlainText();
            Choose(window, "mnuFileExit");
        });
        main.Choose("mnuHelpIndex");
        QCOMPARE(text, u"Second"_s);
    }

    void EachConvertersHelpShowsTheDocumentOnConverting_data() {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("converter");
        QTest::addRow("Barchart") << u"mnuFileConvertBARCHART"_s << u"frmConvertBarChart"_s;
        QTest::addRow("Custom") << u"mnuFileConvertCustom"_s << u"frmConvertCustom"_s;
    }

    void EachConvertersHelpShowsTheDocumentOnConverting() {
        QFETCH(QString, item);
        QFETCH(QString, converter);
        RunningWindow main;
        main.Folder.Write("ConvertCustom.rtf", R"({\rtf1 On converting})");
        QString text;
        main.Answers.Next([&](QWidget& window) {
            Choose(window, "mnuHelp");
            Choose(window, "mnuFileExit");
        });
        main.Answers.Next([&](QWidget& window) {
            text = TextOf(window).toPlainText();
            Choose(window, "mnuFileExit");
        });
        main.Choose(qPrintable(item));
        QCOMPARE(text, u"On converting"_s);
        QCOMPARE(main.Answers.TakeShown(), (QStringList{converter, u"frmHelp"_s}));
    }

    void TheHelpOfCsiIsAMessage() {
        RunningWindow main;
        main.Folder.Write("ConvertCustom.rtf", R"({\rtf1 On converting})");
        main.Answers.Next([&](QWidget& window) {
            Choose(window, "mnuHelp");
            Choose(window, "mnuFileExit");
        });
        main.Choose("mnuFileConvertCSI");
        QStringList const shown = main.Answers.TakeShown();
        QCOMPARE(shown.size(), 2);
        QCOMPARE(shown.first(), u"frmConvertCSI"_s);
        QVERIFY2(shown.last().startsWith(u"Data Conversion Utility|information|OK|Locate"_s),
                 qPrintable(shown.last()));
    }

    void TheFileIsReadAnewAndItsDocumentMadeOnlyWhenItHasChanged() {
        platform::fake::MemoryFiles files;
        std::string& content = files.Contents["folder/Some.rtf"];
        content = R"({\rtf1 First})";
        settings::Settings const settings;
        platform::fake::ScriptedDialogs dialogs;
        std::string const folder = "folder/";
        auxiliary::ui::frmHelp help(nullptr, folder, settings, files, dialogs);
        DocumentCount const documents(TextOf(help));
        ModalAnswers answers;
        answers.Next([&](QWidget& window) {
            QVERIFY(files.ReadingCount() > 0);
            QCOMPARE(documents.Count, 1); // however often the window system activated and sized the window
            for (Reload const reload : {Resize, Activate}) {
                int const readings = files.ReadingCount();
                reload(window);
                QVERIFY(files.ReadingCount() > readings);
                QCOMPARE(documents.Count, 1);
                QCOMPARE(TextOf(window).toPlainText(), u"First"_s);
            }
            content = R"({\rtf1 Second})";
            Activate(window);
            Resize(window);
            QCOMPARE(documents.Count, 2);
            QCOMPARE(TextOf(window).toPlainText(), u"Second"_s);
            Choose(window, "mnuFileExit");
        });
        help.RunModal("Some.rtf");
        QVERIFY(answers.IsDone());
    }

    void ADocumentThatCannotBeReadComesWithTheNextReading() {
        platform::fake::MemoryFiles files;
        files.Contents["folder/Some.rtf"] = R"({\rtf1 First})";
        platform::fake::FailingFiles failing(files);
        settings::Settings const settings;
        platform::fake::ScriptedDialogs dialogs;
        std::string const folder = "folder/";
        auxiliary::ui::frmHelp help(nullptr, folder, settings, failing, dialogs);
        ModalAnswers answers;
        answers.Next([&](QWidget& window) {
            for (int number = 1; number <= 3; ++number) { // opening, the text, its end
                failing.FailAt({.Number = number, .Raised = text::Fault::PermissionDenied});
                Activate(window);
                QVERIFY(failing.Failed().has_value());
                QCOMPARE(TextOf(window).toPlainText(), QString());
                failing.Recover();
                Activate(window);
                QCOMPARE(TextOf(window).toPlainText(), u"First"_s);
            }
            Choose(window, "mnuFileExit");
        });
        help.RunModal("Some.rtf");
        QCOMPARE(answers.Shown(), QStringList{u"frmHelp"_s});
    }

    void AReloadGoesToTheVeryTopWithNothingSelected_data() {
        QTest::addColumn<bool>("isResized");
        QTest::addColumn<bool>("isWrittenAnew");
        for (bool const isResized : {false, true}) {
            for (bool const isWrittenAnew : {false, true}) {
                QTest::addRow("%s, %s", isResized ? "resized" : "activated",
                              isWrittenAnew ? "written anew" : "the same")
                    << isResized << isWrittenAnew;
            }
        }
    }

    void AReloadGoesToTheVeryTopWithNothingSelected() {
        QFETCH(bool, isResized);
        QFETCH(bool, isWrittenAnew);
        RunningWindow main;
        main.Folder.Write(ReadMe, LongDocument());
        OnHelp(main, [&](QWidget& window) {
            QTextEdit& text = TextOf(window);
            QCOMPARE(text.verticalScrollBar()->value(), 0); // when it opens
            text.selectAll();
            text.verticalScrollBar()->setValue(text.verticalScrollBar()->maximum());
            QVERIFY(text.verticalScrollBar()->value() > 0);
            if (isWrittenAnew) {
                main.Folder.Write(ReadMe, LongDocument() + ' ');
            }
            (isResized ? Resize : Activate)(window);
            QTest::qWait(0);
            QCOMPARE(text.verticalScrollBar()->value(), 0);
            QVERIFY(!text.textCursor().hasSelection());
        });
    }

    void ResizingReloadsTheDocumentAndGoesBackToItsTop() {
        RunningWindow main;
        main.Folder.Write(ReadMe, LongDocument());
        int scrolled = 0;
        int afterwards = -1;
        QString text;
        OnHelp(main, [&](QWidget& window) {
            QScrollBar& bar = *TextOf(window).verticalScrollBar();
            bar.setValue(bar.maximum());
            scrolled = bar.value();
            main.Folder.Write(ReadMe, R"({\rtf1 Written anew})");
            window.resize(window.width() + 40, window.height());
            QTest::qWait(0);
            afterwards = bar.value();
            text = TextOf(window).toPlainText();
        });
        QVERIFY(scrolled > 0);
        QCOMPARE(afterwards, 0);
        QCOMPARE(text, u"Written anew"_s);
    }

    void TheDocumentIsReadOnlyAndCanBeSelectedByKeys() {
        RunningWindow main;
        main.Folder.Write(ReadMe, R"({\rtf1 One two})");
        QString text;
        QString selected;
        OnHelp(main, [&](QWidget& window) {
            QTest::keyClicks(&TextOf(window), u"x"_s);
            QTest::keyClick(&TextOf(window), Qt::Key_A, Qt::ControlModifier);
            text = TextOf(window).toPlainText();
            selected = TextOf(window).textCursor().selectedText();
        });
        QCOMPARE(text, u"One two"_s);
        QCOMPARE(selected, u"One two"_s);
    }

    void WithoutASelectionTheWholeDocumentIsPrinted() {
        RunningWindow main;
        main.Folder.Write(ReadMe, R"({\rtf1 One two three})");
        OnHelp(main, [](QWidget& window) { Choose(window, "mnuFilePrint"); });
        QCOMPARE(WordsOf(main.Folder.Read(ReadMePdf)), u"One two three"_s);
        QCOMPARE(
            main.Answers.TakeShown(),
            (QStringList{u"frmHelp"_s, OkMessage(u"Quorvex"_s, u"information"_s,
                                                 u"No printer is installed. The page was saved as\n"_s +
                                                     QString::fromStdString(main.Folder.File(ReadMePdf)))}));
    }

    void WithAWordSelectedOnlyThatIsPrinted() {
        RunningWindow main;
        main.Folder.Write(ReadMe, R"({\rtf1 One two three})");
        OnHelp(main, [](QWidget& window) {
            QTextEdit& text = TextOf(window);
            QTest::keyClick(&text, Qt::Key_Home, Qt::ControlModifier);
            QTest::keyClick(&text, Qt::Key_Right, Qt::ControlModifier);
            for (int letter = 0; letter < 3; ++letter) {
                QTest::keyClick(&text, Qt::Key_Right, Qt::ShiftModifier);
            }
            Choose(window, "mnuFilePrint");
        });
        QCOMPARE(WordsOf(main.Folder.Read(ReadMePdf)), u"two"_s);
    }

    void AFolderThatCannotBeWrittenIsTold() {
        RunningWindow main;
        main.Folder.Write(ReadMe, R"({\rtf1 One})");
        main.Data->Settings.DataPath = main.Folder.File("missing/");
        OnHelp(main, [](QWidget& window) { Choose(window, "mnuFilePrint"); });
        QCOMPARE(main.Answers.TakeShown(),
                 (QStringList{u"frmHelp"_s, OkMessage(u"Quorvex"_s, u"none"_s, u"Printer error"_s)}));
    }

    void ABulletsTextBeginsWhereItsOtherLinesDo() {
        RunningWindow main;
        main.Folder.Write(
            ReadMe,
            R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\fs20\pard\li720\fi-360\tx720 *\tab One\line two\par})");
        OnHelp(main, [](QWidget& window) {
            QTextEdit const& text = TextOf(window);
            QTextCursor cursor(text.document());
            cursor.setPosition(0);
            int const bullet = text.cursorRect(cursor).left();
            cursor.setPosition(2);
            int const first = text.cursorRect(cursor).left();
            cursor.setPosition(6);
            int const second = text.cursorRect(cursor).left();
            QCOMPARE(first - bullet, 24); // 360 twips
            QCOMPARE(second, first);
        });
    }

    // A pattern finer than the pixels that it is shown in comes out as its mean.
    void PicturesAreMadeSmallerWithoutLosingLines() {
        QImage fine(400, 400, QImage::Format_RGB32);
        for (int y = 0; y < fine.height(); ++y) {
            for (int x = 0; x < fine.width(); ++x) {
                fine.setPixel(x, y, x % 4 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
            }
        }
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(fine.save(&buffer, "PNG"));
        RunningWindow main;
        main.Folder.Write(ReadMe, R"({\rtf1{\pict\pngblip\picwgoal1500\pichgoal1500 )" +
                                      png.toHex().toStdString() + "}}");
        QImage shown;
        OnHelp(main, [&](QWidget& window) { shown = TextOf(window).viewport()->grab().toImage(); });
        int const light = qGray(shown.pixel(60, 60));
        QVERIFY2(light > 170 && light < 210, qPrintable(QString::number(light)));
    }

    void StylesParagraphsAndTablesAreShownAsTheDocumentHasThem() {
        RunningWindow main;
        main.Folder.Write(
            ReadMe,
            R"({\rtf1\ansi{\fonttbl{\f0 Courier New;}}{\colortbl;\red192\green0\blue0;}\f0\fs30\b\i\ul\cf1)"
            R"(\qc\li720\sb120 Loud\par\pard\plain\trowd\cellx2000\cellx4000 a\intbl\cell b\cell\row)"
            R"(\pard after})");
        OnHelp(main, [](QWidget& window) {
            QTextBlock const block = TextOf(window).document()->firstBlock();
            QTextCharFormat const letters = block.begin().fragment().charFormat();
            QCOMPARE(letters.fontFamilies().toStringList(), QStringList{u"Courier New"_s});
            QCOMPARE(letters.fontPointSize(), 15.0);
            QCOMPARE(letters.fontWeight(), static_cast<int>(QFont::Bold));
            QVERIFY(letters.fontItalic());
            QVERIFY(letters.fontUnderline());
            QCOMPARE(letters.foreground().color(), QColor(192, 0, 0));
            QCOMPARE(block.blockFormat().alignment(), Qt::AlignHCenter);
            QCOMPARE(block.blockFormat().leftMargin(), 48.0);
            QCOMPARE(block.blockFormat().topMargin(), 8.0);
            QTextTable* table = nullptr;
            for (QTextFrame* frame : TextOf(window).document()->rootFrame()->childFrames()) {
                table = qobject_cast<QTextTable*>(frame);
            }
            QVERIFY(table != nullptr);
            QCOMPARE(table->columns(), 2);
            QCOMPARE(table->cellAt(0, 1).firstCursorPosition().block().text(), u"b"_s);
            QCOMPARE(TextOf(window).toPlainText(), u"Loud\na\nb\nafter"_s);
        });
    }
};

template struct ListedWindowTest<frmHelpTest>;

} // namespace quorvex::tests

#include "frmHelpTest.moc"
