// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "convert/ConverterTexts.h"
#include "convert/basConvertSubs.h"
#include "convert/basSourcePreview.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Printer.h"

#include <QDialog>
#include <memory>

class QBoxLayout;

namespace Ui {
class ConvertWindow;
}

namespace quorvex::convert::ui {

// What the converter windows have in common: names of source and destination, a preview of the source, the
// menu. A window keeps its texts when it is closed.
class ConvertWindow : public QDialog, private SourceBoxes {
    Q_OBJECT

public:
    // All must outlive the window.
    ConvertWindow(QWidget* parent, ConverterTexts const& texts, platform::Files& files,
                  platform::Dialogs& dialogs, platform::PrintQueue& printing);
    ~ConvertWindow() override;

    // Shows the window and waits until it is closed.
    void RunModal();

protected:
    // Where a window puts its own frames, above the source name.
    [[nodiscard]] QBoxLayout& LayoutFrames();

    // Makes the frames tab stops in front of the source name, in the order of their controls.
    void PutTabStopsFirst(QList<QWidget*> const& controls);

    // Gives the window this width, or the least that it can have, and the height that its texts need then.
    void TakeWidth(int width);

    [[nodiscard]] platform::Dialogs& Dialogs() { return dialogs_; }

    // The layout that the controls of the window describe, nothing after a message told why there is none.
    [[nodiscard]] virtual std::unique_ptr<SourceLayout> ReadLayout() = 0;

    // mnuHelp.
    virtual void ShowHelp() = 0;

private:
    void AddMenu();
    void ShowSourceName(std::string const& name) override;
    void ShowSourceContents(std::string const& contents) override;
    void Convert();
    void Print();

    ConverterTexts const& texts_;
    platform::Files& files_;
    platform::Dialogs& dialogs_;
    platform::PrintQueue& printing_;
    std::unique_ptr<Ui::ConvertWindow> ui_;
};

// The font of texts whose columns stand under each other.
[[nodiscard]] QFont FixedPitchFont();

} // namespace quorvex::convert::ui
