// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/QtTexts.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QComboBox& List(QWidget& window, char const* name) {
    return *window.findChild<QComboBox*>(QLatin1String(name));
}

// Chooses as a click in the list does.
void Choose(QComboBox& list, QString const& text) {
    list.setCurrentIndex(list.findText(text));
    Q_EMIT list.activated(list.currentIndex());
}

QStringList Offers(QComboBox const& list) {
    QStringList offers;
    for (int index = 0; index < list.count(); ++index) {
        offers.append(list.itemText(index));
    }
    return offers;
}

void Trigger(QWidget& window, char const* item) {
    window.findChild<QAction*>(QLatin1String(item))->trigger();
}

} // namespace

class frmPreferencesTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void ShowsTheSettingsAndWhatIsOffered() {
        RunningWindow main;
        QStringList texts;
        QStringList offers;
        main.Answers.Next([&](QWidget& window) {
            texts = {window.windowTitle(), window.findChild<QLineEdit*>(u"txtDataPath"_s)->text()};
            for (char const* name : {"cboChartType", "cboDataSource", "cboMovingAverageIndex",
                                     "cboCurrencyFormat", "cboStartDate", "cboEndDate"}) {
                texts.append(List(window, name).currentText());
                offers.append(Offers(List(window, name)).join(u'|'));
            }
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuPreferences");
        QCOMPARE(texts, QStringList({u"Quorvex - Program Preferences"_s,
                                     platform::pictures::ToQt(main.Folder.Text()), u"Daily Bar Chart"_s,
                                     u"Close Only"_s, u"3"_s, u"####0.00"_s, u""_s, u""_s}));
        QCOMPARE(offers, QStringList({u"Daily Bar Chart|Candlestick Chart|Line Chart"_s,
                                      u"Close Only|High-Low Average|OHLC Average"_s, u"0|1|3|5|7|9"_s,
                                      u"####0|####0.0|####0.00|####0.000|####0.0000"_s, u""_s, u""_s}));
    }

    void CarriesItsCaptions() {
        RunningWindow main;
        QStringList captions;
        main.Answers.Next([&](QWidget& window) {
            for (auto const* group : window.findChildren<QGroupBox*>()) {
                captions.append(group->title());
            }
            for (char const* name :
                 {"lblDataSource", "lblMovingAverageIndex", "lblChartType", "lblCurrencyFormat",
                  "lblStartDate", "lblEndDate", "lblNumQuotesCaption"}) {
                captions.append(window.findChild<QLabel*>(QLatin1String(name))->text());
            }
            for (QAction const* item : window.findChild<QMenu*>(u"mnuFile"_s)->actions()) {
                captions.append(item->isSeparator() ? u"-"_s : item->objectName() + u' ' + item->text());
            }
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuPreferences");
        QCOMPARE(captions,
                 QStringList({u"Calculation Options"_s, u"Display Options"_s, u"Data Path"_s, u"Date Range"_s,
                              u"Data Source"_s, u"Moving Average Index"_s, u"Chart Type"_s,
                              u"Currency Format"_s, u"Start Date"_s, u"End Date"_s, u"Number of Quotes"_s,
                              u"mnuFileSave &Save Settings"_s, u"mnuFileRestore &Restore Defaults"_s, u"-"_s,
                              u"mnuFileExit E&xit"_s}));
    }

    void ExitTakesTheTextsOverAndTheChartsFollow() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        QImage const bars = main.Picture(1);
        main.Answers.Next([&](QWidget& window) {
            Choose(List(window, "cboChartType"), u"Candlestick Chart"_s);
            QCOMPARE(main.Data->Settings.ChartType, std::string("Candlestick Chart")); // at once
            List(window, "cboMovingAverageIndex").setEditText(u"4"_s);
            List(window, "cboCurrencyFormat").setEditText(u"0.000"_s);
            Trigger(window, "mnuFileExit");
        });
        main.Choose("mnuPreferences");
        QCOMPARE(main.Data->Settings.MovingAverageIndex, std::string("4"));
        QCOMPARE(main.Data->Settings.CurrencyFormat, std::string("0.000"));
        QVERIFY(main.Picture(1) != bars);
        QVERIFY(main.Box(1).accessibleDescription().startsWith(u"Candlestick chart of 60 days"_s));
        QCOMPARE(main.Profile.ReadString("Globals", "ChartType", "none"), std::string("none")); // not saved
    }

    void ClosedOtherwiseOnlyWhatTookEffectAtOnceStays_data() {
        QTest::addColumn<bool>("byEscape");
        QTest::newRow("Escape") << true;
        QTest::newRow("the frame's button") << false;
    }

    void ClosedOtherwiseOnlyWhatTookEffectAtOnceStays() {
        QFETCH(bool, byEscape);
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        settings::Settings expected = main.Data->Settings;
        expected.ChartType = "Candlestick Chart";
        expected.DataSource = "OHLC Average";
        main.Answers.Next([&](QWidget& window) {
            Choose(List(window, "cboChartType"), u"Candlestick Chart"_s);
            Choose(List(window, "cboDataSource"), u"OHLC Average"_s);
            Choose(List(window, "cboStartDate"), platform::pictures::ToQt(main.Data->Quotes.Master[11].Date));
            List(window, "cboChartType").setEditText(u"typed"_s);
            List(window, "cboMovingAverageIndex").setEditText(u"9"_s);
            List(window, "cboCurrencyFormat").setEditText(u"0.000"_s);
            window.findChild<QLineEdit*>(u"txtDataPath"_s)->setText(u"C:\\Elsewhere"_s);
            if (byEscape) {
                QTest::keyClick(&window, Qt::Key_Escape);
            } else {
                window.close();
            }
        });
        main.Choose("mnuPreferences");
        for (settings::SettingRow const& row : settings::SettingTable()) {
            QCOMPARE(main.Data->Settings.*row.Member, expected.*row.Member);
        }
        QCOMPARE(main.Data->Quotes.WorkingCount, 50);
        QCOMPARE(main.Profile.ReadString("Globals", "ChartType", "none"), std::string("none"));
    }

    void TheNextOpeningShowsTheSettingsAgain() {
        RunningWindow main;
        main.Answers.Next([](QWidget& window) {
            List(window, "cboCurrencyFormat").setEditText(u"0.000"_s);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuPreferences");
        QString shown;
        main.Answers.Next([&shown](QWidget& window) {
            shown = List(window, "cboCurrencyFormat").currentText();
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuPreferences");
        QCOMPARE(shown, u"####0.00"_s);
    }

    void SaveWritesTheFile() {
        RunningWindow main;
        main.Answers.Next([&](QWidget& window) {
            window.findChild<QLineEdit*>(u"txtDataPath"_s)->setText(u"C:\\Quotes"_s);
            List(window, "cboDataSource").setEditText(u"OHLC Average"_s);
            Trigger(window, "mnuFileSave");
            Trigger(window, "mnuFileExit");
        });
        main.Choose("mnuPreferences");
        QCOMPARE(main.Data->Settings.DataPath, std::string("C:\\Quotes\\"));
        QCOMPARE(main.Profile.ReadString("Globals", "DataSource", ""), std::string("OHLC Average"));
        QCOMPARE(main.Profile.ReadString("Globals", "ChartType", ""), std::string("Daily Bar Chart"));
    }

    void ADateRangeNarrowsChartsAndForecast() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        QString const start = platform::pictures::ToQt(main.Data->Quotes.Master[11].Date);
        QString const end = platform::pictures::ToQt(main.Data->Quotes.Master[50].Date);
        QString count;
        main.Answers.Next([&](QWidget& window) {
            QCOMPARE(List(window, "cboStartDate").count(), 60);
            QCOMPARE(window.findChild<QLineEdit*>(u"txtNumQuotes"_s)->text(), u"60"_s);
            Choose(List(window, "cboStartDate"), start);
            Choose(List(window, "cboEndDate"), end);
            count = window.findChild<QLineEdit*>(u"txtNumQuotes"_s)->text();
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuPreferences");
        QCOMPARE(count, u"40"_s);
        QCOMPARE(main.Data->Quotes.WorkingCount, 40);
        QVERIFY(main.Box(1).accessibleDescription().contains(u"40 days, "_s + start + u" to "_s + end));
    }

    void AResetRangeShowsItsCountBesideTheBox() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        QStringList counts;
        main.Answers.Next([&](QWidget& window) {
            auto const note = [&] {
                counts.append(window.findChild<QLineEdit*>(u"txtNumQuotes"_s)->text() + u'|' +
                              window.findChild<QLabel*>(u"lblNumQuotes"_s)->text());
            };
            note();
            Choose(List(window, "cboStartDate"), platform::pictures::ToQt(main.Data->Quotes.Master[11].Date));
            note();
            Choose(List(window, "cboEndDate"), platform::pictures::ToQt(main.Data->Quotes.Master[1].Date));
            note();
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuPreferences");
        QCOMPARE(counts, QStringList({u"60|"_s, u"50|"_s, u"50|60"_s}));
    }

    void AfterAResetArrowKeysGoOnFromTheDatesThatAreShown() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        auto const dateOf = [&main](std::int16_t day) {
            return platform::pictures::ToQt(main.Data->Quotes.Master[day].Date);
        };
        QStringList texts;
        main.Answers.Next([&](QWidget& window) {
            QComboBox& start = List(window, "cboStartDate");
            QComboBox& end = List(window, "cboEndDate");
            auto const note = [&] { texts.append(start.currentText() + u' ' + end.currentText()); };
            Choose(end, dateOf(1)); // not after the start: all days again
            note();
            QCOMPARE(end.itemText(end.currentIndex()), end.currentText());
            QTest::keyClick(&end, Qt::Key_Up);
            note();
            Choose(start, dateOf(60));
            note();
            QTest::keyClick(&start, Qt::Key_Down);
            note();
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuPreferences");
        QCOMPARE(texts, QStringList({dateOf(1) + u' ' + dateOf(60), dateOf(1) + u' ' + dateOf(59),
                                     dateOf(1) + u' ' + dateOf(60), dateOf(2) + u' ' + dateOf(60)}));
        QCOMPARE(main.Data->Quotes.WorkingCount, 59);
    }

    void RestoreDefaultsUndoesTheRangeAndKeepsThePath() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        QString const end = platform::pictures::ToQt(main.Data->Quotes.Master[50].Date);
        QStringList texts;
        main.Answers.Next([&](QWidget& window) {
            window.findChild<QLineEdit*>(u"txtDataPath"_s)->setText(u"C:\\Quotes"_s);
            List(window, "cboChartType").setEditText(u"Line Chart"_s);
            Choose(List(window, "cboEndDate"), end);
            Trigger(window, "mnuFileRestore");
            texts = {window.findChild<QLineEdit*>(u"txtDataPath"_s)->text(),
                     List(window, "cboChartType").currentText(), List(window, "cboEndDate").currentText()};
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuPreferences");
        QCOMPARE(texts, QStringList({u"C:\\Quotes"_s, u"Daily Bar Chart"_s,
                                     platform::pictures::ToQt(main.Data->Quotes.Master[60].Date)}));
        QCOMPARE(main.Data->Quotes.WorkingCount, 60);
        QCOMPARE(main.Profile.ReadString("Globals", "ChartType", "none"), std::string("none"));
    }
};

template struct ListedWindowTest<frmPreferencesTest>;

} // namespace quorvex::tests

#include "frmPreferencesTest.moc"
