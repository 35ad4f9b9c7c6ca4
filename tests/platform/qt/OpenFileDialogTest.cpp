// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/OpenFileDialog.h"

#include "app/ui/MainDialogs.h"
#include "platform/pictures/QtTexts.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"
#include "windows/WindowTest.h"

#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::FileQuestion;
using platform::qt::AskForFile;

namespace {

FileQuestion QuestionIn(std::string const& folder) {
    return {folder, "*.csv", "Comma Separated Values (*.csv)|*.csv|All Files (*.*)|*.*"};
}

} // namespace

class OpenFileDialogTest final : public WindowTest {
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
            shown = files->nameFilters();
            shown.append(files->selectedNameFilter());
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

} // namespace quorvex::tests

int main(int argc, char** argv) {
    return quorvex::tests::RunWindowTest<quorvex::tests::OpenFileDialogTest>(argc, argv);
}

#include "OpenFileDialogTest.moc"
