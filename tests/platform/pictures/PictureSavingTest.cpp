// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"
#include "windows/ShownPicture.h"
#include "windows/WindowTest.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLineEdit>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

namespace {

QLineEdit& NameOf(QWidget& dialog) {
    return *dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
}

// Asks for Save Image As by keys and does this with the dialog.
void SaveImageAs(ShownPicture& shown, ModalAnswers& answers, ModalAnswers::Deed deed) {
    answers.Next([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_A); });
    answers.Next(std::move(deed));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(&shown.Box, &event);
}

ModalAnswers::Deed TypeName(std::string const& name) {
    return [typed = QString::fromStdString(name)](QWidget& dialog) {
        // At once: letter by letter, the completer would pop up over the dialog.
        NameOf(dialog).setText(typed);
        QTest::keyClick(&NameOf(dialog), Qt::Key_Return);
    };
}

ModalAnswers::Deed TypeNameForFilter(std::string const& name, int filter) {
    return [name, filter](QWidget& dialog) {
        auto* filters = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
        filters->setFocus();
        for (int step = 0; step < filter; ++step) {
            QTest::keyClick(filters, Qt::Key_Down);
        }
        TypeName(name)(dialog);
    };
}

bool IsPng(std::string const& bytes) {
    return bytes.starts_with("\x89PNG");
}

} // namespace

class PictureSavingTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TheDialogSuggestsANameAndOffersThreeKinds() {
        ShownPicture shown;
        shown.Draw();
        ModalAnswers answers;
        SaveImageAs(shown, answers, [](QWidget& window) {
            auto const* dialog = qobject_cast<QFileDialog*>(&window);
            QVERIFY(dialog != nullptr);
            QCOMPARE(dialog->windowTitle(), u"Save Image As"_s);
            QCOMPARE(NameOf(window).text(), u"Some chart"_s);
            QCOMPARE(dialog->nameFilters(), QStringList({u"PNG image (*.png)"_s, u"SVG drawing (*.svg)"_s,
                                                         u"PDF document (*.pdf)"_s}));
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        QVERIFY(shown.Files.Contents.empty());
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void TheEndingOfTheNameChoosesTheKind_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("PNG") << QByteArray("chart.png") << QByteArray("\x89PNG\r\n");
        QTest::newRow("SVG") << QByteArray("chart.svg") << QByteArray("<?xml");
        QTest::newRow("PDF") << QByteArray("chart.PDF") << QByteArray("%PDF-");
    }

    void TheEndingOfTheNameChoosesTheKind() {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, start);
        TemporaryFolder folder;
        ShownPicture shown;
        shown.Draw();
        ModalAnswers answers;
        std::string const path = folder.File(name.toStdString());
        SaveImageAs(shown, answers, TypeName(path));
        QCOMPARE(answers.Shown(), QStringList({u"mnuPicture"_s, u"SavePicture"_s}));
        QCOMPARE(shown.Files.Contents.size(), 1U);
        QCOMPARE(shown.Files.Contents.begin()->first, path);
        QVERIFY(shown.Files.Contents.begin()->second.starts_with(start.toStdString()));
        QVERIFY(shown.Dialogs.Messages.empty());
    }

    void ANameWithoutEndingGetsThatOfTheFilter_data() {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QByteArray>("ending");
        QTest::newRow("PNG") << 0 << QByteArray(".png");
        QTest::newRow("SVG") << 1 << QByteArray(".svg");
        QTest::newRow("PDF") << 2 << QByteArray(".pdf");
    }

    void ANameWithoutEndingGetsThatOfTheFilter() {
        QFETCH(int, filter);
        QFETCH(QByteArray, ending);
        TemporaryFolder folder;
        ShownPicture shown;
        shown.Draw();
        ModalAnswers answers;
        SaveImageAs(shown, answers, TypeNameForFilter(folder.File("chart"), filter));
        QCOMPARE(answers.Shown(), QStringList({u"mnuPicture"_s, u"SavePicture"_s}));
        QCOMPARE(shown.Files.Contents.size(), 1U);
        QCOMPARE(shown.Files.Contents.begin()->first, folder.File("chart" + ending.toStdString()));
        QCOMPARE(IsPng(shown.Files.Contents.begin()->second), filter == 0);
    }

