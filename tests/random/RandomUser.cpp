// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/RandomUser.h"

#include "random/Choices.h"
#include "random/FrontWindow.h"
#include "random/Hands.h"
#include "random/Texts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QThread>
#include <array>
#include <utility>

namespace quorvex::tests {

namespace {

// So many actions something may stay in front of the main window.
constexpr int Patience = 30;

QString SizeText(QWidget const& window, QSize size) {
    return QStringLiteral("%1 to %2x%3").arg(NameOf(window)).arg(size.width()).arg(size.height());
}

QString PlaceText(Spot const& spot) {
    return QStringLiteral("%1 at %2,%3").arg(NameOf(*spot.Widget)).arg(spot.Place.x()).arg(spot.Place.y());
}

} // namespace

RandomUser::RandomUser(std::uint64_t seed, int actions, Journal& journal)
    : dice_(seed),
      actions_(actions),
      journal_(journal) {
    next_.setSingleShot(true);
    connect(&next_, &QTimer::timeout, this, [this] { Step(); });
}

void RandomUser::Use(QWidget& main, Expectations& expectations) {
    main_ = &main;
    expectations_ = &expectations;
    waitingActions_ = 0;
    journal_.Count("main windows opened");
    next_.start(0);
}

void RandomUser::Step() {
    // What is done now may wait for the user in an event loop of its own, which needs the next action.
    next_.start(0);
    int const level = QThread::currentThread()->loopLevel();
    if (level <= busyLevel_) {
        Disturb();
        return;
    }
    auto const restore =
        qScopeGuard([this, before = std::exchange(busyLevel_, level)] { busyLevel_ = before; });
    if (journal_.Steps() < actions_) {
        Act();
    } else {
        Finish();
    }
}

// A command works off what is waiting, but for keys and mouse: only the desktop gets through to the window.
void RandomUser::Disturb() {
    if (busyLevel_ == 0 || IsWaiting() || journal_.Steps() >= actions_) {
        return;
    }
    if (dice_.OneIn(100)) {
        ++disturbances_;
        journal_.Note("close while busy", NameOf(*main_));
        main_->close();
    } else if (dice_.OneIn(3)) {
        ++disturbances_;
        QSize const size = PickSize(dice_);
        journal_.Note("resize while busy", SizeText(*main_, size));
        main_->resize(size);
    }
}

void RandomUser::Act() {
    expectations_->Check();
    CountState();
    QWidget& front = FrontWindow(*main_);
    waitingActions_ = IsWaiting() ? waitingActions_ + 1 : 0;
    // As the desktop does when a dialog closes.
    if (QApplication::activePopupWidget() == nullptr && !front.isActiveWindow()) {
        front.activateWindow();
    }
    auto* picture = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (waitingActions_ > Patience) {
        EscapeFrom(front);
    } else if (picture != nullptr) {
        ActInPictureDialog(*picture);
    } else if (auto* menu = qobject_cast<QMenu*>(&front); menu != nullptr) {
        ActInMenu(*menu);
    } else if (IsWaiting() && dice_.OneIn(3)) {
        AnswerDialog(front);
    } else {
        ActIn(front);
    }
}

void RandomUser::CountState() {
    if (HasQuotes(*main_)) {
        journal_.Count("with quotes");
        if (HasCycle(*main_)) {
            journal_.Count("with quotes and a cycle");
        }
    }
}

void RandomUser::Finish() {
    if (IsWaiting()) {
        EscapeFrom(FrontWindow(*main_));
    } else {
        isDone_ = true;
        next_.stop();
        QCoreApplication::exit();
    }
}

void RandomUser::EscapeFrom(QWidget& window) {
    QPointer<QWidget> const left = &window;
    journal_.Note("escape", NameOf(window));
    PressKey(KeyReceiver(window), Qt::Key_Escape, {});
    if (!left.isNull() && left->isVisible() && &FrontWindow(*main_) == left) {
        left->close();
    }
}

void RandomUser::ActIn(QWidget& window) {
    struct Choice {
        int Weight;
        void (RandomUser::*Do)(QWidget&);
    };

    static constexpr auto Choices = std::to_array<Choice>({
        {16, &RandomUser::RunCommand},
        {24, &RandomUser::ClickSomewhere},
        {4, &RandomUser::DragSomewhere},
        {20, &RandomUser::PressSomeKey},
        {12, &RandomUser::TypeSomething},
        {5, &RandomUser::ScrollSomewhere},
        {5, &RandomUser::OpenContextMenu},
        {7, &RandomUser::RestSomewhere},
        {6, &RandomUser::ChangeSize},
        {1, &RandomUser::Compare},
    });
    if (GridOf(window) != nullptr && dice_.OneIn(10)) {
        Compare(window);
        return;
    }
    int left = dice_.Below(100);
    for (Choice const& choice : Choices) {
        left -= choice.Weight;
        if (left < 0) {
            (this->*choice.Do)(window);
            return;
        }
    }
}

void RandomUser::ActInMenu(QMenu& menu) {
    QList<QAction*> items;
    for (QAction* item : menu.actions()) {
        if (item->isVisible() && !item->isSeparator()) {
            items.append(item);
        }
    }
    if (items.isEmpty() || dice_.OneIn(8)) {
        EscapeFrom(menu);
    } else if (dice_.OneIn(3)) {
        PressSomeKey(menu);
    } else {
        QAction* const item = PickCommand(items, dice_);
        journal_.Note("menu item", NameOf(menu) + u' ' + NameOf(*item));
        PressAndRelease({&menu, menu.actionGeometry(item).center()}, {});
    }
}

// The toolkit's dialog can rename and remove files of the machine: only its name, its filter and its buttons
// are used.
void RandomUser::ActInPictureDialog(QFileDialog& dialog) {
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) {
        EscapeFrom(*popup);
        return;
    }
    switch (dice_.Below(4)) {
    case 0:
        EscapeFrom(dialog);
        break;
    case 1:
        if (auto* filter = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo")); filter != nullptr) {
            journal_.Note("filter", NameOf(dialog));
            PressKey(*filter, dice_.OneIn(2) ? Qt::Key_Down : Qt::Key_Up, {});
        }
        break;
    default:
        TypeFileName(dialog);
    }
}

