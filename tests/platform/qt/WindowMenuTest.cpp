// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/WindowMenu.h"

#include "platform/qt/QtDialogs.h"
#include "text/RunTimeError.h"
#include "windows/ModalAnswers.h"
#include "windows/WindowTest.h"

#include <QDialog>
#include <memory>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::qt::WindowMenu;

namespace {

QStringList Outline(QList<QAction*> const& actions, QString const& indent) {
    QStringList lines;
    for (QAction const* action : actions) {
        QMenu const* menu = action->menu();
        QString const name = menu == nullptr ? action->objectName() : menu->objectName();
        lines.append(indent + (action->isSeparator() ? u"-"_s : name + u' ' + action->text()));
        if (menu != nullptr) {
            lines += Outline(menu->actions(), indent + u"  "_s);
        }
    }
    return lines;
}

} // namespace

class WindowMenuTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void ItemsStandInTheirMenusOrOnTheBar() {
        QWidget window;
        WindowMenu menu(window);
        menu.Item("mnuFirst", "F&irst", [] {})
            .Menu("mnuFile", "&File")
            .Item("mnuFilePrint", "&Print", [] {})
            .Separator()
            .Item("mnuFileExit", "E&xit", [] {})
            .OnBar()
            .Item("mnuHelp", "&Help", [] {});
        QCOMPARE(Outline(menu.Bar().actions(), QString()),
                 QStringList({u"mnuFirst F&irst"_s, u"mnuFile &File"_s, u"  mnuFilePrint &Print"_s, u"  -"_s,
                              u"  mnuFileExit E&xit"_s, u"mnuHelp &Help"_s}));
        QVERIFY(!menu.Bar().isNativeMenuBar());
        QCOMPARE(menu.Bar().parentWidget(), &window);
    }

    void AnItemRunsItsCommandOnceTheMenuIsClosed() {
        QWidget window;
        window.resize(300, 200);
        WindowMenu menu(window);
        bool isMenuOpen = true;
        menu.Menu("mnuFile", "&File").Item("mnuFilePrint", "&Print", [&isMenuOpen] {
            isMenuOpen = QApplication::activePopupWidget() != nullptr;
        });
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        ModalAnswers answers;
        answers.Next([&window](QWidget&) { window.findChild<QAction*>(u"mnuFilePrint"_s)->trigger(); });
        QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(!isMenuOpen);
        QCOMPARE(answers.Shown(), QStringList(u"mnuFile"_s));
    }

    void WhatEndsACommandIsShown() {
        QWidget window;
        ModalAnswers answers;
        WindowMenu menu(window);
        menu.Item("mnuPrint", "&Print", [] { throw text::RunTimeError(text::Fault::PrinterError); });
        auto* item = window.findChild<QAction*>(u"mnuPrint"_s);
        QString const message = OkMessage(u"Quorvex"_s, u"none"_s, u"Printer error"_s);
        item->trigger();
        QCOMPARE(answers.Shown(), QStringList(message));
        item->trigger(); // the turn is given back
        QCOMPARE(answers.Shown(), QStringList({message, message}));
    }

    void NoCommandRunsWhileAnotherWindowWaits() {
        QDialog window;
        WindowMenu menu(window);
        int runs = 0;
        menu.Item("mnuPrint", "&Print", [&runs] { ++runs; });
        auto* item = window.findChild<QAction*>(u"mnuPrint"_s);
        ModalAnswers answers;
        answers.Next([&](QWidget& shown) {
            item->trigger();
            QCOMPARE(runs, 1);
            answers.NextMessage([&](QWidget& message) {
                item->trigger();
                message.close();
            });
            platform::qt::ShowMessageBox(window, {"Text", "Title"});
            shown.close();
        });
        window.exec();
        QCOMPARE(runs, 1);
        QVERIFY(answers.IsDone());
    }

    void ACommandWaitsForTheOneBeforeToEnd() {
        QDialog window;
        QDialog help(&window);
        help.setObjectName(u"frmHelp"_s);
        WindowMenu menu(window);
        int exits = 0;
        menu.Item("mnuHelp", "&Help", [&help] { help.exec(); }).Item("mnuFileExit", "E&xit", [&] {
            ++exits;
            window.close();
        });
        auto* item = window.findChild<QAction*>(u"mnuHelp"_s);
        auto* exit = window.findChild<QAction*>(u"mnuFileExit"_s);
        ModalAnswers answers;
        answers.Next([item](QWidget&) { item->trigger(); });
        answers.Next([item, exit](QWidget& shown) {
            exit->trigger(); // Help is open
            shown.close();
            item->trigger();
            exit->trigger();
        });
        answers.Next([&exits](QWidget& shown) {
            QCOMPARE(exits, 0);
            shown.close();
        });
        window.exec();
        QCOMPARE(exits, 1);
        QVERIFY(answers.IsDone());
        QCOMPARE(answers.Shown(), QStringList({u""_s, u"frmHelp"_s, u"frmHelp"_s}));
    }

    void ACommandThatWaitedDoesNotRunOnceTheWindowIsClosed() {
        QDialog window;
        QDialog question(&window);
        question.setObjectName(u"question"_s);
        WindowMenu menu(window);
        menu.Item("mnuAsk", "&Ask", [&question] { question.exec(); });
        auto* item = window.findChild<QAction*>(u"mnuAsk"_s);
        ModalAnswers answers;
        answers.Next([item](QWidget&) { item->trigger(); });
        answers.Next([&window, item](QWidget& shown) {
            shown.close();
            item->trigger();
            window.close();
        });
        window.exec();
        QCoreApplication::processEvents();
        QVERIFY(answers.IsDone());
        QCOMPARE(answers.Shown(), QStringList({u""_s, u"question"_s}));
    }

    void ACommandThatWaitedRunsBehindOneThatFailed() {
        QWidget window;
        WindowMenu menu(window);
        int runs = 0;
        menu.Item("mnuPrint", "&Print", [&runs] { ++runs; }).Item("mnuExport", "&Export", [&window] {
            window.findChild<QAction*>(u"mnuPrint"_s)->trigger();
            throw text::RunTimeError(text::Fault::PrinterError);
        });
        window.show();
        ModalAnswers answers;
        window.findChild<QAction*>(u"mnuExport"_s)->trigger();
        QCOMPARE(answers.Shown(), QStringList(OkMessage(u"Quorvex"_s, u"none"_s, u"Printer error"_s)));
        QCOMPARE(runs, 1);
    }

    void ACommandThatWaitedDoesNotRunOnceTheWindowIsGone() {
        auto window = std::make_unique<QWidget>();
        WindowMenu menu(*window);
        int runs = 0;
        menu.Item("mnuPrint", "&Print", [&runs] { ++runs; }).Item("mnuFileExit", "E&xit", [&window] {
            window->findChild<QAction*>(u"mnuPrint"_s)->trigger();
            window.reset();
        });
        window->show();
        window->findChild<QAction*>(u"mnuFileExit"_s)->trigger();
        QVERIFY(window == nullptr);
        QCOMPARE(runs, 0);
    }
};

template struct ListedWindowTest<WindowMenuTest>;

} // namespace quorvex::tests

#include "WindowMenuTest.moc"
