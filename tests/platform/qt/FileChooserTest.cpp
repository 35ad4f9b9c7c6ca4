// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/ui/frmParameter.h"
#include "quotes/ui/frmQuotes.h"
#include "windows/ModalAnswers.h"
#include "windows/PaintedLabel.h"
#include "windows/WindowTest.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <array>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

std::array<std::string, 3> const Names = {"b.txt", "a.TXT", "c d.txt"};

QListWidget& ListOf(QWidget& chooser) {
    return *chooser.findChild<QListWidget*>(u"lstFiles"_s);
}

QString LabelOf(QWidget& chooser) {
    return chooser.findChild<QLabel*>(u"lblFileName"_s)->text();
}

QPushButton& ButtonOf(QWidget& chooser, QString const& name) {
    return *chooser.findChild<QPushButton*>(name);
}

QPoint PlaceOf(QListWidget& list, int row) {
    return list.visualItemRect(list.item(row)).center();
}

// Looks at the chooser while it is open, then cancels it.
template <class Deed>
ModalAnswers::Deed LookAt(Deed deed) {
    return [deed](QWidget& chooser) {
        deed(chooser);
        QTest::keyClick(&chooser, Qt::Key_Escape);
    };
}

} // namespace

class FileChooserTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheChoosersAreCalledAfterWhatTheyChoose() {
        QWidget window;
        quotes::ui::frmQuotes const quotes(&window);
        QCOMPARE(quotes.objectName(), u"frmQuotes"_s);
        QCOMPARE(quotes.windowTitle(), u"Open Quote File"_s);
        cycles::ui::frmParameter const parameter(&window);
        QCOMPARE(parameter.objectName(), u"frmParameter"_s);
        QCOMPARE(parameter.windowTitle(), u"Open Cycle Parameter File"_s);
    }

    void TheListKeepsItsOrderAndNothingIsChosenAtFirst() {
        ModalAnswers answers;
        answers.Next(LookAt([](QWidget& chooser) {
            QListWidget const& list = ListOf(chooser);
            QCOMPARE(list.count(), 3);
            QCOMPARE(list.item(0)->text(), u"b.txt"_s);
            QCOMPARE(list.item(1)->text(), u"a.TXT"_s);
            QCOMPARE(list.item(2)->text(), u"c d.txt"_s);
            QCOMPARE(LabelOf(chooser), QString());
            QVERIFY(!ButtonOf(chooser, u"cmdOK"_s).isEnabled());
            QVERIFY(ButtonOf(chooser, u"cmdCancel"_s).isEnabled());
            QVERIFY(chooser.isModal());
        }));
        QVERIFY(!quotes::ui::frmQuotes(nullptr).Choose(Names));
        QVERIFY(answers.IsDone());
    }

    void ANameIsShownLetterForLetter() {
        ModalAnswers answers;
        QString const name = QString::fromLatin1(AmbiguousName);
        answers.Next([&name](QWidget& chooser) {
            QListWidget& list = ListOf(chooser);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 0));
            QVERIFY(ShowsLetterForLetter(*chooser.findChild<QLabel*>(u"lblFileName"_s), name));
            QCOMPARE(list.item(0)->text(), name);
            ClickButton(chooser, u"cmdOK"_s);
        });
        QCOMPARE(quotes::ui::frmQuotes(nullptr).Choose(std::array{std::string(AmbiguousName)}),
                 std::optional<std::string>(AmbiguousName));
    }

    void AClickShowsTheNameAndOkChoosesIt() {
        ModalAnswers answers;
        answers.Next([](QWidget& chooser) {
            QListWidget& list = ListOf(chooser);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 2));
            QCOMPARE(LabelOf(chooser), u"c d.txt"_s);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 1));
            QCOMPARE(LabelOf(chooser), u"a.TXT"_s);
            ClickButton(chooser, u"cmdOK"_s);
        });
        QCOMPARE(quotes::ui::frmQuotes(nullptr).Choose(Names), std::optional<std::string>("a.TXT"));
    }

    void EnterChoosesWhatTheArrowKeysReached() {
        ModalAnswers answers;
        answers.Next([](QWidget& chooser) {
            QCOMPARE(QApplication::focusWidget(), &ListOf(chooser));
            QTest::keyClick(&ListOf(chooser), Qt::Key_Down);
            QTest::keyClick(&ListOf(chooser), Qt::Key_Down);
            QCOMPARE(LabelOf(chooser), u"a.TXT"_s);
            QTest::keyClick(&ListOf(chooser), Qt::Key_Return);
        });
        QCOMPARE(cycles::ui::frmParameter(nullptr).Choose(Names), std::optional<std::string>("a.TXT"));
    }

    void EnterWithoutAChoiceChoosesNothing() {
        ModalAnswers answers;
        answers.Next([](QWidget& chooser) {
            QTest::keyClick(&ListOf(chooser), Qt::Key_Return);
            QVERIFY(chooser.isVisible());
            ClickButton(chooser, u"cmdCancel"_s);
        });
        QVERIFY(!quotes::ui::frmQuotes(nullptr).Choose(Names));
    }

    void ADoubleClickChooses() {
        ModalAnswers answers;
        answers.Next([](QWidget& chooser) {
            QListWidget& list = ListOf(chooser);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 0));
            QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 0));
        });
        QCOMPARE(quotes::ui::frmQuotes(nullptr).Choose(Names), std::optional<std::string>("b.txt"));
    }

    void CancelAndEscapeChooseNothing() {
        ModalAnswers answers;
        quotes::ui::frmQuotes chooser(nullptr);
        for (bool const byEscape : {false, true}) {
            answers.Next([byEscape](QWidget& window) {
                ListOf(window).setCurrentRow(1);
                if (byEscape) {
                    QTest::keyClick(&window, Qt::Key_Escape);
                } else {
                    ClickButton(window, u"cmdCancel"_s);
                }
            });
            QVERIFY(!chooser.Choose(Names));
        }
        QVERIFY(answers.IsDone());
    }

    void AChooserThatIsShownAgainForgetsTheLastChoice() {
        ModalAnswers answers;
        quotes::ui::frmQuotes chooser(nullptr);
        answers.Choose(u"b.txt"_s);
        QVERIFY(chooser.Choose(Names));
        answers.Next(LookAt([](QWidget& window) {
            QCOMPARE(ListOf(window).count(), 1);
            QCOMPARE(ListOf(window).currentRow(), -1);
            QCOMPARE(LabelOf(window), QString());
            QVERIFY(!ButtonOf(window, u"cmdOK"_s).isEnabled());
        }));
        std::array<std::string, 1> const other = {"only.txt"};
        QVERIFY(!chooser.Choose(other));
        QVERIFY(answers.IsDone());
    }

    void TheChooserStandsInTheMiddleOfTheScreen() {
        ModalAnswers answers;
        answers.Next(LookAt([](QWidget& chooser) {
            QPoint const off =
                chooser.frameGeometry().center() - chooser.screen()->availableGeometry().center();
            QVERIFY(off.manhattanLength() <= 4);
        }));
        QVERIFY(!quotes::ui::frmQuotes(nullptr).Choose(Names));
    }

    void TabGoesFromTheListToTheButtonsAndBack() {
        ModalAnswers answers;
        answers.Next(LookAt([](QWidget& chooser) {
            ListOf(chooser).setCurrentRow(0);
            QStringList names;
            for (int step = 0; step < 4; ++step) {
                names.append(QApplication::focusWidget()->objectName());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(names.join(u' '), u"lstFiles cmdOK cmdCancel lstFiles"_s);
        }));
        QVERIFY(!quotes::ui::frmQuotes(nullptr).Choose(Names));
        QVERIFY(answers.IsDone());
    }

    void ANameThatIsNoGoodUnicodeComesBackAsItIs() {
        ModalAnswers answers;
        std::array<std::string, 2> const names = {"caf\xC3\xA9.txt", "caf\xE9.txt"};
        answers.Next([](QWidget& chooser) {
            QCOMPARE(ListOf(chooser).item(0)->text(), u"caf\u00E9.txt"_s);
            ListOf(chooser).setCurrentRow(1);
            ClickButton(chooser, u"cmdOK"_s);
        });
        QCOMPARE(quotes::ui::frmQuotes(nullptr).Choose(names), std::optional<std::string>("caf\xE9.txt"));
    }

    void ANameWithMarkupIsShownAsItIs() {
        ModalAnswers answers;
        std::array<std::string, 1> const names = {"<b>bold</b>.txt"};
        answers.Next(LookAt([](QWidget& chooser) {
            ListOf(chooser).setCurrentRow(0);
            QCOMPARE(LabelOf(chooser), u"<b>bold</b>.txt"_s);
            QCOMPARE(chooser.findChild<QLabel*>(u"lblFileName"_s)->textFormat(), Qt::PlainText);
        }));
        QVERIFY(!quotes::ui::frmQuotes(nullptr).Choose(names));
    }
};

template struct ListedWindowTest<FileChooserTest>;

} // namespace quorvex::tests

#include "FileChooserTest.moc"
