// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/ModalAnswers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <algorithm>
#include <utility>

namespace quorvex::tests {

namespace {

constexpr int PauseMilliseconds = 5;
constexpr int PatienceMilliseconds = 5000;

QString NameOf(QMessageBox::Icon icon) {
    switch (icon) {
    case QMessageBox::Information:
        return QStringLiteral("information");
    case QMessageBox::Warning:
        return QStringLiteral("exclamation");
    case QMessageBox::Critical:
        return QStringLiteral("critical");
    case QMessageBox::Question:
        return QStringLiteral("question");
    case QMessageBox::NoIcon:
        break;
    }
    return QStringLiteral("none");
}

QString NamesOf(QMessageBox::StandardButtons buttons) {
    QStringList names;
    for (auto const& [button, name] :
         {std::pair(QMessageBox::Ok, "OK"), std::pair(QMessageBox::Yes, "Yes"),
          std::pair(QMessageBox::No, "No"), std::pair(QMessageBox::Cancel, "Cancel")}) {
        if (buttons.testFlag(button)) {
            names.append(QString::fromLatin1(name));
        }
    }
    return names.join(u' ');
}

QString Describe(QWidget const& window) {
    if (auto const* box = qobject_cast<QMessageBox const*>(&window)) {
        return QStringLiteral("%1|%2|%3|%4")
            .arg(box->windowTitle(), NameOf(box->icon()), NamesOf(box->standardButtons()), box->text());
    }
    if (auto const* box = qobject_cast<QInputDialog const*>(&window)) {
        return QStringLiteral("%1|%2|%3").arg(box->windowTitle(), box->labelText(), box->textValue());
    }
    return window.objectName();
}

// Whether it can take keys. A menu could take them at once, but a platform without a display activates menus
// too, and does so later: one that is closed before that would keep the keyboard.
bool IsReady(QWidget const& window) {
    bool const isPopup = window.windowType() == Qt::Popup;
    return window.isVisible() &&
           (isPopup ? QGuiApplication::focusWindow() == window.windowHandle() : window.isActiveWindow());
}

bool NeedsNoAnswer(QWidget const& window) {
    auto const* box = qobject_cast<QMessageBox const*>(&window);
    return box != nullptr && box->standardButtons() == QMessageBox::Ok;
}

} // namespace

ModalAnswers::ModalAnswers() {
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, [this] { Look(); });
    pause_.start(PauseMilliseconds);
}

void ModalAnswers::Next(Deed deed) {
    deeds_.push_back(std::move(deed));
}

void ModalAnswers::NextMessage(Deed deed) {
    messageDeeds_.push_back(std::move(deed));
}

void ModalAnswers::Click(QMessageBox::StandardButton button) {
    Next([button](QWidget& window) {
        auto* box = qobject_cast<QMessageBox*>(&window);
        QVERIFY2(box != nullptr && box->button(button) != nullptr, "no message with this button");
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

void ModalAnswers::Type(QString const& text) {
    Next([text](QWidget& window) {
        auto* edit = window.findChild<QLineEdit*>();
        QVERIFY2(edit != nullptr, "no input box");
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    });
}

void ModalAnswers::Escape() {
    Next([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
}

void ModalAnswers::Choose(QString const& name) {
    Next([name](QWidget& window) {
        auto* list = window.findChild<QListWidget*>(QStringLiteral("lstFiles"));
        QVERIFY2(list != nullptr, "no chooser");
        auto const items = list->findItems(name, Qt::MatchExactly);
        QVERIFY2(items.size() == 1, "no such file in the chooser");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items[0]).center());
        ClickButton(window, QStringLiteral("cmdOK"));
    });
}

QStringList ModalAnswers::TakeShown() {
    return std::exchange(shown_, {});
}

void ModalAnswers::Look() {
    // What is done below may open something else that wants an answer before it comes back.
    pause_.start(PauseMilliseconds);
    ForgetClosed();
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const window = popup != nullptr ? popup : QApplication::activeModalWidget();
    if (window != nullptr && IsReady(*window) && !IsAnswered(*window)) {
        Answer(*window);
    }
}

bool ModalAnswers::IsAnswered(QWidget& window) {
    if (std::ranges::find(answered_, &window, [](auto const& open) { return open.data(); }) ==
        answered_.end()) {
        idleLooks_ = 0;
        return false;
    }
    if (++idleLooks_ * PauseMilliseconds > PatienceMilliseconds) {
        shown_.append(QStringLiteral("left open: ") + Describe(window));
        window.close();
    }
    return true;
}

void ModalAnswers::Answer(QWidget& window) {
    QPointer<QWidget> const behind = window.parentWidget();
    answered_.emplace_back(&window);
    shown_.append(Describe(window));
    bool const isMessage = NeedsNoAnswer(window);
    if (std::deque<Deed>& deeds = isMessage ? messageDeeds_ : deeds_; !deeds.empty()) {
        Deed const deed = std::move(deeds.front());
        deeds.pop_front();
        deed(window);
    } else if (isMessage) {
        QTest::keyClick(&window, Qt::Key_Return);
    } else {
        shown_.last().prepend(QStringLiteral("unexpected "));
        window.close();
    }
    ForgetClosed(); // the same window may come again
    if (!behind.isNull()) {
        GoBackTo(*behind->window());
    }
    idleLooks_ = 0;
}

void ModalAnswers::GoBackTo(QWidget& window) {
    // As the desktop does when a window closes, and before the command that showed it goes on.
    QWidget const* const active = QApplication::activeWindow();
    if (window.isVisible() && (active == nullptr || !active->isVisible())) {
        window.activateWindow();
        QCoreApplication::processEvents();
    }
}

void ModalAnswers::ForgetClosed() {
    std::erase_if(answered_, [](auto const& window) { return window.isNull() || !window->isVisible(); });
}

QString OkMessage(QString const& title, QString const& icon, QString const& text) {
    return QStringLiteral("%1|%2|OK|%3").arg(title, icon, text);
}

void ClickButton(QWidget& window, QString const& objectName) {
    auto* button = window.findChild<QAbstractButton*>(objectName);
    QVERIFY2(button != nullptr, "no such button");
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace quorvex::tests
