// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/ChartColours.h"
#include "platform/pictures/Painting.h"
#include "platform/qt/PictureBox.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::qt::PictureBox;

namespace {

bool HasColour(QImage const& image, platform::Colour colour) {
    QRgb const wanted = platform::pictures::ToQt(colour).rgb();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            // Antialiased: near enough.
            QColor const pixel(image.pixel(x, y));
            int const distance = std::abs(pixel.red() - qRed(wanted)) +
                                 std::abs(pixel.green() - qGreen(wanted)) +
                                 std::abs(pixel.blue() - qBlue(wanted));
            if (distance < 90) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

class frmLegendTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void NamesTheCurvesOfTheFourCharts() {
        RunningWindow main;
        QString title;
        QStringList texts;
        main.Answers.Next([&](QWidget& window) {
            title = window.windowTitle();
            for (char const* frame : {"fraQuotes", "fraIndividual", "fraAggregate", "fraResidual"}) {
                auto const* group = window.findChild<QGroupBox*>(QLatin1String(frame));
                texts.append(group->title());
                for (auto const* label : group->findChildren<QLabel*>()) {
                    texts.append(u"  "_s + label->text());
                }
            }
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuLegend");
        QCOMPARE(title, u"Quorvex - Legend"_s);
        QCOMPARE(texts, QStringList({u"Daily Bar Chart"_s, u"  Daily Quotes (Open, High, Low, Close)"_s,
                                     u"  Unweighted Centered Moving Average"_s, u"Individual"_s,
                                     u"  Individual Component Cycles"_s, u"Aggregate"_s,
                                     u"  Composite Estimate Cycle"_s, u"Residual"_s,
                                     u"  Moving Average minus Composite Cycle"_s}));
    }

    void ShowsThemInTheColoursOfTheCharts() {
        RunningWindow main;
        QStringList missing;
        main.Answers.Next([&](QWidget& window) {
            auto const require = [&](char const* name, platform::Colour colour) {
                if (!HasColour(window.findChild<PictureBox*>(QLatin1String(name))->Picture(), colour)) {
                    missing.append(QLatin1String(name));
                }
            };
            require("picQuotes", chart::QuoteColour);
            require("picMovingAverage", chart::MovingAverageColour);
            require("picCycles", chart::CycleColour(1));
            require("picCycles", chart::CycleColour(2));
            require("picComposite", chart::CompositeColour);
            require("picResidual", chart::ResidualColour);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuLegend");
        QCOMPARE(missing, QStringList());
    }

    void ExitClosesIt() {
        RunningWindow main;
        QString caption;
        main.Answers.Next([&](QWidget& window) {
            auto* exit = window.findChild<QAction*>(u"mnuExit"_s);
            caption = exit->text();
            exit->trigger();
        });
        main.Choose("mnuLegend");
        QCOMPARE(caption, u"E&xit"_s);
        QVERIFY(main.Answers.IsDone());
        QVERIFY(!main.Window->findChild<QWidget*>(u"frmLegend"_s)->isVisible());
    }
};

template struct ListedWindowTest<frmLegendTest>;

} // namespace quorvex::tests

#include "frmLegendTest.moc"
