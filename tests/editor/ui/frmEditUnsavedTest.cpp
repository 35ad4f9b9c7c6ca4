// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/ShownEditor.h"
#include "support/QuoteTexts.h"
#include "windows/WindowTest.h"

#include <QMenu>
#include <filesystem>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

constexpr char const* KeptName = "corn.txt.edits";
constexpr char const* SecondName = "corn.txt.edits.2";

// Opens the context menu of the cells by keys; returns whether it offers to restore.
bool OffersToRestore(ShownEditor& shown) {
    bool isOffered = false;
    shown.Answers.Next([&](QWidget& menu) {
        isOffered = menu.findChild<QAction*>(u"mnuCellsRestore"_s)->isEnabled();
        QTest::keyClick(&menu, Qt::Key_Escape);
    });
    shown.Press(Qt::Key_F10, Qt::ShiftModifier);
    return shown.Answers.IsDone() && isOffered;
}

// What the item of the menu says.
QString MenuCaption(ShownEditor& shown, QString const& name) {
    QString caption;
    shown.Answers.Next([&](QWidget& menu) {
        caption = menu.findChild<QAction*>(name)->text();
        QTest::keyClick(&menu, Qt::Key_Escape);
    });
    shown.Press(Qt::Key_F10, Qt::ShiftModifier);
    return shown.Answers.IsDone() ? caption : QString();
}

void ChooseRestore(ShownEditor& shown) {
    shown.Answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_S); });
    shown.Press(Qt::Key_F10, Qt::ShiftModifier);
    QTRY_VERIFY(shown.Answers.IsDone());
}

bool HasKept(ShownEditor const& shown) {
    return std::filesystem::exists(shown.Folder.File(KeptName));
}

} // namespace

class frmEditUnsavedTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void WhatWasLeftUnsavedIsRestoredWhenTheUserWants() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            QVERIFY(!OffersToRestore(shown));
            QCOMPARE(shown.Status(), u""_s);
            shown.Choose("mnuEditAppend");
            shown.Type(2, 5, u"555"_s);
            shown.Choose("mnuFileExit");
        });
        shown.Run([&] {
            QCOMPARE(shown.Status(),
                     u"Edits of these quotes were not saved. Restore Unsaved Edits in the context "
                     "menu of the cells brings them back."_s);
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            QVERIFY(OffersToRestore(shown));
            ChooseRestore(shown);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            QCOMPARE(shown.Grid().model()->rowCount(), 31);
            QCOMPARE(shown.Status(), u"Unsaved edits restored"_s);
            QCOMPARE(shown.Cursor(), u"2,1"_s);
            shown.Press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(shown.Grid().model()->rowCount(), 30);
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            shown.Press(Qt::Key_Y, Qt::ControlModifier);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
        });
        shown.Run([&] { QVERIFY(OffersToRestore(shown)); });
    }

    void ASaveLeavesNothingToRestore() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"55"_s);
            QVERIFY(HasKept(shown));
            shown.Choose("mnuFileSave");
            QVERIFY(!HasKept(shown));
        });
        shown.Run([&] {
            QVERIFY(!OffersToRestore(shown));
            QCOMPARE(shown.Status(), u""_s);
        });
    }

    void ARefusedSaveKeepsThem() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 6, u"abc"_s);
            shown.Choose("mnuFileSave");
            QVERIFY(HasKept(shown));
        });
        shown.Run([&] { QVERIFY(OffersToRestore(shown)); });
    }

    void WhatComingBackDroppedIsRestored() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            shown.Type(2, 5, u"555"_s);
            shown.ComeBack();
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
        });
        shown.Run([&] {
            ChooseRestore(shown);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
        });
    }

    void AChangedFileIsAskedFor() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] { shown.Type(2, 5, u"555"_s); });
        shown.Folder.Write("corn.txt", QuoteLines(31));
        shown.Run([&] {
            shown.Answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_S); });
            shown.Answers.Click(QMessageBox::No);
            shown.Press(Qt::Key_F10, Qt::ShiftModifier);
            QTRY_VERIFY(shown.Answers.IsDone());
            QCOMPARE(shown.Text(2, 5), u"102.00"_s);
            shown.Answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_S); });
            shown.Answers.Click(QMessageBox::Yes);
            shown.Press(Qt::Key_F10, Qt::ShiftModifier);
            QTRY_VERIFY(shown.Answers.IsDone());
            QCOMPARE(shown.Text(2, 5), u"555"_s);
        });
        QString const question = u"Restore Unsaved Edits|question|Yes No|"
                                 "The quote file has changed since these edits were made.\n"
                                 "All rows become what they were in the editor then.\n"
                                 "Restore them?"_s;
        QCOMPARE(shown.Answers.Shown().count(question), 2);
    }

    void ThatNothingCanBeKeptStandsInTheStatusLine() {
        QString const told =
            u"Unsaved edits cannot be kept: Permission denied. What is not saved is lost when the editor is closed."_s;
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            for (char const* name : {KeptName, SecondName}) {
                std::filesystem::create_directory(shown.Folder.File(name));
            }
            shown.Type(2, 5, u"555"_s);
            QCOMPARE(shown.Status(), told);
            shown.Type(3, 5, u"556"_s);
            QCOMPARE(shown.Status(), told);
            shown.Choose("mnuEditHelp");
            QCOMPARE(shown.Status(), told);
            for (char const* name : {KeptName, SecondName}) {
                std::filesystem::remove(shown.Folder.File(name));
            }
            shown.Type(5, 5, u"558"_s);
            QCOMPARE(shown.Status(), u""_s);
            QVERIFY(HasKept(shown));
        });
        QCOMPARE(shown.Answers.Shown().size(), 2); // the editor and its help
        shown.Run([&] {
            ChooseRestore(shown);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            QCOMPARE(shown.Text(5, 5), u"558"_s);
        });
    }

    void ThoseThatCannotBeReadAreToldWhenTheEditorOpensAndBehindASave() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        for (char const* name : {KeptName, "oats.txt.edits"}) {
            std::filesystem::create_directory(shown.Folder.File(name));
        }
        shown.Run([&] {
            QCOMPARE(shown.Status(),
                     u"Edits that were kept before cannot be read or deleted: Permission denied."_s);
            shown.Type(2, 5, u"555"_s);
        });
        shown.Run([&] {
            QCOMPARE(
                shown.Status(),
                u"Edits of these quotes were not saved. Restore Unsaved Edits in the context menu of the "
                "cells brings them back. Others cannot be read or deleted: Permission denied."_s);
            ChooseRestore(shown);
            QCOMPARE(shown.Text(2, 5), u"555"_s);
            shown.Answers.Type(QString::fromStdString(shown.Folder.File("oats.txt")));
            shown.Choose("mnuFileSaveAs");
            QTRY_VERIFY(shown.Answers.IsDone());
            QVERIFY2(shown.Status().endsWith(u"oats.txt. Edits that were kept before cannot be read or "
                                             "deleted: Permission denied"_s),
                     qPrintable(shown.Status()));
            QVERIFY(!std::filesystem::exists(shown.Folder.File(SecondName)));
        });
    }

    void OlderOnesAreOfferedBehindTheNewest() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] { shown.Type(2, 5, u"555"_s); });
        shown.Run([&] { shown.Type(3, 5, u"556"_s); });
        shown.Run([&] {
            ChooseRestore(shown);
            QCOMPARE(shown.Text(3, 5), u"556"_s);
            QCOMPARE(shown.Status(),
                     u"Unsaved edits restored. Restore Older Edits brings back those that were "
                     "made before them"_s);
            QCOMPARE(MenuCaption(shown, u"mnuCellsRestore"_s), u"Re&store Older Edits"_s);
            ChooseRestore(shown);
            QCOMPARE(shown.Text(2, 5) + shown.Text(3, 5), u"555103.00"_s);
            QVERIFY(!OffersToRestore(shown));
            shown.Press(Qt::Key_Z, Qt::ControlModifier);
            QVERIFY(OffersToRestore(shown));
        });
    }

    // As often as an edit and the save behind it call files.
    void AFaultOfAnyCallIsToldAndTheNextSaveWorks() {
        QString const notKept =
            u"Unsaved edits cannot be kept: Permission denied. What is not saved is lost when the editor is closed."_s;
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] {
            QString const saved =
                u"30 rows saved to "_s + QString::fromStdString(shown.Folder.File("corn.txt"));
            bool hasMet = true;
            for (int number = 1; hasMet; ++number) {
                QString const price = QString::number(500 + number);
                shown.Failing.FailAt({.Number = number, .Raised = text::Fault::PermissionDenied});
                shown.Type(2, 5, price);
                QVERIFY2(shown.Status().isEmpty() || shown.Status() == notKept, qPrintable(shown.Status()));
                shown.Choose("mnuFileSave");
                hasMet = shown.Failing.Failed().has_value();
                shown.Failing.Recover();
                QVERIFY2(shown.Status().startsWith(saved) ||
                             shown.Status() == u"Not saved: Permission denied"_s,
                         qPrintable(shown.Status()));
                QCOMPARE(shown.Text(2, 5), price);
                shown.Choose("mnuFileSave");
                QCOMPARE(shown.Status(), saved);
                QVERIFY(shown.Folder.Read("corn.txt").find(", " + price.toStdString() + ".00, ") !=
                        std::string::npos);
                QVERIFY(!HasKept(shown));
            }
        });
    }

    void TheyCanBeForgotten() {
        ShownEditor shown(QuoteLines(30), "corn.txt");
        shown.Run([&] { shown.Type(2, 5, u"555"_s); });
        shown.Run([&] {
            shown.Answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_F); });
            shown.Answers.Click(QMessageBox::Yes);
            shown.Press(Qt::Key_F10, Qt::ShiftModifier);
            QTRY_VERIFY(shown.Answers.IsDone());
            QVERIFY(!HasKept(shown));
            QCOMPARE(shown.Status(), u""_s);
            QVERIFY(!OffersToRestore(shown));
        });
    }
};

template struct ListedWindowTest<frmEditUnsavedTest>;

} // namespace quorvex::tests

#include "frmEditUnsavedTest.moc"
