// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "random/Dice.h"
#include "random/Expectations.h"
#include "random/Journal.h"

#include <QFileDialog>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <cstdint>

namespace quorvex::tests {

// Does one thing after another to whatever is in front, out of the event loops themselves, so that dialogs
// and menus that a command waits for are used as well. What waits for too long is escaped from: most of the
// actions are meant for the main window.
class RandomUser : public QObject {
public:
    RandomUser(std::uint64_t seed, int actions, Journal& journal);

    // Works with this main window from now on, and sees to it that all is as expected.
    void Use(QWidget& main, Expectations& expectations);

    // Whether all actions are done. The last of them leaves the event loop.
    [[nodiscard]] bool IsDone() const { return isDone_; }

private:
    void Step();
    void Disturb();
    void Act();
    void CountState();
    void Finish();
    void EscapeFrom(QWidget& window);

    void ActIn(QWidget& window);
    void ActInMenu(QMenu& menu);
    void ActInPictureDialog(QFileDialog& dialog);

    void RunCommand(QWidget& window);
    void ClickSomewhere(QWidget& window);
    void DragSomewhere(QWidget& window);
    void PressSomeKey(QWidget& window);
    void TypeSomething(QWidget& window);
    void ScrollSomewhere(QWidget& window);
    void OpenContextMenu(QWidget& window);
    void RestSomewhere(QWidget& window);
    void ChangeSize(QWidget& window);
    void Compare(QWidget& window);
    void CompareRefreshed();
    void CompareRedone(QAbstractItemView& grid);
    void CompareTyped(QAbstractItemView& grid);
    void AnswerDialog(QWidget& dialog);
    void TypeFileName(QWidget& dialog);

    Dice dice_;
    int actions_;
    Journal& journal_;
    QPointer<QWidget> main_;
    Expectations* expectations_ = nullptr;
    QTimer next_;
    int busyLevel_ = 0;      // of the event loop whose action is still running
    int disturbances_ = 0;   // so far
    int waitingActions_ = 0; // since something last came in front of the main window
    bool isDone_ = false;
};

} // namespace quorvex::tests
