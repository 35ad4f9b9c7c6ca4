// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/ShownConverter.h"

#include "convert/Conversion.h"
#include "convert/ConversionEndings.h"
#include "support/EveryFault.h"
#include "support/Messages.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>
#include <functional>
#include <limits>

namespace quorvex::tests {

namespace {

using convert::UsualNames;
using platform::pictures::FromQt;

// What the expectations in it say that fail, for the test around them to fail with.
QString FailuresOf(std::function<void()> const& expectations) {
    testing::TestPartResultArray results;
    {
        testing::ScopedFakeTestPartResultReporter const reporter(&results);
        expectations();
    }
    QString failures;
    for (int index = 0; index < results.size(); ++index) {
        failures += QString::fromUtf8(results.GetTestPartResult(index).message()) + u'\n';
    }
    return failures;
}

// The button does its work anew in the window, which keeps its texts.
Trial TrialOf(ConverterSurroundings& around, QWidget& window, QString const& button) {
    around.Memory.Contents = {{UsualNames.Destination, "older"},
                              {UsualNames.Source, around.Memory.Contents[UsualNames.Source]}};
    around.Failing.Recover();
    around.Failing.PieceSize = std::numeric_limits<std::size_t>::max();
    TypeInto(window, "txtSrceFileName", platform::pictures::ToQt(UsualNames.Source));
    return {.Disk = around.Memory,
            .Files = around.Failing,
            .Run =
                [&around, &window, button] {
                    around.Dialogs.Messages.clear();
                    around.Dialogs.Paths = {UsualNames.Source};
                    ClickButton(window, button);
                },
            .Memory =
                [&window] {
                    return FromQt(TextOf(window, "txtSrceFileName") + u'\n' + PreviewOf(window)) +
                           (window.isVisible() ? "shown" : "gone");
                },
            .Told = [&around] { return convert::BoxesOf(around.Dialogs); }};
}

} // namespace

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

void LetEveryCallFail(ConverterSurroundings& around, QDialog& window, std::string const& line) {
    ShowWindow(window);
    TypeInto(window, "txtDestFileName", platform::pictures::ToQt(UsualNames.Destination));
    around.Memory.Contents[UsualNames.Source] = line;
    auto const converting = [&] {
        Trial trial = TrialOf(around, window, QStringLiteral("cmdConvert"));
        trial.Ends = convert::EndOfConversion;
        return trial;
    };
    auto const browsing = [&] {
        Trial trial = TrialOf(around, window, QStringLiteral("cmdBrowse"));
        trial.Ends = [&](MetFault const& met) {
            return convert::EndOfBrowse(met, FromQt(TextOf(window, "txtSrceFileName")));
        };
        trial.MayHold = [](std::string const&, std::string const&, std::string const& now) {
            return now == "\nshown" || now == UsualNames.Source + "\nshown";
        };
        return trial;
    };
    QString const failures = FailuresOf([&] {
        ExpectSafe("Convert", converting,
                   {"OpenForInput", "Keep", "OpenForOutput", "Read", "Write", "Close"});
        EXPECT_EQ(around.Memory.Contents[UsualNames.Destination],
                  "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000\r\n");
        ExpectSafe("Browse", browsing, {"Length", "OpenForInput", "Read"});
    });
    QVERIFY2(failures.isEmpty(), qPrintable(failures));
    QCOMPARE(PreviewOf(window), platform::pictures::ToQt(line).remove(u'\r'));
}

} // namespace quorvex::tests
