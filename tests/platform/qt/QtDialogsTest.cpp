// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/QtDialogs.h"

#include "text/RunTimeError.h"
#include "windows/ModalAnswers.h"
#include "windows/PaintedLabel.h"
#include "windows/WindowTest.h"

#include <QAccessible>
#include <QDialog>
#include <QFontInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QWindow>
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

    void AMessageShowsNamesLetterForLetter() {
        ModalAnswers answers;
        QWidget window;
        bool isPlain = false;
        answers.NextMessage([&isPlain](QWidget& shown) {
            isPlain = ShowsLetterForLetter(*shown.findChild<QLabel*>(u"qt_msgbox_label"_s),
                                           QString::fromLatin1(AmbiguousName));
            shown.close();
        });
        ShowMessageBox(window, {AmbiguousName, "Title"});
        QVERIFY(isPlain);
    }

    void APromptShowsNamesLetterForLetter() {
        ModalAnswers answers;
        QWidget window;
        QString const prompt = u"Save %1 As..."_s.arg(QLatin1String(AmbiguousName));
        bool isPlain = false;
        answers.Next([&](QWidget& shown) {
            isPlain = ShowsLetterForLetter(*shown.findChild<QLabel*>(), prompt);
            // Nor does the letter after the sign move the focus.
            shown.findChild<QPushButton*>()->setFocus();
            QTest::keyClick(&shown, Qt::Key_P, Qt::AltModifier);
            QVERIFY(QApplication::focusWidget() != shown.findChild<QLineEdit*>());
            QTest::keyClick(&shown, Qt::Key_Escape);
        });
        QCOMPARE(AskInputBox(window, {prompt.toStdString(), "Title", AmbiguousName}), std::string());
        QVERIFY(isPlain);
        QCOMPARE(answers.Shown(), QStringList(u"Title|%1|%2"_s.arg(prompt, QLatin1String(AmbiguousName))));
    }

    void ACaptionIsShownAsItIs_data() {
        QTest::addColumn<QByteArray>("caption");
        QTest::newRow("once") << QByteArray("Quorvex - [a[*]b.txt]");
        QTest::newRow("twice") << QByteArray("[*][*].txt");
        QTest::newRow("three times") << QByteArray("[*][*][*] [*]");
        QTest::newRow("markup") << QByteArray(AmbiguousName);
    }

    void ACaptionIsShownAsItIs() {
        QFETCH(QByteArray, caption);
        QWidget window;
        platform::qt::SetCaption(window, caption.toStdString());
        window.show();
        QCOMPARE(window.windowHandle()->title(), QString::fromLatin1(caption));
        QCOMPARE(QAccessible::queryAccessibleInterface(&window)->text(QAccessible::Name),
                 QString::fromLatin1(caption));
    }

    void TheCaptionOfABoxIsShownAsItIs() {
        ModalAnswers answers;
        QWidget window;
        QStringList captions;
        answers.NextMessage([&captions](QWidget& shown) {
            captions.append(shown.windowHandle()->title());
            shown.close();
        });
        ShowMessageBox(window, {"Text", "a[*]b"});
        answers.Next([&captions](QWidget& shown) {
            captions.append(shown.windowHandle()->title());
            shown.close();
        });
        static_cast<void>(AskInputBox(window, {"Prompt", "a[*]b", ""}));
        QCOMPARE(captions, QStringList({u"a[*]b"_s, u"a[*]b"_s}));
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

template struct ListedWindowTest<QtDialogsTest>;

} // namespace quorvex::tests

#include "QtDialogsTest.moc"