    void AnEndingOfAnotherKindIsKept() {
        TemporaryFolder folder;
        ShownPicture shown;
        shown.Draw();
        ModalAnswers answers;
        SaveImageAs(shown, answers, TypeNameForFilter(folder.File("chart.v2"), 1));
        QCOMPARE(answers.Shown(), QStringList({u"mnuPicture"_s, u"SavePicture"_s}));
        QCOMPARE(shown.Files.Contents.size(), 1U);
        QCOMPARE(shown.Files.Contents.begin()->first, folder.File("chart.v2"));
        QVERIFY(shown.Files.Contents.begin()->second.find("<svg") != std::string::npos);
    }

    void ThePngShowsTheDrawing() {
        TemporaryFolder folder;
        ShownPicture shown;
        shown.Draw();
        ModalAnswers answers;
        SaveImageAs(shown, answers, TypeName(folder.File("chart.png")));
        QCOMPARE(shown.Files.Contents.size(), 1U);
        QImage const saved = QImage::fromData(
            QByteArray::fromStdString(shown.Files.Contents.at(folder.File("chart.png"))), "PNG");
        QCOMPARE(saved.size(), shown.Box.size());
        QCOMPARE(saved.pixelColor(45, 30), QColor(Qt::blue));
        QCOMPARE(saved.pixelColor(100, 100), QColor(Qt::white));
    }

    void AnExistingFileIsReplacedOnlyOnRequest_data() {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("typed with its ending") << QByteArray("chart.png") << QByteArray("chart.png");
        QTest::newRow("typed without") << QByteArray("chart") << QByteArray("chart.png");
        QByteArray const marked = QByteArray("S&P") + MarkupInName + "500.png";
        QTest::newRow("what could be markup") << marked << marked;
    }

    // After No the dialog comes back.
    void AnExistingFileIsReplacedOnlyOnRequest() {
        QFETCH(QByteArray, typed);
        QFETCH(QByteArray, name);
        TemporaryFolder folder;
        folder.Write(name.toStdString(), "precious");
        ShownPicture shown;
        shown.Draw();
        ModalAnswers answers;
        auto const type = TypeName(folder.File(typed.toStdString()));
        shown.Dialogs.Answers = {platform::Answer::No, platform::Answer::Yes};
        SaveImageAs(shown, answers, [&](QWidget& dialog) {
            answers.Next([&](QWidget& again) {
                QVERIFY(shown.Files.Contents.empty());
                type(again);
            });
            type(dialog);
        });
        QCOMPARE(answers.Shown(), QStringList({u"mnuPicture"_s, u"SavePicture"_s, u"SavePicture"_s}));
        QCOMPARE(shown.Dialogs.Messages.size(), 2U);
        platform::Message const& question = shown.Dialogs.Messages[0];
        QCOMPARE(question.Text, name.toStdString() + " already exists.\nDo you want to replace it?");
        QCOMPARE(question.Title, std::string("Save Image As"));
        QCOMPARE(question.Shown, platform::Icon::Exclamation);
        QCOMPARE(question.Offered, platform::Buttons::YesNo);
        QVERIFY(IsPng(shown.Files.Contents.at(folder.File(name.toStdString()))));
    }

    void APathThatCannotBeWrittenShowsTheDescription() {
        TemporaryFolder folder;
        ShownPicture shown;
        shown.Draw();
        shown.Files.BreakWriting = text::Fault::PermissionDenied;
        ModalAnswers answers;
        SaveImageAs(shown, answers, TypeName(folder.File("chart.png")));
        QCOMPARE(shown.Dialogs.Messages.size(), 1U);
        QCOMPARE(shown.Dialogs.Messages[0].Text, std::string("Permission denied"));
        QCOMPARE(shown.Dialogs.Messages[0].Title, std::string("Quorvex"));
        shown.Files.BreakWriting.reset();
        SaveImageAs(shown, answers, TypeName(folder.File("chart.png")));
        QVERIFY(IsPng(shown.Files.Contents.at(folder.File("chart.png"))));
    }
};

template struct ListedWindowTest<PictureSavingTest>;

} // namespace quorvex::tests

#include "PictureSavingTest.moc"
