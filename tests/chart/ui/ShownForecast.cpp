// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/ui/ShownForecast.h"

#include "support/QuoteTexts.h"

#include <QAction>
#include <QListWidget>
#include <QTest>
#include <stdexcept>

namespace quorvex::tests {

namespace {

void WaitForActivation(QWidget& window) {
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::logic_error("The window does not come up");
    }
}

} // namespace

ShownForecast::ShownForecast(std::string_view quotes, std::string_view fileName)
    : Series(SeriesOf(quotes, "####0.00", fileName)) {
    Cycles->Cycles[1].Weight = 100;
    Cycles->Cycles[1].Period = 20;
    Window = std::make_unique<chart::ui::frmForecast>(nullptr, *Series, *Cycles, Settings, Files, Dialogs,
                                                      std::vector<platform::qt::PictureCommand>());
}

void ShownForecast::Show() const {
    Window->show();
    WaitForActivation(*Window);
}

void ShownForecast::ActivateAgain() const {
    QWidget other;
    other.show();
    WaitForActivation(other);
    WaitForActivation(*Window);
}

QStringList ShownForecast::Lines(char const* list) const {
    auto const* box = Window->findChild<QListWidget*>(QString::fromLatin1(list));
    QStringList lines;
    for (int row = 0; row < box->count(); ++row) {
        lines.append(box->item(row)->text());
    }
    return lines;
}

platform::qt::PictureBox& ShownForecast::Chart() const {
    return *Window->findChild<platform::qt::PictureBox*>(QStringLiteral("Pic1"));
}

void ShownForecast::Choose(char const* menuItem) const {
    Window->findChild<QAction*>(QString::fromLatin1(menuItem))->trigger();
}

} // namespace quorvex::tests
