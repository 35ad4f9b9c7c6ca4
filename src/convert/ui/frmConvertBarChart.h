// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "convert/basConvertBarChart.h"
#include "convert/ui/ConvertWindow.h"

#include <array>
#include <functional>

class QRadioButton;

namespace quorvex::convert::ui {

// Converts files of Barchart.
class frmConvertBarChart final : public ConvertWindow {
    Q_OBJECT

public:
    // All must outlive the window; showHelp opens the document on custom files.
    frmConvertBarChart(QWidget* parent, platform::Files& files, platform::Dialogs& dialogs,
                       platform::PrintQueue& printing, std::function<void()> showHelp);

protected:
    [[nodiscard]] std::unique_ptr<SourceLayout> ReadLayout() override;
    void ShowHelp() override;

private:
    void AddFormats();

    std::function<void()> showHelp_;
    std::array<QRadioButton*, BarchartFormatCount> formats_{};
};

} // namespace quorvex::convert::ui
