// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/FileDialogs.h"

#include "app/ui/MainDialogs.h"
#include "platform/pictures/QtTexts.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"
#include "windows/WindowTest.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <map>
#include <string>
#include <vector>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::FileQuestion;
using platform::SaveQuestion;
using platform::qt::AskForFile;
using platform::qt::AskWhereToSave;

namespace {

FileQuestion QuestionIn(std::string const& folder) {
    return {folder, "*.csv", "Comma Separated Values (*.csv)|*.csv|All Files (*.*)|*.*"};
}

SaveQuestion SaveQuestionIn(std::string const& folder) {
    return {.Title = "Write It",
            .Folder = folder,
            .Name = "old.dat",
            .Filter = "Cycle Parameters (*.dat)|*.dat",
            .Ending = "dat"};
}

// What the list of the dialog shows.
QStringList ListedNames(QWidget& dialog) {
    QStringList names;
    auto const* list = dialog.findChild<QListView*>(u"listView"_s);
    for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
        names.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
    }
    names.sort();
    return names;
}

} // namespace

class FileDialogsTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void StartsAsAsked() {
        TemporaryFolder const folder;
        ModalAnswers answers;
        QWidget window;
        QStringList shown;
        QDir start;
        answers.Next([&](QWidget& dialog) {
            auto* files = qobject_cast<QFileDialog*>(&dialog);
            QVERIFY(files != nullptr);
            auto const* kinds = files->findChild<QComboBox*>(u"fileTypeCombo"_s);
            shown = {kinds->itemText(0), kinds->itemText(1), kinds->currentText()};
            shown.append(files->findChild<QLineEdit*>()->text());
            start = files->directory();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QCOMPARE(AskForFile(window, QuestionIn(folder.Text())), std::string());
        QCOMPARE(shown, QStringList({u"Comma Separated Values (*.csv)"_s, u"All Files (*.*)"_s,
                                     u"Comma Separated Values (*.csv)"_s, u"*.csv"_s}));
        QCOMPARE(start.canonicalPath(), QDir(platform::pictures::ToQt(folder.Text())).canonicalPath());
        QCOMPARE(answers.Shown(), QStringList(u"OpenFileDialog"_s));
    }

    void AllFilesAreThoseWithoutADotTooButNotWhatASaveReplaced() {
        TemporaryFolder const folder;
        std::string const marked = std::string("S&P") + MarkupInName + "500";
        std::vector<std::string> const all = {"a.csv", "a.csv~", "b.txt", "README", "README~", marked};
        for (std::string const& name : all) {
            folder.Write(name, "x");
        }
#ifdef Q_OS_WIN
        // By the pattern for the system's own dialog, which lists all of them, Qt's lists those with a dot.
        QStringList const listed = {u"a.csv"_s, u"a.csv~"_s, u"b.txt"_s};
#else
        QStringList const listed = {u"README"_s, QString::fromStdString(marked), u"a.csv"_s, u"b.txt"_s};
#endif
        ModalAnswers answers;
        QWidget window;
        answers.Next([&](QWidget& dialog) {
            QTRY_COMPARE(ListedNames(dialog), QStringList(u"a.csv"_s));
            auto* kinds = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
            kinds->setFocus();
            QTest::keyClick(kinds, Qt::Key_Down);
            QTRY_COMPARE(ListedNames(dialog), listed);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QCOMPARE(AskForFile(window, QuestionIn(folder.Text())), std::string());
        QVERIFY(answers.IsDone());
    }

    void StartsInTheUsersFolderWhereThereIsNoOther() {
        TemporaryFolder const folder;
        for (std::string const& missing : {folder.File("gone"), std::string("relative"), std::string()}) {
            ModalAnswers answers;
            QWidget window;
            QDir start;
            answers.Next([&](QWidget& dialog) {
                start = qobject_cast<QFileDialog*>(&dialog)->directory();
                QTest::keyClick(&dialog, Qt::Key_Escape);
            });
            QCOMPARE(AskForFile(window, QuestionIn(missing)), std::string());
            QCOMPARE(start.canonicalPath(), QDir::home().canonicalPath());
        }
    }

    void ReturnsTheWholePathOfAnExistingFile() {
        TemporaryFolder const folder;
        folder.Write("in.txt", "x");
        ModalAnswers answers;
        QWidget window;
        answers.Type(platform::pictures::ToQt(folder.File("in.txt")));
        QCOMPARE(AskForFile(window, QuestionIn(folder.Text())), folder.File("in.txt"));
    }

    void TheSaveDialogStartsAsAsked() {
        TemporaryFolder const folder;
        folder.Write("old.dat", "x");
        folder.Write("old.txt", "x");
        ModalAnswers answers;
        QWidget window;
        answers.Next([&](QWidget& dialog) {
            auto* files = qobject_cast<QFileDialog*>(&dialog);
            QVERIFY(files != nullptr);
            QCOMPARE(files->windowTitle(), u"Write It"_s);
            QCOMPARE(files->acceptMode(), QFileDialog::AcceptSave);
            QCOMPARE(files->findChild<QLineEdit*>(u"fileNameEdit"_s)->text(), u"old.dat"_s);
            QTRY_COMPARE(ListedNames(dialog), QStringList(u"old.dat"_s));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QCOMPARE(AskWhereToSave(window, SaveQuestionIn(folder.Text())), std::string());
        QCOMPARE(answers.Shown(), QStringList(u"SaveFileDialog"_s));
    }

    // Whether an existing one is replaced is asked by whoever writes.
    void TheSaveDialogCompletesANameAndTakesAnExistingOne() {
        TemporaryFolder const folder;
        folder.Write("old.dat", "x");
        std::string const marked = std::string("S&P") + MarkupInName;
        std::map<std::string, std::string> const names = {
            {"new", "new.dat"}, {"new.txt", "new.txt"}, {"old", "old.dat"}, {marked, marked + ".dat"}};
        for (auto const& [typed, path] : names) {
            ModalAnswers answers;
            QWidget window;
            answers.Next([file = folder.File(typed)](QWidget& dialog) {
                auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
                name->setText(platform::pictures::ToQt(file));
                QTest::keyClick(name, Qt::Key_Return);
            });
            QCOMPARE(AskWhereToSave(window, SaveQuestionIn(folder.Text())), folder.File(path));
            QCOMPARE(answers.Shown(), QStringList(u"SaveFileDialog"_s));
        }
    }

    void TheSaveDialogCompletesANameByTheChosenFilter() {
        TemporaryFolder const folder;
        SaveQuestion question = SaveQuestionIn(folder.Text());
        question.Filter = "Texts (*.txt)|*.txt|Pictures (*.svg)|*.svg|All Files (*.*)|*.*";
        question.Ending = "txt";
        for (auto const& [filter, path] : {std::pair(0, "new.txt"), {1, "new.svg"}, {2, "new.txt"}}) {
            ModalAnswers answers;
            QWidget window;
            answers.Next([file = folder.File("new"), filter = filter](QWidget& dialog) {
                auto* kinds = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
                kinds->setFocus();
                for (int step = 0; step < filter; ++step) {
                    QTest::keyClick(kinds, Qt::Key_Down);
                }
                auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
                name->setText(platform::pictures::ToQt(file));
                QTest::keyClick(name, Qt::Key_Return);
            });
            QCOMPARE(AskWhereToSave(window, question), folder.File(path));
        }
    }

    void OpensOverTheWindowThatTheUserIsIn() {
        TemporaryFolder const folder;
        folder.Write("in.txt", "x");
        ModalAnswers answers;
        QWidget window;
        app::ui::MainDialogs dialogs(window);
        QDialog inner(&window);
        std::string path;
        QWidget const* parent = nullptr;
        answers.Next([&](QWidget& shown) {
            answers.Next([&](QWidget& dialog) {
                parent = dialog.parentWidget();
                auto* name = dialog.findChild<QLineEdit*>();
                name->setText(platform::pictures::ToQt(folder.File("in.txt")));
                QTest::keyClick(name, Qt::Key_Return);
            });
            path = dialogs.AskForFile(QuestionIn(folder.Text()));
            shown.close();
        });
        inner.exec();
        QCOMPARE(path, folder.File("in.txt"));
        QCOMPARE(parent, &inner);
    }
};

template struct ListedWindowTest<FileDialogsTest>;

} // namespace quorvex::tests

#include "FileDialogsTest.moc"
