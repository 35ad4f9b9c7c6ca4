// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Program.h"
#include "platform/Files.h"
#include "random/ExpectedEditor.h"
#include "random/Journal.h"

#include <QLineEdit>
#include <QStringList>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

namespace quorvex::tests {

// Knows what the windows must show and the files must hold, whatever was done: as the display-free parts
// compute it anew from the quotes, the cycles and the settings, and as files read without the program's
// readers tell it. Aborts the run at the first difference.
class Expectations {
public:
    // All must outlive the object.
    Expectations(Journal& journal, app::Program const& program, QWidget const& main,
                 platform::Files const& files);

    // Of whatever is open now. To be called between two actions.
    void Check();

    // Behind the text having been typed over what stood there.
    void CheckTyped(QLineEdit const& edit, QString const& text);

    // How often the charts were drawn so far.
    [[nodiscard]] int RedrawCount() const;

    // The texts of the grid and the descriptions of the charts that Refresh may lead to: events that wait may
    // have the grid read more than once, which scales its weights anew each time.
    [[nodiscard]] std::vector<QStringList> PossibleAfterRefresh() const;

    // Behind a redraw by Refresh, undisturbed.
    void CheckRefreshed(std::vector<QStringList> const& possible);

    ExpectedEditor& Editor() { return editor_; }

private:
    void CheckRest();
    [[nodiscard]] bool IsDrawn() const;
    void CheckCharts();
    void CheckLoaded();
    void CheckBox(QWidget const& box);
    void CheckWindow(QWidget const& window);
    void CheckProperties(QWidget const& window);
    void CheckForecast(QWidget const& window);

    Journal& journal_;
    app::Program const& program_;
    QWidget const& main_;
    platform::Files const& files_;
    ExpectedEditor editor_;
    int restCount_ = 0;
    int redrawsAtFault_ = -1; // when the last message of a fault was open
    std::unique_ptr<quotes::QuoteSeries> seen_ = std::make_unique<quotes::QuoteSeries>(); // at the last rest
};

} // namespace quorvex::tests
