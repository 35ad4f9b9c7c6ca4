// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/ui/frmTestForecast.h"

#include "evaluation/basReport.h"
#include "evaluation/basVerdicts.h"
#include "evaluation/ui/ShownTest.h"
#include "platform/pictures/QtTexts.h"
#include "support/ShortestOf.h"
#include "windows/WindowTest.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <new>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;

namespace {

// Within which a window answers.
constexpr std::chrono::milliseconds AnswerTime(200 * tests::Patience);

QStringList VerdictRows(evaluation::Evaluation const& evaluation) {
    QStringList rows;
    for (evaluation::ModelReport const& model : evaluation.Models) {
        rows.append(ToQt(ModelName(model.Model)) + u'|' + ToQt(model.Verdict));
    }
    return rows;
}

QStringList FigureRows(evaluation::Evaluation const& evaluation) {
    QStringList rows;
    for (evaluation::TableRow const& row : TableRows(evaluation)) {
        QStringList texts;
        for (auto const column : evaluation::TableColumns) {
            texts.append(ToQt(row.*column));
        }
        rows.append(texts.join(u'|'));
    }
    return rows;
}

} // namespace

class frmTestForecastTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void ShowsHowMuchIsDoneAndThenTheResult() {
        StagedTest test;
        test.Hold();
        ShownTest shown("q250.txt", test.Routine());
        auto const expected = shown.Expected();
        shown.Run([&] {
            QCOMPARE(shown.Window->windowTitle(), u"Quorvex - Test Forecast - [q250.txt]"_s);
            QTRY_COMPARE(shown.Find<QProgressBar>("prgTest").value(), 50);
            QCOMPARE(shown.Verdict(), u"Testing the forecasts..."_s);
            QVERIFY(shown.Rows("tblVerdicts").isEmpty());
            QVERIFY(!shown.Find<QAction>("mnuFilePrint").isEnabled());
            QVERIFY(!shown.Find<QAction>("mnuFileSaveAs").isEnabled());
            QVERIFY(!shown.Find<QComboBox>("cboKind").isEnabled());
            QVERIFY(shown.Button(QDialogButtonBox::Cancel).isVisible());
            QVERIFY(!shown.Button(QDialogButtonBox::Close).isVisible());
            shown.Press(Qt::Key_Return);
            QVERIFY(shown.Window->isVisible());
            test.Release();
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Verdict(), ToQt(VerdictOf(expected)));
            QCOMPARE(shown.Find<QLabel>("lblTest").text(), ToQt(DescribeTest(expected)));
            QCOMPARE(shown.Rows("tblVerdicts"), VerdictRows(expected));
            QCOMPARE(shown.Rows("tblFigures"), FigureRows(expected));
            QVERIFY(shown.Find<QAction>("mnuFilePrint").isEnabled());
            QVERIFY(shown.Find<QAction>("mnuFileSaveAs").isEnabled());
            QVERIFY(!shown.Button(QDialogButtonBox::Cancel).isVisible());
            QVERIFY(shown.Button(QDialogButtonBox::Close).isVisible());
        });
    }

    void TellsOfTheSurrogates() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        auto const notes = Notes(shown.Expected());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            QString const text = shown.Find<QPlainTextEdit>("txtNotes").toPlainText();
            QVERIFY(text.startsWith(ToQt(notes.at(0).Head) + u'\n'));
            for (std::string const& line : notes.at(0).Lines) {
                QVERIFY(text.contains(u'\n' + ToQt(line)));
            }
        });
    }

    void EnterClosesAfterwards() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Press(Qt::Key_Return);
            QVERIFY(!shown.Window->isVisible());
        });
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmTestForecast"_s));
    }

    void TheCyclesInUseAreTestedToo_data() {
        QTest::addColumn<double>("weight");
        QTest::addColumn<int>("models");
        QTest::newRow("a cycle") << 100.0 << 8;
        QTest::newRow("none") << 0.0 << 7;
    }

    void TheCyclesInUseAreTestedToo() {
        QFETCH(double, weight);
        QFETCH(int, models);
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Cycles->Cycles[1].Weight = weight;
        shown.Settings.MovingAverageIndex = "7";
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Rows("tblVerdicts").size(), models);
        });
        auto const request = test.Requests().at(0);
        QCOMPARE(request.Models, evaluation::StandardModels(models == 8));
        QCOMPARE(request.Parameters != nullptr, models == 8);
        QCOMPARE(request.MovingAverageLength, 7);
        evaluation::EvaluationRequest const usual;
        QCOMPARE(request.Every, usual.Every);
        QCOMPARE(request.SampleCount, usual.SampleCount);
        QCOMPARE(request.SurrogateCount, usual.SurrogateCount);
    }

    // The largest series that there is.
    void CancelAnswersAtOnce_data() {
        QTest::addColumn<bool>("byMouse");
        QTest::newRow("mouse") << true;
        QTest::newRow("Escape") << false;
    }

    void CancelAnswersAtOnce() {
        QFETCH(bool, byMouse);
        auto const cancel = [byMouse] {
            ShownTest shown("q500.txt");
            QElapsedTimer timer;
            shown.Run([&] {
                QTRY_VERIFY(shown.Find<QProgressBar>("prgTest").value() > 0);
                timer.start();
                if (byMouse) {
                    QTest::mouseClick(&shown.Button(QDialogButtonBox::Cancel), Qt::LeftButton);
                } else {
                    shown.Press(Qt::Key_Escape);
                }
                QVERIFY(!shown.Window->isVisible());
            });
            return std::chrono::milliseconds(timer.elapsed());
        };
        QVERIFY(tests::ShortestOf(3, AnswerTime, cancel) < AnswerTime);
    }

    void ClosingEndsTheTest() {
        StagedTest test;
        test.Hold();
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] { QTRY_COMPARE(test.RunningCount(), 1); });
        QTRY_COMPARE(test.RunningCount(), 0);
        QVERIFY(shown.Rows("tblFigures").isEmpty());
    }

    void AnotherCallTestsWhatIsThereThen() {
        StagedTest test;
        test.Hold();
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] { QTRY_COMPARE(test.RunningCount(), 1); });
        *shown.Series = *std::make_unique<ShownTest>("q137.txt")->Series;
        test.Release();
        auto const expected = shown.Expected();
        shown.Run([&] {
            QCOMPARE(shown.Window->windowTitle(), u"Quorvex - Test Forecast - [q137.txt]"_s);
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Rows("tblFigures"), FigureRows(expected));
        });
        *shown.Series = *std::make_unique<ShownTest>("q060.txt")->Series;
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            QVERIFY(shown.Rows("tblFigures").isEmpty());
        });
    }

    void TheWindowMayGoDuringATest() {
        StagedTest test;
        test.Hold();
        ShownTest shown("q250.txt", test.Routine());
        shown.Answers.Next([&](QWidget& window) {
            QTRY_COMPARE(test.RunningCount(), 1);
            window.close();
        });
        shown.Window->RunModal();
        shown.Window.reset();
        QCOMPARE(test.RunningCount(), 0);
        QCoreApplication::processEvents();
    }

    void TooFewDaysAreRefused() {
        ShownTest shown("q060.txt");
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Verdict(), u"Forecasts are tested on 125 days at least; there are 60."_s);
            QVERIFY(!shown.Find<QAction>("mnuFilePrint").isEnabled());
            QVERIFY(shown.Button(QDialogButtonBox::Close).isVisible());
            QCOMPARE(shown.Find<platform::qt::PictureBox>("Pic1").accessibleDescription(), shown.Verdict());
        });
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void AMovingAverageThatIsNoneIsRefused() {
        ShownTest shown("q250.txt");
        shown.Settings.MovingAverageIndex = "99999";
        shown.Run([&] {
            QVERIFY(!shown.IsTesting());
            QCOMPARE(shown.Verdict(), u"Overflow."_s);
        });
    }

    void AFaultIsShownAndTheWindowStays() {
        ShownTest shown("q250.txt",
                        [](auto const&...) -> evaluation::EvaluationOutcome { throw std::bad_alloc(); });
        shown.Run([&] {
            QTRY_COMPARE(shown.Answers.Shown().size(), 2);
            QVERIFY(shown.Window->isVisible());
            QVERIFY(!shown.IsTesting());
            QCOMPARE(shown.Verdict(), QString());
        });
        QVERIFY(shown.Answers.Shown().contains(OkMessage(u"Quorvex"_s, u"critical"_s, u"Out of memory"_s)));
    }

    void TheChosenModelsForecastsAreDrawn() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            auto const& chart = shown.Find<platform::qt::PictureBox>("Pic1");
            auto const& verdicts = shown.Find<QTableWidget>("tblVerdicts");
            QCOMPARE(shown.Window->focusWidget(), &verdicts);
            shown.Press(Qt::Key_Home, Qt::ControlModifier);
            QVERIFY(chart.accessibleDescription().endsWith(u": Fit of 1 cycle, composite."));
            QImage const first = chart.Picture().copy();
            shown.Press(Qt::Key_Down);
            QVERIFY(chart.accessibleDescription().endsWith(u": Fit of 2 cycles, composite."));
            QVERIFY(chart.Picture() != first);
            QRect const row = verdicts.visualItemRect(verdicts.item(5, 1));
            QTest::mouseClick(verdicts.viewport(), Qt::LeftButton, {}, row.center());
            QVERIFY(chart.accessibleDescription().endsWith(u": Quick search of 3 cycles, composite."));
            shown.Press(Qt::Key_D, Qt::AltModifier);
            QCOMPARE(QApplication::focusWidget()->objectName(), u"cboKind"_s);
            shown.Press(Qt::Key_Home);
            QVERIFY(chart.accessibleDescription().endsWith(u": Quick search of 3 cycles, window."));
        });
    }

    void TheChartFollowsTheWindowsSize() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            auto const& chart = shown.Find<platform::qt::PictureBox>("Pic1");
            QSize const before = chart.Picture().size();
            shown.Window->resize(shown.Window->size() + QSize(90, 60));
            QTRY_COMPARE(chart.Picture().size(), before + QSize(90, 60));
        });
    }

    void EverythingHasRoom() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            auto const& verdicts = shown.Find<QTableWidget>("tblVerdicts");
            QVERIFY(!verdicts.verticalScrollBar()->isVisible());
            QAbstractItemView const& figures = shown.Find<QTableWidget>("tblFigures");
            shown.Find<QTabWidget>("tabs").setCurrentIndex(1);
            QTRY_VERIFY_WITH_TIMEOUT(!figures.horizontalScrollBar()->isVisible(), 30'000);
            for (char const* name : {"lblVerdict", "lblTest"}) {
                auto const& label = shown.Find<QLabel>(name);
                QVERIFY(label.heightForWidth(label.width()) <= label.height());
            }
            QVERIFY(shown.Window->minimumSizeHint().width() <= 1000);
            QVERIFY(shown.Window->minimumSizeHint().height() <= 700);
        });
    }

    void EveryControlHasAName() {
        StagedTest test;
        ShownTest const shown("q250.txt", test.Routine());
        for (char const* name :
             {"tblVerdicts", "cboKind", "txtNotes", "tabs", "Pic1", "tblFigures", "prgTest"}) {
            QVERIFY2(!shown.Find<QWidget>(name).accessibleName().isEmpty(), name);
        }
    }

    void TabGoesFromTheVerdictsToTheButton() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            QStringList names;
            for (int step = 0; step < 7; ++step) {
                QWidget const* focus = QApplication::focusWidget();
                auto const* button = qobject_cast<QPushButton const*>(focus);
                bool const isTabs = qobject_cast<QTabBar const*>(focus) != nullptr;
                names.append(button != nullptr ? button->text().remove(u'&')
                             : isTabs          ? u"tabs"_s
                                               : focus->objectName());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(names.join(u' '), u"tblVerdicts cboKind txtNotes tabs Pic1 Close tblVerdicts"_s);
        });
    }

    void LettersChangeBetweenChartAndFigures() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Press(Qt::Key_G, Qt::AltModifier);
            QTRY_VERIFY(shown.Find<QTableWidget>("tblFigures").isVisible());
            shown.Press(Qt::Key_C, Qt::AltModifier);
            QTRY_VERIFY(shown.Find<platform::qt::PictureBox>("Pic1").isVisible());
        });
    }

    void TheMenuHasPrintSaveAsAndExit() {
        StagedTest test;
        ShownTest const shown("q250.txt", test.Routine());
        QStringList items;
        for (QAction const* item : shown.Find<QMenu>("mnuFile").actions()) {
            items.append(item->objectName() + u' ' + item->text());
        }
        QCOMPARE(items, QStringList({u"mnuFilePrint &Print"_s, u"mnuFileSaveAs Save &As..."_s,
                                     u"mnuFileExit E&xit"_s}));
    }

    void PrintPrintsVerdictsPlotAndTable() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Choose("mnuFilePrint");
        });
        QCOMPARE(shown.Printing.Documents.size(), 1U);
        auto const& document = shown.Printing.Documents[0];
        QVERIFY(document.IsEnded);
        QCOMPARE(document.Name, "q250 forecast test");
        QVERIFY(document.Pages.size() >= 3);
        QCOMPARE(document.Pages[0].Texts.at(0).Text, "Test of forecasts: q250.txt");
        QCOMPARE(shown.Printing.HourglassAtStart, std::vector<int>{1});
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void APrinterThatFailsIsTold() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Printing.Sheet.IsEndFailing = true;
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Choose("mnuFilePrint");
            QVERIFY(shown.Window->isVisible());
        });
        QVERIFY(shown.Answers.Shown().contains(OkMessage(u"Quorvex"_s, u"none"_s, u"Printer error"_s)));
    }

    void SaveAsWritesTheReport() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Dialogs.Paths = {"C:\\Data\\mine.txt", "C:\\Data\\other"};
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Choose("mnuFileSaveAs");
            shown.Choose("mnuFileSaveAs");
        });
        auto const& question = shown.Dialogs.SaveQuestions.at(0);
        QCOMPARE(question.Title, "Save Forecast Test");
        QCOMPARE(question.Folder, "C:\\Data\\");
        QCOMPARE(question.Name, "q250 forecast test.txt");
        QCOMPARE(question.Filter, "Report (*.txt)|*.txt|PNG image (*.png)|*.png|SVG drawing (*.svg)|*.svg|"
                                  "PDF document (*.pdf)|*.pdf");
        QCOMPARE(question.Ending, "txt");
        QCOMPARE(shown.Files.Contents.at("C:\\Data\\mine.txt"), EvaluationReport(shown.Expected()));
        QCOMPARE(shown.Files.Contents.at("C:\\Data\\other"), EvaluationReport(shown.Expected()));
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void SaveAsWritesThePlotAsAPicture() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Dialogs.Paths = {"C:\\Data\\a.svg", "C:\\Data\\a.PNG", "C:\\Data\\a.pdf"};
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Choose("mnuFileSaveAs");
            shown.Choose("mnuFileSaveAs");
            shown.Choose("mnuFileSaveAs");
        });
        std::string const& svg = shown.Files.Contents.at("C:\\Data\\a.svg");
        QVERIFY(svg.starts_with("<?xml"));
        QVERIFY(svg.find("25 days ahead") != std::string::npos);
        auto const& png = shown.Files.Contents.at("C:\\Data\\a.PNG");
        QImage const image = QImage::fromData(QByteArray::fromStdString(png));
        QCOMPARE(image.size(), QSize(1100, 800));
        QVERIFY(shown.Files.Contents.at("C:\\Data\\a.pdf").starts_with("%PDF"));
    }

    void SaveAsReplacesOnlyOnRequest() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Files.Contents["C:\\Data\\a.txt"] = "x";
        shown.Dialogs.Paths = {"C:\\Data\\a.txt", ""};
        shown.Dialogs.Answers = {platform::Answer::No};
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Choose("mnuFileSaveAs");
        });
        QCOMPARE(shown.Files.Contents.at("C:\\Data\\a.txt"), "x");
        QCOMPARE(shown.Dialogs.SaveQuestions.size(), 2U);
        QCOMPARE(shown.Dialogs.Messages.size(), 1U);
        platform::Message const& message = shown.Dialogs.Messages[0];
        QCOMPARE(message.Text, "a.txt already exists.\nDo you want to replace it?");
        QCOMPARE(message.Title, "Save Forecast Test");
        QCOMPARE(message.Shown, platform::Icon::Exclamation);
        QCOMPARE(message.Offered, platform::Buttons::YesNo);
    }

    void AFileThatCannotBeWrittenIsTold() {
        StagedTest test;
        ShownTest shown("q250.txt", test.Routine());
        shown.Files.BreakWriting = text::Fault::PermissionDenied;
        shown.Dialogs.Paths = {"C:\\Data\\a.txt"};
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Choose("mnuFileSaveAs");
            QVERIFY(shown.Window->isVisible());
        });
        QVERIFY(shown.Answers.Shown().contains(OkMessage(u"Quorvex"_s, u"none"_s, u"Permission denied"_s)));
    }
};

template struct ListedWindowTest<frmTestForecastTest>;

} // namespace quorvex::tests

#include "frmTestForecastTest.moc"