void RandomUser::RunCommand(QWidget& window) {
    auto commands = CommandsOf(window);
    if (&window == main_ && dice_.OneIn(3)) {
        auto const isOther = [next = NextStep(window)](QAction const* command) {
            return !next.match(command->objectName()).hasMatch();
        };
        commands.removeIf(isOther);
    }
    if (commands.isEmpty()) {
        PressSomeKey(window);
        return;
    }
    QAction* const command = PickCommand(commands, dice_);
    journal_.Note("command", NameOf(*command));
    journal_.Count("command: " + NameOf(window).toStdString() + ' ' + NameOf(*command).toStdString());
    command->trigger();
}

void RandomUser::ClickSomewhere(QWidget& window) {
    Spot const spot = PickSpot(window, dice_);
    if (dice_.OneIn(8)) {
        journal_.Note("double click", PlaceText(spot));
        DoubleClick(spot);
    } else {
        journal_.Note("click", PlaceText(spot));
        PressAndRelease(spot, {PickButton(dice_), PickModifiers(dice_)});
    }
}

void RandomUser::DragSomewhere(QWidget& window) {
    Spot const spot = PickSpot(window, dice_);
    QPoint const to{dice_.Between(-50, window.width()), dice_.Between(-50, window.height())};
    journal_.Note("drag", PlaceText(spot));
    Drag(spot, to);
}

void RandomUser::PressSomeKey(QWidget& window) {
    Qt::Key const key = PickKey(dice_);
    Qt::KeyboardModifiers const modifiers = PickModifiers(dice_);
    QWidget& receiver = KeyReceiver(window);
    journal_.Note("key", QStringLiteral("%1+%2 in %3")
                             .arg(modifiers.toInt(), 0, 16)
                             .arg(static_cast<int>(key), 0, 16)
                             .arg(NameOf(receiver)));
    PressKey(receiver, key, modifiers);
}

void RandomUser::TypeSomething(QWidget& window) {
    QList<QLineEdit*> edits;
    for (QWidget* widget : VisibleWidgets(window)) {
        if (auto* edit = qobject_cast<QLineEdit*>(widget); edit != nullptr && !edit->isReadOnly()) {
            edits.append(edit);
        }
    }
    QString const text = PickText(dice_);
    if (edits.isEmpty()) {
        QWidget& receiver = KeyReceiver(window);
        journal_.Note("type", NameOf(receiver) + u' ' + text);
        TypeText(receiver, text);
        return;
    }
    QPointer<QLineEdit> const edit = dice_.Pick(edits);
    journal_.Note("type", NameOf(*edit) + u' ' + text);
    edit->setFocus(Qt::MouseFocusReason);
    if (dice_.OneIn(6)) {
        QApplication::clipboard()->setText(text);
        PressKey(*edit, Qt::Key_V, Qt::ControlModifier);
    } else {
        TypeText(*edit, text);
        if (!edit.isNull()) {
            expectations_->CheckTyped(*edit, text);
        }
    }
}

void RandomUser::ScrollSomewhere(QWidget& window) {
    constexpr int Step = 15;
    Spot const spot = PickSpot(window, dice_);
    QPoint const degrees{dice_.OneIn(4) ? Step : 0, dice_.Between(-8, 8) * Step};
    journal_.Note("wheel", PlaceText(spot));
    Scroll(spot, degrees);
}

