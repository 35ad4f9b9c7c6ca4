// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/ui/ShownForecast.h"
#include "convert/ui/ShownConverter.h"
#include "convert/ui/frmConvertBarChart.h"
#include "convert/ui/frmConvertCSI.h"
#include "convert/ui/frmConvertCustom.h"
#include "cycles/ui/frmParameter.h"
#include "editor/ui/ShownEditor.h"
#include "platform/qt/QtDialogs.h"
#include "quotes/ui/frmQuotes.h"
#include "search/ui/ShownSearch.h"
#include "support/QuoteTexts.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QAccessible>
#include <array>
#include <utility>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

// Every visible element that can have the focus, as "role name".
void CollectFocusable(QAccessibleInterface const& element, QStringList& names) {
    QAccessible::State const state = element.state();
    if (state.invisible) {
        return;
    }
    if (state.focusable) {
        names.append(u"%1 %2"_s.arg(element.role()).arg(element.text(QAccessible::Name)));
    }
    for (int index = 0; index < element.childCount(); ++index) {
        if (QAccessibleInterface const* child = element.child(index); child != nullptr) {
            CollectFocusable(*child, names);
        }
    }
}

QStringList FocusableOf(QWidget& window) {
    QStringList names;
    CollectFocusable(*QAccessible::queryAccessibleInterface(&window), names);
    return names;
}

// That everything that can have the focus is called something.
void VerifyNamed(QWidget& window, int least) {
    QStringList const names = FocusableOf(window);
    for (QString const& name : names) {
        QVERIFY2(!name.section(u' ', 1).isEmpty(), qPrintable(u"no name in "_s + names.join(u", "_s)));
    }
    QVERIFY2(names.size() >= least, qPrintable(names.join(u", "_s)));
}

} // namespace

class AccessibilityTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void EveryControlOfTheMainWindowHasAName() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        VerifyNamed(*main.Window, 40 + 4 + 2);
    }

    void TheChartsAreCharts() {
        RunningWindow main;
        std::array<QString, 4> const names = {u"Daily quotes chart"_s, u"Component cycles chart"_s,
                                              u"Composite estimate cycle chart"_s, u"Residual chart"_s};
        for (int number = 1; number <= 4; ++number) {
            QAccessibleInterface* chart = QAccessible::queryAccessibleInterface(&main.Box(number));
            QCOMPARE(chart->role(), QAccessible::Chart);
            QCOMPARE(chart->text(QAccessible::Name), names.at(static_cast<std::size_t>(number - 1)));
            QCOMPARE(chart->text(QAccessible::Description), main.Box(number).accessibleDescription());
            QVERIFY(!chart->text(QAccessible::Description).isEmpty());
        }
    }

    void CellsTellTheirTexts() {
        RunningWindow main;
        main.TypeInto(1, 3, u"50"_s);
        QAccessibleInterface* cell = QAccessible::queryAccessibleInterface(&main.Cell(1, 3));
        QCOMPARE(cell->role(), QAccessible::EditableText);
        QCOMPARE(cell->text(QAccessible::Name), u"Cycle 3 Weight"_s);
        QCOMPARE(cell->text(QAccessible::Value), u"50"_s);
        QVERIFY(cell->state().focused);
    }

    void EveryControlOfTheChoosersHasAName() {
        std::array<std::string, 2> const files = {"a.txt", "b.txt"};
        ModalAnswers answers;
        answers.Next([](QWidget& window) {
            VerifyNamed(window, 3);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        QVERIFY(!quotes::ui::frmQuotes(nullptr).Choose(files));
        answers.Next([](QWidget& window) {
            VerifyNamed(window, 3);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        QVERIFY(!cycles::ui::frmParameter(nullptr).Choose(files));
    }

    void EveryControlOfTheForecastHasAName() {
        ShownForecast shown(QuoteLines(100), "corn.txt");
        shown.Show();
        VerifyNamed(*shown.Window, 3);
        QAccessibleInterface* chart = QAccessible::queryAccessibleInterface(&shown.Chart());
        QCOMPARE(chart->role(), QAccessible::Chart);
        QCOMPARE(chart->text(QAccessible::Name), u"Forecast chart"_s);
    }

    void EveryControlOfTheSearchHasAName() {
        ShownSearch shown("q250.txt");
        shown.Run([&] {
            QVERIFY(shown.WaitForEnd());
            VerifyNamed(*shown.Window, 4 + 3 * 4 + 1 + 2);
            QAccessibleInterface* chart =
                QAccessible::queryAccessibleInterface(&shown.Find<platform::qt::PictureBox>("Pic1"));
            QCOMPARE(chart->role(), QAccessible::Chart);
            QCOMPARE(chart->text(QAccessible::Name), u"Correlation chart"_s);
        });
    }

    void EveryControlOfTheEditorHasAName() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] { VerifyNamed(*shown.Window, 30 * 7 + 1); });
    }

    void EveryControlOfTheConvertersHasAName() {
        ConverterSurroundings around;
        convert::ui::frmConvertBarChart barchart(nullptr, around.Files, around.Dialogs, around.Printing,
                                                 [] {});
        convert::ui::frmConvertCSI csi(nullptr, around.Files, around.Dialogs, around.Printing);
        convert::ui::frmConvertCustom custom(nullptr, around.Files, around.Dialogs, around.Printing, [] {});
        constexpr int CommonControls = 5;
        for (auto const& [window, controls] :
             {std::pair<QDialog*, int>(&barchart, 8), std::pair<QDialog*, int>(&csi, 0),
              std::pair<QDialog*, int>(&custom, 3 + 7)}) {
            ShowWindow(*window);
            VerifyNamed(*window, CommonControls + controls);
            window->hide();
        }
    }

    void EveryControlOfTheBoxesHasAName() {
        ModalAnswers answers;
        QWidget window;
        answers.NextMessage([](QWidget& box) {
            VerifyNamed(box, 1);
            box.close();
        });
        platform::qt::ShowMessageBox(window, {"Text", "Title"});
        answers.Next([](QWidget& box) {
            VerifyNamed(box, 3);
            box.close();
        });
        platform::qt::ShowMessageBox(window,
                                     {"Text", "Title", platform::Icon::None, platform::Buttons::YesNoCancel});
        answers.Next([](QWidget& box) {
            VerifyNamed(box, 3);
            box.close();
        });
        static_cast<void>(platform::qt::AskInputBox(window, {"Prompt", "Title", "text"}));
        QVERIFY(answers.IsDone());
    }
};

template struct ListedWindowTest<AccessibilityTest>;

} // namespace quorvex::tests

#include "AccessibilityTest.moc"
