// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/basProperties.h"
#include "platform/pictures/QtTexts.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QLabel>
#include <QPushButton>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::ToQt;

class frmPropertiesTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void WithoutQuotesAMessageAsksForThem() {
        RunningWindow main;
        main.Choose("mnuFileProperties");
        QCOMPARE(main.Answers.Shown(), QStringList(OkMessage(u"Quorvex - Properties"_s, u"information"_s,
                                                             u"Please load a quote data file"_s)));
    }

    void ShowsEveryFigureOfTheCore() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        QStringList shown;
        QString title;
        main.Answers.Next([&](QWidget& window) {
            title = window.windowTitle();
            for (auto const& caption : auxiliary::DescribeQuotes(main.Data->Quotes, "####0.00")) {
                auto const* label = window.findChild<QLabel*>(ToQt(caption.Label));
                shown.append(label == nullptr ? u"?"_s : label->text());
            }
            ClickButton(window, u"cmdExit"_s);
        });
        main.Choose("mnuFileProperties");
        QStringList expected;
        for (auto const& caption : auxiliary::DescribeQuotes(main.Data->Quotes, "####0.00")) {
            expected.append(ToQt(caption.Caption));
        }
        QCOMPARE(title, u"Quorvex - Quote Data Set Properties"_s);
        QCOMPARE(shown, expected);
        QCOMPARE(shown.first(), u"  q060.txt"_s);
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmProperties"_s));
    }

    void NamesItsFigures() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        QStringList captions;
        main.Answers.Next([&](QWidget& window) {
            for (char const* name :
                 {"StartDate", "EndDate", "NumQuotes", "Open", "High", "Low", "Close", "Range", "Mean"}) {
                captions.append(
                    window.findChild<QLabel*>(u"lbl%1Caption"_s.arg(QLatin1String(name)))->text());
            }
            captions.append(window.findChild<QPushButton*>(u"cmdExit"_s)->text());
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuFileProperties");
        QCOMPARE(captions, QStringList({u"Start Date"_s, u"End Date"_s, u"No. of Quotes"_s, u"Open"_s,
                                        u"High"_s, u"Low"_s, u"Close"_s, u"Range"_s, u"Mean"_s, u"Exit"_s}));
    }

    void FollowsTheQuotesFromOneTimeToTheNext() {
        RunningWindow main;
        QStringList names;
        auto const note = [&](QWidget& window) {
            names.append(window.findChild<QLabel*>(u"lblQuoteFileName"_s)->text());
            QTest::keyClick(&window, Qt::Key_Escape);
        };
        for (char const* file : {"q060.txt", "q025.txt"}) {
            main.OpenQuotes(file);
            main.Answers.Next(note);
            main.Choose("mnuFileProperties");
        }
        QCOMPARE(names, QStringList({u"  q060.txt"_s, u"  q025.txt"_s}));
        QCOMPARE(main.Window->findChildren<QWidget*>(u"frmProperties"_s).size(), 1); // kept for later
    }

    void AFaultTakesTheLastFiguresAway() {
        RunningWindow main;
        QStringList names;
        auto const note = [&](QWidget& window) {
            names.append(window.findChild<QLabel*>(u"lblQuoteFileName"_s)->text());
            QTest::keyClick(&window, Qt::Key_Escape);
        };
        main.OpenQuotes("q060.txt");
        main.Answers.Next(note);
        main.Choose("mnuFileProperties");
        main.Data->Quotes.Working[1].Close = 1.7e308;
        main.Data->Quotes.Working[2].Close = 1.7e308;
        main.Answers.Next(note);
        main.Choose("mnuFileProperties");
        QCOMPARE(names, QStringList({u"  q060.txt"_s, QString()}));
        QVERIFY(main.Answers.Shown().contains(OkMessage(u"Quorvex"_s, u"none"_s, u"Overflow"_s)));
    }
};

template struct ListedWindowTest<frmPropertiesTest>;

} // namespace quorvex::tests

#include "frmPropertiesTest.moc"