void RandomUser::OpenContextMenu(QWidget& window) {
    Spot const spot = PickSpot(window, dice_);
    journal_.Note("context menu", PlaceText(spot));
    AskForContextMenu(spot, dice_.OneIn(2));
}

void RandomUser::RestSomewhere(QWidget& window) {
    Spot const spot = PickSpot(window, dice_);
    journal_.Note("rest", PlaceText(spot));
    Rest(spot);
}

void RandomUser::ChangeSize(QWidget& window) {
    QSize const size = PickSize(dice_);
    journal_.Note("resize", SizeText(window, size));
    switch (dice_.Below(16)) {
    case 0:
        window.showMaximized();
        break;
    case 1:
        window.showNormal();
        break;
    case 2:
        if (!IsWaiting() && dice_.OneIn(4)) {
            window.close();
        }
        break;
    default:
        window.resize(size);
    }
}

// What is done here leads to something that is known.
void RandomUser::Compare(QWidget& window) {
    QAbstractItemView* const grid = GridOf(window);
    if (&window == main_) {
        CompareRefreshed();
    } else if (grid != nullptr && window.isActiveWindow() && &KeyReceiver(window) == grid) {
        dice_.OneIn(2) ? CompareRedone(*grid) : CompareTyped(*grid);
    } else {
        PressSomeKey(window);
    }
}

void RandomUser::CompareRefreshed() {
    journal_.Note("compare", QStringLiteral("behind Refresh"));
    int const disturbancesBefore = disturbances_;
    int const redrawsBefore = expectations_->RedrawCount();
    auto const possible = expectations_->PossibleAfterRefresh();
    main_->findChild<QAction*>(QStringLiteral("mnuRefresh"))->trigger();
    // In the middle of another redraw there is none.
    if (disturbances_ == disturbancesBefore && expectations_->RedrawCount() != redrawsBefore) {
        expectations_->CheckRefreshed(possible);
    }
}

void RandomUser::CompareRedone(QAbstractItemView& grid) {
    journal_.Note("compare", QStringLiteral("behind Undo and Redo"));
    QStringList const before = RowsOf(grid);
    PressKey(grid, Qt::Key_Z, Qt::ControlModifier);
    if (RowsOf(grid) != before) {
        PressKey(grid, Qt::Key_Y, Qt::ControlModifier);
        expectations_->Editor().CheckRedone(before, RowsOf(grid));
    }
}

void RandomUser::CompareTyped(QAbstractItemView& grid) {
    QAbstractItemModel const& model = *grid.model();
    if (model.rowCount() == 0) {
        return;
    }
    int const row = dice_.Below(model.rowCount());
    QModelIndex const cell = model.index(row, dice_.Below(model.columnCount()));
    QString const text = QString::number(dice_.Between(1, 9999));
    journal_.Note("compare",
                  QStringLiteral("cell %1,%2 with %3").arg(cell.row()).arg(cell.column()).arg(text));
    grid.setCurrentIndex(cell);
    PressKey(grid, Qt::Key_F2, {});
    QPointer<QWidget> const edit = QApplication::focusWidget();
    if (edit.isNull() || edit == &grid) {
        return; // something else has the keyboard
    }
    TypeText(*edit, text);
    if (!edit.isNull()) {
        PressKey(*edit, Qt::Key_Return, {});
        expectations_->Editor().CheckTyped(cell, text);
    }
}

void RandomUser::AnswerDialog(QWidget& dialog) {
    journal_.Count("answered: " + NameOf(dialog).toStdString());
    if (auto* list = dialog.findChild<QListWidget*>(QStringLiteral("lstFiles"));
        list != nullptr && list->count() > 0) {
        auto* const item = list->item(dice_.Below(list->count()));
        journal_.Note("choose", item->text());
        list->setCurrentItem(item);
        PressKey(*list, Qt::Key_Return, {});
        return;
    }
    if (qobject_cast<QInputDialog*>(&dialog) != nullptr) {
        TypeFileName(dialog);
        return;
    }
    auto buttons = dialog.findChildren<QAbstractButton*>();
    buttons.removeIf([](QAbstractButton const* button) { return !button->isVisible(); });
    if (buttons.isEmpty()) {
        EscapeFrom(dialog);
        return;
    }
    QAbstractButton* const button = dice_.Pick(buttons);
    journal_.Note("button", NameOf(dialog) + u' ' + button->text());
    PressAndRelease({button, button->rect().center()}, {});
}

void RandomUser::TypeFileName(QWidget& dialog) {
    // The toolkit's dialog has other edits as well.
    auto* named = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QPointer<QLineEdit> const edit = named == nullptr ? dialog.findChild<QLineEdit*>() : named;
    QString const name = PickFileName(dice_);
    journal_.Note("file name", name);
    TypeText(*edit, name);
    if (!edit.isNull()) {
        PressKey(*edit, Qt::Key_Return, {});
    }
}

} // namespace quorvex::tests
