// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/ShownConverter.h"

#include "support/Messages.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

namespace quorvex::tests {

QStringList ConverterSurroundings::TakeMessages() {
    QStringList messages;
    for (auto const& message : Dialogs.Messages) {
        messages.append(platform::pictures::ToQt(Describe(message)));
    }
    Dialogs.Messages.clear();
    return messages;
}

QString ConverterBox(QString const& icon, QString const& text) {
    return QStringLiteral("Data Conversion Utility|%1|%2").arg(icon, text);
}

void TypeInto(QWidget& window, char const* name, QString const& text) {
    auto* box = window.findChild<QLineEdit*>(QLatin1String(name));
    QVERIFY2(box != nullptr, name);
    QTest::mouseClick(box, Qt::LeftButton);
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
}

QString TextOf(QWidget const& window, char const* name) {
    return window.findChild<QLineEdit*>(QLatin1String(name))->text();
}

QString PreviewOf(QWidget const& window) {
    return window.findChild<QPlainTextEdit*>(QStringLiteral("txtContents"))->toPlainText();
}

void ChooseByKeys(QWidget& window, QString const& letters) {
    QTest::keyClick(&window, static_cast<Qt::Key>(letters.at(0).toUpper().unicode()), Qt::AltModifier);
    for (QChar const letter : letters.mid(1)) {
        QTest::keyClick(QApplication::activePopupWidget(), static_cast<Qt::Key>(letter.toUpper().unicode()));
    }
}

void BrowseTo(ConverterSurroundings& around, QWidget& window, QString const& path) {
    around.Dialogs.Paths.push_back(platform::pictures::FromQt(path));
    ClickButton(window, QStringLiteral("cmdBrowse"));
    QVERIFY(around.Dialogs.Paths.empty());
}

QStringList TabStops(QWidget& window, int count) {
    QStringList names;
    for (int stop = 0; stop < count; ++stop) {
        QWidget* const focus = window.focusWidget();
        names.append(focus->objectName());
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    return names;
}

QStringList ClippedControls(QWidget const& window) {
    QStringList clipped;
    auto const look = [&](auto const& controls) {
        for (auto const* control : controls) {
            QSize needed = control->minimumSizeHint();
            if (control->hasHeightForWidth()) { // a text that wraps
                needed.setHeight(std::max(needed.height(), control->heightForWidth(control->width())));
            }
            bool const isSmall = control->height() < needed.height() || control->width() < needed.width();
            if (control->isVisible() && isSmall) {
                clipped.append(QStringLiteral("%1 %2x%3 of %4x%5")
                                   .arg(control->objectName())
                                   .arg(control->width())
                                   .arg(control->height())
                                   .arg(needed.width())
                                   .arg(needed.height()));
            }
        }
    };
    look(window.findChildren<QLabel*>());
    look(window.findChildren<QAbstractButton*>());
    look(window.findChildren<QComboBox*>());
    return clipped;
}

void ShowWindow(QDialog& window) {
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace quorvex::tests
