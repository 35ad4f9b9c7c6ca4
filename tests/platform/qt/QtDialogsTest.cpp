// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/QtDialogs.h"

#include "text/RunTimeError.h"
#include "windows/ModalAnswers.h"
#include "windows/WindowTest.h"

#include <QDialog>
#include <QFontInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <new>
#include <stdexcept>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::Answer;
using platform::Buttons;
using platform::Icon;
using platform::qt::AskInputBox;
using platform::qt::RunGuarded;
using platform::qt::ShowMessageBox;

class QtDialogsTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void AMessageShowsItsTextTitleAndIcon() {
        ModalAnswers answers;
        QWidget window;
        ShowMessageBox(window, {"Text", "Title", Icon::None});
        ShowMessageBox(window, {"Text", "Title", Icon::Information});
        ShowMessageBox(window, {"Text", "Title", Icon::Exclamation});
        ShowMessageBox(window, {"Text", "Title", Icon::Critical});
        ShowMessageBox(window, {"Text", "Title", Icon::Question});
        QCOMPARE(answers.Shown(), QStringList({u"Title|none|OK|Text"_s, u"Title|information|OK|Text"_s,
                                               u"Title|exclamation|OK|Text"_s, u"Title|critical|OK|Text"_s,
                                               u"Title|question|OK|Text"_s}));
    }

    void MarkupInAMessageIsPlainText() {
        ModalAnswers answers;
        QWidget window;
        answers.NextMessage([](QWidget& shown) {
            QCOMPARE(qobject_cast<QMessageBox*>(&shown)->textFormat(), Qt::PlainText);
            shown.close();
        });
        ShowMessageBox(window, {"<i>a</i>\nb", "Title"});
        QCOMPARE(answers.Shown(), QStringList(u"Title|none|OK|<i>a</i>\nb"_s));
    }

    void AMessageIsOkHoweverItIsClosed() {
        ModalAnswers answers;
        QWidget window;
        answers.NextMessage([](QWidget& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
        QCOMPARE(ShowMessageBox(window, {"Text", "Title"}), Answer::Ok);
        answers.NextMessage([](QWidget& shown) { shown.close(); });
        QCOMPARE(ShowMessageBox(window, {"Text", "Title"}), Answer::Ok);
        QCOMPARE(ShowMessageBox(window, {"Text", "Title"}), Answer::Ok);
    }

    void AQuestionAnswersWithItsButton() {
        ModalAnswers answers;
        QWidget window;
        platform::Message const question = {"Save?", "Title", Icon::None, Buttons::YesNoCancel};
        answers.Click(QMessageBox::Yes);
        QCOMPARE(ShowMessageBox(window, question), Answer::Yes);
        answers.Click(QMessageBox::No);
        QCOMPARE(ShowMessageBox(window, question), Answer::No);
        answers.Click(QMessageBox::Cancel);
        QCOMPARE(ShowMessageBox(window, question), Answer::Cancel);
        answers.Escape();
        QCOMPARE(ShowMessageBox(window, question), Answer::Cancel);
        answers.Next([](QWidget& shown) { QTest::keyClick(&shown, Qt::Key_Return); });
        QCOMPARE(ShowMessageBox(window, question), Answer::Yes);
        answers.Next([](QWidget& shown) { shown.close(); });
        QCOMPARE(ShowMessageBox(window, question), Answer::Cancel);
        QCOMPARE(answers.Shown().front(), u"Title|none|Yes No Cancel|Save?"_s);
    }

    void AMessageStandsOverTheDialogThatTheUserIsIn() {
        ModalAnswers answers;
        QWidget window;
        QDialog dialog(&window);
        QWidget* parent = nullptr;
        answers.NextMessage([&parent](QWidget& shown) {
            parent = shown.parentWidget();
            shown.close();
        });
        answers.Next([&window](QWidget& shown) {
            ShowMessageBox(window, {"Text", "Title"});
            shown.close();
        });
        dialog.exec();
        QCOMPARE(parent, &dialog);
        answers.NextMessage([&parent](QWidget& shown) {
            parent = shown.parentWidget();
            shown.close();
        });
        ShowMessageBox(window, {"Text", "Title"});
        QCOMPARE(parent, &window);
    }

    void AnInputBoxAsksWithADefault() {
        ModalAnswers answers;
        QWidget window;
        answers.Next([](QWidget& shown) {
            shown.findChild<QLineEdit*>()->setText(u"new \u00E9.txt"_s);
            QTest::keyClick(&shown, Qt::Key_Return);
        });
        QCOMPARE(AskInputBox(window, {"Prompt", "Title", "old.txt"}), std::string("new \xC3\xA9.txt"));
        QCOMPARE(answers.Shown(), QStringList(u"Title|Prompt|old.txt"_s));
    }

    void TypingReplacesTheDefault() {
        ModalAnswers answers;
        QWidget window;
        answers.Next([](QWidget& shown) {
            auto* edit = shown.findChild<QLineEdit*>();
            QCOMPARE(edit->accessibleName(), u"Prompt"_s);
            QCOMPARE(QApplication::focusWidget(), edit);
            QTest::keyClicks(edit, u"x"_s);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        QCOMPARE(AskInputBox(window, {"Prompt", "Title", "old.txt"}), std::string("x"));
    }

    void AnInputBoxThatIsLeftAloneAnswersWithItsDefault() {
        ModalAnswers answers;
        QWidget window;
        answers.Next([](QWidget& shown) { QTest::keyClick(&shown, Qt::Key_Return); });
        QCOMPARE(AskInputBox(window, {"Prompt", "Title", "old.txt"}), std::string("old.txt"));
    }

    void ACancelledInputBoxAnswersWithNothing() {
        ModalAnswers answers;
        QWidget window;
        answers.Escape();
        QCOMPARE(AskInputBox(window, {"Prompt", "Title", "old.txt"}), std::string());
        answers.Next([](QWidget& shown) { shown.close(); });
        QCOMPARE(AskInputBox(window, {"Prompt", "Title", "old.txt"}), std::string());
    }

    void WhatEndsARoutineIsShown() {
        ModalAnswers answers;
        QWidget window;
        RunGuarded(window, [] {});
        RunGuarded(window, [] { throw text::RunTimeError(text::Fault::DiskFull); });
        RunGuarded(window, [] { throw std::bad_alloc(); });
        RunGuarded(window, [] { throw std::runtime_error("no idea"); });
        QCOMPARE(answers.Shown(),
                 QStringList({u"Quorvex|none|OK|Disk full"_s, u"Quorvex|critical|OK|Out of memory"_s,
                              u"Quorvex|critical|OK|no idea"_s}));
    }

    void TheFontOfTheProgramHasTheMeasuresOfArial() {
        QCOMPARE(QApplication::font().family(), u"Arial"_s);
        QCOMPARE(QApplication::font().pointSize(), 9);
        QVERIFY(QFont::substitutes(u"Arial"_s).contains(u"Liberation Sans"_s, Qt::CaseInsensitive));
    }

    void AWindowGoesToTheMiddleOfItsScreen() {
        QWidget window;
        window.resize(300, 200);
        platform::qt::CentreForm(window);
        QRect const screen = window.screen()->availableGeometry();
        QCOMPARE(window.pos(), QPoint(screen.left() + (screen.width() - 300) / 2,
                                      screen.top() + (screen.height() - 200) / 2));
    }
};

} // namespace quorvex::tests

int main(int argc, char** argv) {
    return quorvex::tests::RunWindowTest<quorvex::tests::QtDialogsTest>(argc, argv);
}

#include "QtDialogsTest.moc"
