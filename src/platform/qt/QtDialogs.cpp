// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/QtDialogs.h"

#include "platform/basMessages.h"
#include "platform/basProcessor.h"
#include "platform/pictures/HeadlessApplication.h"
#include "platform/pictures/QtTexts.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopeGuard>
#include <QScreen>
#include <QWindow>
#include <exception>
#include <new>

namespace quorvex::platform::qt {

namespace {

QMessageBox::Icon IconOf(Icon icon) {
    switch (icon) {
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

Answer AnswerOfClosing(Buttons offered) {
    switch (offered) {
    case Buttons::YesNo:
        return Answer::No;
    case Buttons::YesNoCancel:
        return Answer::Cancel;
    case Buttons::Ok:
        break;
    }
    return Answer::Ok;
}

Answer AnswerOf(int button, Buttons offered) {
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        return AnswerOfClosing(offered);
    }
}

void OfferButtons(QMessageBox& box, Buttons offered) {
    switch (offered) {
    case Buttons::Ok:
        box.setStandardButtons(QMessageBox::Ok);
        return;
    case Buttons::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        // Without a Cancel button Qt would leave Escape and the frame's button without effect.
        box.setEscapeButton(QMessageBox::No);
        break;
    case Buttons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    box.setDefaultButton(QMessageBox::Yes);
}

// An hourglass would tell the user to wait for a box that waits for the user.
auto ShowUsualPointer() {
    bool const isHourglass = QApplication::overrideCursor() != nullptr;
    if (isHourglass) {
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    return qScopeGuard([isHourglass] {
        if (isHourglass) {
            QApplication::restoreOverrideCursor();
        }
    });
}

// Keeps a short text from cutting the title off.
void LeaveRoomForTitle(QMessageBox& box, QString const& title) {
    constexpr int FrameButtons = 160; // and the icon of the frame
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid != nullptr) {
        int const width = box.fontMetrics().horizontalAdvance(title) + FrameButtons;
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

// As plain text: a label that names its box takes access keys from its text, and markup is read as such.
void ShowPrompt(QInputDialog& box, QString const& prompt) {
    static_cast<void>(box.sizeHint()); // makes the label and its relation to the box
    if (auto* label = box.findChild<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        label->setBuddy(nullptr);
    }
    box.setLabelText(prompt);
    if (auto* edit = box.findChild<QLineEdit*>()) {
        edit->setAccessibleName(prompt);
    }
}

bool HasFrame(QWidget const& window) {
    QWindow const* const handle = window.windowHandle();
    return handle != nullptr && !handle->frameMargins().isNull();
}

// The frame of a window that has none yet will be like that of the window under it.
QMargins FrameOf(QWidget const& window) {
    for (QWidget const* widget = &window; widget != nullptr; widget = widget->parentWidget()) {
        if (HasFrame(*widget)) {
            return widget->windowHandle()->frameMargins();
        }
    }
    return {};
}

void Place(QWidget& window) {
    QRect const screen = window.screen()->geometry();
    QMargins const frame = FrameOf(window);
    QSize const size = window.size().grownBy(frame);
    QPoint const corner(screen.left() + (screen.width() - size.width()) / 2,
                        screen.top() + (screen.height() - size.height()) / 2);
    if (HasFrame(window)) {
        // A move would count from the frame that Qt has noted, and a window that was hidden may have none
        // there.
        window.setGeometry({corner + QPoint(frame.left(), frame.top()), window.size()});
    } else {
        window.move(corner);
    }
}

// Waits for the window's frame, which it has when the system asks to paint it for the first time.
class FrameWatch final : public QObject {
public:
    explicit FrameWatch(QWidget& window) : QObject(&window), window_(window) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &window_ && event->type() == QEvent::Show) {
            window_.windowHandle()->installEventFilter(this);
        } else if (event->type() == QEvent::Expose) {
            watched->removeEventFilter(this);
            window_.removeEventFilter(this);
            if (HasFrame(window_)) {
                Place(window_);
            }
            deleteLater();
        }
        return false;
    }

private:
    QWidget& window_;
};

} // namespace

QWidget* TopmostOf(QWidget& window) {
    QWidget* const dialog = QApplication::activeModalWidget();
    return dialog != nullptr ? dialog : &window;
}

Answer ShowMessageBox(QWidget& window, Message const& message) {
    QMessageBox box(TopmostOf(window));
    box.setObjectName(QStringLiteral("MessageBox"));
    SetCaption(box, message.Title);
    box.setTextFormat(Qt::PlainText);
    box.setText(pictures::ToQt(message.Text));
    box.setIcon(IconOf(message.Shown));
    OfferButtons(box, message.Offered);
    LeaveRoomForTitle(box, pictures::ToQt(message.Title));
    auto const pointer = ShowUsualPointer();
    return AnswerOf(box.exec(), message.Offered);
}

std::string AskInputBox(QWidget& window, Question const& question) {
    QInputDialog box(TopmostOf(window));
    box.setObjectName(QStringLiteral("InputBox"));
    box.setInputMode(QInputDialog::TextInput);
    SetCaption(box, question.Title);
    ShowPrompt(box, pictures::ToQt(question.Prompt));
    box.setTextValue(pictures::ToQt(question.Default));
    constexpr QSize UsualSize(360, 0); // names are long
    box.resize(box.sizeHint().expandedTo(UsualSize));
    return box.exec() == QDialog::Accepted ? pictures::FromQt(box.textValue()) : std::string();
}

bool RunGuarded(QWidget& window, bool isShown, std::function<void()> const& routine) {
    Message message;
    FreeWideRegisters(); // whatever was painted before
    try {
        routine();
        return true;
    } catch (text::RunTimeError const& error) {
        message = ErrorMessage(error);
    } catch (std::bad_alloc const&) {
        message = {"Out of memory", std::string(ApplicationTitle), Icon::Critical};
    } catch (std::exception const& error) {
        message = {error.what(), std::string(ApplicationTitle), Icon::Critical};
    }
    if (isShown) {
        ShowMessageBox(window, message);
    }
    return false;
}

bool RunGuarded(QWidget& window, std::function<void()> const& routine) {
    return RunGuarded(window, true, routine);
}

void CloseMenus() {
    while (QWidget* menu = QApplication::activePopupWidget()) {
        menu->close();
    }
}

void SetProgramFont() {
    constexpr int PointSize = 9;
    pictures::UseStandInFonts();
    QApplication::setFont(QFont(QStringLiteral("Arial"), PointSize));
}

void SetCaption(QWidget& window, std::string_view caption) {
    // Once is a place for Qt to mark a change at, twice is the text itself.
    QString const placeholder = QStringLiteral("[*]");
    window.setWindowTitle(pictures::ToQt(caption).replace(placeholder, placeholder + placeholder));
}

void CentreForm(QWidget& window) {
    if (window.layout() != nullptr) {
        window.layout()->activate(); // a size that the layout fixes is not known before
    }
    Place(window);
    if (!HasFrame(window)) {
        new FrameWatch(window);
    }
}

} // namespace quorvex::platform::qt
