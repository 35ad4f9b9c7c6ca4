// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <functional>
#include <vector>

namespace quorvex::tests {

// Stands in for the user while a command waits for a message, a dialog or a menu: it looks at what is shown,
// notes it, and answers by keys and clicks as the test foresaw. A message with nothing but an OK button needs
// no answer; anything else that is not foreseen is noted as "unexpected" and closed, and what is left open is
// closed after a while, so that no test hangs.
class ModalAnswers : public QObject {
public:
    using Deed = std::function<void(QWidget&)>;

    ModalAnswers();

    // Does this with the next window or menu that waits for an answer; the deed must close it.
    void Next(Deed deed);

    // Does this with the next message that has nothing but an OK button, instead of pressing Enter.
    void NextMessage(Deed deed);

    // Clicks this button of the next message.
    void Click(QMessageBox::StandardButton button);

    // Types the text over what stands in the next input box, and clicks OK.
    void Type(QString const& text);

    // Closes the next window with Escape.
    void Escape();

    // Chooses the file in the next chooser.
    void Choose(QString const& name);

    // What was shown, in order: messages as "Title|icon|Button Button|text", input boxes as
    // "Title|prompt|default", others by their names.
    [[nodiscard]] QStringList const& Shown() const { return shown_; }

    // The same, and forgets it.
    [[nodiscard]] QStringList TakeShown();

    // Whether everything that was foreseen has come.
    [[nodiscard]] bool IsDone() const { return deeds_.empty() && messageDeeds_.empty(); }

private:
    void Look();
    [[nodiscard]] bool IsAnswered(QWidget& window);
    void Answer(QWidget& window);
    void ForgetClosed();
    static void GoBackTo(QWidget& window);

    QTimer pause_;
    std::deque<Deed> deeds_;
    std::deque<Deed> messageDeeds_;
    QStringList shown_;
    std::vector<QPointer<QWidget>> answered_; // and still open
    int idleLooks_ = 0;
};

// A line of ModalAnswers::Shown for a message with an OK button.
[[nodiscard]] QString OkMessage(QString const& title, QString const& icon, QString const& text);

// Clicks the window's button of this name.
void ClickButton(QWidget& window, QString const& objectName);

} // namespace quorvex::tests
