// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/ui/frmFindCycles.h"

#include "platform/pictures/QtTexts.h"
#include "search/basSearchPlot.h"
#include "search/basSearchReading.h"
#include "search/ui/ShownSearch.h"
#include "support/ShortestOf.h"
#include "windows/PrintedPdf.h"
#include "windows/ToolTips.h"
#include "windows/WindowTest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QToolTip>
#include <new>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;

namespace {

// Within which a window answers.
constexpr std::chrono::milliseconds AtOnce(200 * tests::Patience);

search::SearchOutcome Searched(ShownSearch const& shown, int cycleCount, bool isDetrended) {
    search::SearchRequest request;
    request.CycleCount = cycleCount;
    request.LeastSwing = search::VisibleSwing;
    request.Detrend = isDetrended;
    return search::SearchMovingAverage(*shown.Curves, shown.Series->WorkingCount, request,
                                       [] { return true; });
}

void PressButton(ShownSearch const& shown, QDialogButtonBox::StandardButton button) {
    QTest::mouseClick(shown.Find<QDialogButtonBox>("buttons").button(button), Qt::LeftButton);
}

} // namespace

class frmFindCyclesTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheBoxesBeginWithThreeCyclesAndPeriodsThatWereSeenTwice() {
        ShownSearch shown("q250.txt");
        shown.Run([&] {
            QCOMPARE(shown.Window->windowTitle(), u"Quorvex - Find Best Cycles - [q250.txt]"_s);
            QCOMPARE(shown.Spin("spnCycles").value(), 3);
            QCOMPARE(shown.Spin("spnShortest").value(), 5);
            QCOMPARE(shown.Spin("spnLongest").value(), 125);
            QVERIFY(!shown.Find<QCheckBox>("chkDetrend").isChecked());
            QCOMPARE(shown.Window->focusWidget(), &shown.Spin("spnCycles"));
        });
        QCOMPARE(shown.Spin("spnCycles").minimum(), 1);
        QCOMPARE(shown.Spin("spnCycles").maximum(), search::MostCycles);
        for (char const* name : {"spnShortest", "spnLongest"}) {
            QCOMPARE(shown.Spin(name).minimum(), search::ShortestPeriod);
            QCOMPARE(shown.Spin(name).maximum(), search::LongestPeriod);
        }
    }

    void EnterTakesTheModelOfTheChosenNumber() {
        ShownSearch shown("q250.txt");
        auto const expected = Searched(shown, 4, false).Models.at(3);
        auto const model = shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.TypeInto("spnCycles", u"4"_s);
            QStringList rows;
            for (auto const& row : search::ModelRows(expected)) {
                rows.append(ToQt(row[0] + ' ' + row[1] + ' ' + row[2] + ' ' + row[3]));
            }
            QCOMPARE(shown.TableRows(), rows);
            QVERIFY(shown.Result().startsWith(
                u"4 cycles follow the moving average with a correlation of %1. The composite swings from -"_s
                    .arg(ToQt(search::ShareText(expected.Correlation)))));
            shown.Press(Qt::Key_Return);
            QVERIFY(!shown.Window->isVisible());
        });
        QVERIFY(model.has_value());
        QCOMPARE(model->Cycles, expected.Cycles);
        QCOMPARE(shown.Answers.Shown(), QStringList(u"frmFindCycles"_s));
    }

    void AnotherNumberNeedsNoOtherSearch() {
        StagedSearch search;
        ShownSearch shown("q060.txt", search.Routine());
        auto const model = shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            for (int count = 1; count <= search::MostCycles; ++count) {
                shown.Spin("spnCycles").setValue(count);
                QCOMPARE(shown.TableRows().size(), count);
                QVERIFY(shown.MayAccept());
            }
            shown.Spin("spnCycles").setValue(2);
            PressButton(shown, QDialogButtonBox::Ok);
        });
        QCOMPARE(search.Requests().size(), 1U);
        QCOMPARE(model.value().Cycles, StagedSearch::ModelOf(2).Cycles);
    }

    void EveryChangeOfTheRangeOrTheTrendSearchesAnew() {
        StagedSearch search;
        ShownSearch shown("q060.txt", search.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Spin("spnShortest").setValue(7);
            QVERIFY(shown.WaitForEnd());
            shown.Spin("spnLongest").setValue(44);
            QVERIFY(shown.WaitForEnd());
            shown.Spin("spnSwing").setValue(35);
            QVERIFY(shown.WaitForEnd());
            shown.Find<QCheckBox>("chkDetrend").click();
            QVERIFY(shown.WaitForEnd());
        });
        auto const requests = search.Requests();
        QCOMPARE(requests.size(), 5U);
        auto const text = [](search::SearchRequest const& request) {
            return u"%1 %2 %3 %4 %5"_s.arg(request.CycleCount)
                .arg(request.MinPeriod)
                .arg(request.MaxPeriod.value_or(0))
                .arg(request.LeastSwing)
                .arg(request.Detrend ? 1 : 0);
        };
        QCOMPARE(text(requests[0]), u"10 5 30 20 0"_s);
        QCOMPARE(text(requests[1]), u"10 7 30 20 0"_s);
        QCOMPARE(text(requests[2]), u"10 7 44 20 0"_s);
        QCOMPARE(text(requests[3]), u"10 7 44 35 0"_s);
        QCOMPARE(text(requests[4]), u"10 7 44 35 1"_s);
    }

    void TheProgressOfASearchShows() {
        StagedSearch search;
        search.HoldBehind(2);
        ShownSearch shown("q060.txt", search.Routine());
        shown.Run([&] {
            auto const& bar = shown.Find<QProgressBar>("prgSearch");
            QVERIFY(shown.IsSearching());
            QTRY_COMPARE(bar.value(), 2);
            QCOMPARE(bar.maximum(), search::MostCycles);
            QCOMPARE(shown.Result(), u"Searching..."_s);
            QVERIFY(!shown.MayAccept());
            search.HoldBehind(5);
            QTRY_COMPARE(bar.value(), 5);
            QVERIFY(shown.IsSearching());
            search.Release();
            QVERIFY(shown.WaitForEnd());
        });
    }

    void AModelThatIsThereCanBeTakenBeforeTheSearchEnds() {
        StagedSearch search;
        search.HoldBehind(3);
        ShownSearch shown("q060.txt", search.Routine());
        auto const model = shown.Run([&] {
            QTRY_VERIFY(shown.MayAccept());
            QVERIFY(shown.IsSearching());
            shown.Press(Qt::Key_Return);
        });
        QCOMPARE(model.value().Cycles, StagedSearch::ModelOf(3).Cycles);
        QTRY_COMPARE(search.RunningCount(), 0);
    }

    void EnterWaitsForNothing() {
        StagedSearch search;
        search.HoldBehind(1);
        ShownSearch shown("q060.txt", search.Routine());
        auto const model = shown.Run([&] {
            QTRY_COMPARE(shown.Find<QProgressBar>("prgSearch").value(), 1);
            shown.Press(Qt::Key_Return);
            QVERIFY(shown.Window->isVisible());
        });
        QVERIFY(!model.has_value());
    }

    void CancelAnswersAtOnceAndEndsTheSearch_data() {
        QTest::addColumn<int>("way");
        QTest::newRow("Escape") << 0;
        QTest::newRow("Cancel") << 1;
        QTest::newRow("the frame's button") << 2;
        QTest::newRow("File > Exit") << 3;
    }

    void CancelAnswersAtOnceAndEndsTheSearch() {
        QFETCH(int, way);
        QVERIFY(tests::ShortestOf(3, AtOnce, [way] { return TimeOfCancelling(way); }) < AtOnce);
    }

    // How long it takes until no search runs.
    static std::chrono::nanoseconds TimeOfCancelling(int way) {
        StagedSearch search;
        search.HoldBehind(4);
        ShownSearch shown("q060.txt", search.Routine());
        QElapsedTimer timer;
        auto const model = shown.Run([&] {
            QTRY_VERIFY(shown.MayAccept());
            QCOMPARE(search.RunningCount(), 1);
            timer.start();
            switch (way) {
            case 0:
                shown.Press(Qt::Key_Escape);
                break;
            case 1:
                PressButton(shown, QDialogButtonBox::Cancel);
                break;
            case 2:
                shown.Window->close();
                break;
            default:
                shown.Find<QAction>("mnuFileExit").trigger();
            }
            QVERIFY(!shown.Window->isVisible());
        });
        [&] {
            QVERIFY(!model.has_value());
            QTRY_COMPARE(search.RunningCount(), 0);
        }();
        return std::chrono::milliseconds(timer.elapsed());
    }

    void TheLongestSearchIsCancelledAtOnceToo() {
        auto const cancel = [] {
            ShownSearch shown("q500.txt");
            QElapsedTimer timer;
            auto const model = shown.Run([&] {
                shown.TypeInto("spnShortest", u"2"_s);
                shown.TypeInto("spnLongest", u"500"_s);
                QTRY_VERIFY(shown.MayAccept());
                timer.start();
                shown.Press(Qt::Key_Escape);
            });
            auto const duration = std::chrono::milliseconds(timer.elapsed());
            [&] { QVERIFY(!model.has_value()); }();
            return duration;
        };
        QVERIFY(tests::ShortestOf(3, AtOnce, cancel) < AtOnce);
    }

    void AnEmptyRangeIsRefused() {
        ShownSearch shown("q060.txt");
        auto const model = shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.TypeInto("spnShortest", u"50"_s);
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Result(), u"No period lies between 50 and 30 days."_s);
            QVERIFY(!shown.MayAccept());
            QVERIFY(shown.TableRows().isEmpty());
            QCOMPARE(shown.Find<platform::qt::PictureBox>("Pic1").accessibleDescription(),
                     u"Nothing was found yet."_s);
            shown.Press(Qt::Key_Return);
            QVERIFY(shown.Window->isVisible());
            shown.TypeInto("spnLongest", u"55"_s);
            QVERIFY(shown.WaitForEnd());
            QVERIFY(shown.MayAccept());
        });
        QVERIFY(!model.has_value());
    }

    void AMovingAverageWithoutAChangeIsRefused() {
        ShownSearch shown("q060.txt");
        shown.Curves->MovingAverageCurve.Fill(7);
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Result(), u"The moving average does not change: there is no cycle in it."_s);
            QVERIFY(!shown.MayAccept());
        });
    }

    void DatesWithoutQuotesAreRefused() {
        ShownSearch shown("q060.txt");
        shown.Series->WorkingCount = 0;
        shown.Run([&] {
            QVERIFY(!shown.IsSearching());
            QCOMPARE(shown.Result(), u"No quotes lie within the range of dates."_s);
            QVERIFY(!shown.MayAccept());
        });
    }

    void WithoutTheTrendBothCorrelationsAreTold() {
        ShownSearch shown("q250.txt");
        auto const expected = Searched(shown, 3, true).Models.at(2);
        auto const inGrid = search::CompositeInGrid(expected, *shown.Curves, 250);
        shown.Run([&] {
            shown.Find<QCheckBox>("chkDetrend").click();
            QVERIFY(shown.WaitForEnd());
            QCOMPARE(shown.Result(), ToQt(search::DescribeModel(expected, 3, true, inGrid)));
            QVERIFY(shown.Result().contains(u"less its trend"));
            auto const& frame = shown.Find<QGroupBox>("fraCorrelation");
            QCOMPARE(frame.title(), u"Correlation with the Moving Average less its Trend"_s);
            shown.Find<QCheckBox>("chkDetrend").click();
            QCOMPARE(frame.title(), u"Correlation with the Moving Average"_s);
        });
    }

    void AFaultIsShownAndTheWindowStays() {
        ShownSearch shown("q060.txt",
                          [](auto const&...) -> search::SearchOutcome { throw std::bad_alloc(); });
        shown.Run([&] {
            QTRY_COMPARE(shown.Answers.Shown().size(), 2);
            QVERIFY(shown.Window->isVisible());
            QVERIFY(!shown.IsSearching());
            QVERIFY(!shown.MayAccept());
        });
        QVERIFY(shown.Answers.Shown().contains(OkMessage(u"Quorvex"_s, u"critical"_s, u"Out of memory"_s)));
    }

    void TheBoxesStayForTheNextCall() {
        StagedSearch search;
        ShownSearch shown("q250.txt", search.Routine());
        shown.Run([&] {
            shown.TypeInto("spnCycles", u"6"_s);
            shown.TypeInto("spnShortest", u"9"_s);
            shown.Find<QCheckBox>("chkDetrend").click();
        });
        shown.Series->WorkingCount = 100;
        shown.Run([&] {
            QCOMPARE(shown.Spin("spnCycles").value(), 6);
            QCOMPARE(shown.Spin("spnShortest").value(), 9);
            QVERIFY(shown.Find<QCheckBox>("chkDetrend").isChecked());
            QCOMPARE(shown.Spin("spnLongest").value(), 50); // nobody has changed it
            shown.TypeInto("spnLongest", u"77"_s);
        });
        shown.Series->WorkingCount = 250;
        shown.Run([&] { QCOMPARE(shown.Spin("spnLongest").value(), 77); });
    }

    void AnotherCallSearchesWhatIsThereThen() {
        ShownSearch shown("q250.txt");
        QStringList rows;
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            rows = shown.TableRows();
        });
        shown.Settings.MovingAverageIndex = "25";
        shown.RefreshMovingAverage();
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            QVERIFY(!shown.TableRows().isEmpty());
            QVERIFY(shown.TableRows() != rows);
        });
    }

    void TheWindowMayGoDuringASearch() {
        StagedSearch search;
        search.HoldBehind(1);
        ShownSearch shown("q060.txt", search.Routine());
        shown.Window->show();
        shown.Spin("spnShortest").setValue(8);
        QTRY_COMPARE(search.RunningCount(), 1);
        shown.Window.reset();
        QCOMPARE(search.RunningCount(), 0);
        QCoreApplication::processEvents();
    }

    void TheChartTellsWhatItShows() {
        StagedSearch search;
        ShownSearch shown("q060.txt", search.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            auto& chart = shown.Find<platform::qt::PictureBox>("Pic1");
            std::vector<search::CycleModel> models;
            for (int count = 1; count <= search::MostCycles; ++count) {
                models.push_back(StagedSearch::ModelOf(count));
            }
            QCOMPARE(chart.accessibleDescription(), ToQt(search::DescribeSearch(models, 3)));
            double const width = chart.Drawing().Width();
            QCOMPARE(ToolTipAt(chart, {static_cast<int>(search::PlaceOfCount(width, 4) / 15), 50}),
                     ToQt(search::DescribeCount(models, 4)));
            QCOMPARE(ToolTipAt(chart, {3, 50}), QString());
            chart.setFocus();
            QTest::keyClick(&chart, Qt::Key_End);
            QVERIFY(QToolTip::text().startsWith(u"10 cycles\nCorrelation: 90.00%"));
            QImage const before = chart.Picture().copy();
            shown.Spin("spnCycles").setValue(8);
            QVERIFY(chart.Picture() != before);
            QVERIFY(chart.accessibleDescription().endsWith(u"Chosen: 8 cycles."));
        });
    }

    void TheChartFollowsTheWindowsSize() {
        StagedSearch search;
        ShownSearch shown("q060.txt", search.Routine());
        shown.Run([&] {
            auto const& chart = shown.Find<platform::qt::PictureBox>("Pic1");
            QSize const before = chart.Picture().size();
            shown.Window->resize(shown.Window->size() + QSize(90, 60));
            QTRY_COMPARE(chart.Picture().size(), before + QSize(90, 60));
        });
    }

    void TabGoesThroughTheBoxesToTheButtons() {
        StagedSearch search;
        ShownSearch shown("q060.txt", search.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            QStringList names;
            for (int step = 0; step < 10; ++step) {
                QWidget const* focus = QApplication::focusWidget();
                auto const* button = qobject_cast<QPushButton const*>(focus);
                names.append(button == nullptr ? focus->objectName() : button->text().remove(u'&'));
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(
                names.join(u' '),
                u"spnCycles spnShortest spnLongest spnSwing chkDetrend tblCycles Pic1 OK Cancel spnCycles"_s);
        });
    }

    void LettersReachTheBoxes() {
        StagedSearch search;
        ShownSearch shown("q060.txt", search.Routine());
        shown.Run([&] {
            for (auto const& [key, name] :
                 {std::pair(Qt::Key_S, "spnShortest"), std::pair(Qt::Key_L, "spnLongest"),
                  std::pair(Qt::Key_N, "spnCycles")}) {
                shown.Press(key, Qt::AltModifier);
                QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(name));
            }
            shown.Press(Qt::Key_T, Qt::AltModifier);
            QTRY_VERIFY(shown.Find<QCheckBox>("chkDetrend").isChecked());
        });
    }

    void TenCyclesAndTheLongestSentenceHaveRoom() {
        ShownSearch shown("q250.txt");
        shown.Run([&] {
            shown.Find<QCheckBox>("chkDetrend").click();
            shown.Spin("spnCycles").setValue(10);
            QVERIFY(shown.WaitForEnd());
            auto const& table = shown.Find<QTableWidget>("tblCycles");
            QVERIFY(!table.verticalScrollBar()->isVisible());
            QVERIFY(!table.horizontalScrollBar()->isVisible());
            QAbstractItemView const& view = table; // which lets everyone ask
            for (int column = 0; column < table.columnCount(); ++column) {
                QVERIFY(view.sizeHintForColumn(column) <= table.columnWidth(column));
            }
            auto const& label = shown.Find<QLabel>("lblResult");
            QVERIFY(label.heightForWidth(label.width()) <= label.height());
        });
    }

    void TheMenuHasPrintAndExit() {
        StagedSearch search;
        ShownSearch const shown("q060.txt", search.Routine());
        QStringList items;
        for (QAction const* item : shown.Find<QMenu>("mnuFile").actions()) {
            items.append(item->objectName() + u' ' + item->text());
        }
        QCOMPARE(items, QStringList({u"mnuFilePrint &Print"_s, u"mnuFileExit E&xit"_s}));
    }

    void PrintPrintsTheWindow() {
        StagedSearch search;
        ShownSearch shown("q060.txt", search.Routine());
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            shown.Find<QAction>("mnuFilePrint").trigger();
        });
        QCOMPARE(shown.Dialogs.Messages.size(), 1U);
        QCOMPARE(shown.Folder.EntryCount(), 1);
        auto const pages = WordsOf(shown.Folder.Read("Quorvex - Find Best Cycles - [q060.txt].pdf"));
        for (auto const word : {u"Weight", u"Number", u"62.00%", u"correlation"}) {
            QVERIFY2(pages.contains(QStringView(word)), qPrintable(pages));
        }
    }
};

template struct ListedWindowTest<frmFindCyclesTest>;

} // namespace quorvex::tests

#include "frmFindCyclesTest.moc"
