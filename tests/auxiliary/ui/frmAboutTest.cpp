// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QLabel>
#include <QPushButton>

namespace quorvex::tests {

using namespace Qt::StringLiterals;

class frmAboutTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void TellsTitleVersionAndNotice() {
        RunningWindow main;
        QStringList texts;
        bool hasIcon = false;
        main.Answers.Next([&](QWidget& window) {
            texts = {window.windowTitle(), window.findChild<QLabel*>(u"lblTitle"_s)->text(),
                     window.findChild<QLabel*>(u"lblVersion"_s)->text(),
                     window.findChild<QPushButton*>(u"cmdSysInfo"_s)->text()};
            hasIcon = !window.findChild<QLabel*>(u"picIcon"_s)->pixmap().isNull();
            QVERIFY(!window.findChild<QLabel*>(u"lblDisclaimer"_s)->text().isEmpty());
            ClickButton(window, u"cmdOK"_s);
        });
        main.Choose("mnuHelpAbout");
        QCOMPARE(texts,
                 QStringList({u"About Quorvex"_s, u"Quorvex"_s, u"Version 2.0.b"_s, u"&System Info..."_s}));
        QVERIFY(hasIcon);
    }

    void WithoutASystemToolAMessageSaysSo() {
        RunningWindow main;
        bool staysOpen = false;
        main.Answers.Next([&](QWidget& window) {
            ClickButton(window, u"cmdSysInfo"_s);
            staysOpen = window.isVisible();
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        main.Choose("mnuHelpAbout");
        QVERIFY(staysOpen);
        QCOMPARE(main.Answers.Shown().last(),
                 OkMessage(u"Quorvex"_s, u"none"_s, u"System Information Is Unavailable At This Time"_s));
        QVERIFY(main.Launcher.Started.empty());
    }
};

template struct ListedWindowTest<frmAboutTest>;

} // namespace quorvex::tests

#include "frmAboutTest.moc"
