// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/ConvertWindow.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/WindowMenu.h"
#include "ui_ConvertWindow.h"

#include <algorithm>

namespace quorvex::convert::ui {

using platform::pictures::FromQt;
using platform::pictures::ToQt;
using platform::qt::RunGuarded;

ConvertWindow::ConvertWindow(QWidget* parent, ConverterTexts const& texts, platform::Files& files,
                             platform::Dialogs& dialogs, platform::PrintQueue& printing)
    : QDialog(parent),
      texts_(texts),
      files_(files),
      dialogs_(dialogs),
      printing_(printing),
      ui_(std::make_unique<Ui::ConvertWindow>()) {
    ui_->setupUi(this);
    setObjectName(ToQt(texts.WindowName));
    setWindowTitle(ToQt(texts.Caption));
    ui_->lblTop->setText(ToQt(texts.Top));
    ui_->Frame2->setTitle(ToQt(texts.SourceCaption));
    ui_->txtSrceFileName->setAccessibleName(ToQt(texts.SourceCaption));
    ui_->Frame3->setTitle(ToQt(DestinationCaption));
    ui_->txtDestFileName->setAccessibleName(ToQt(DestinationCaption));
    ui_->txtDestFileName->setText(ToQt(InitialDestination));
    ui_->txtContents->setFont(FixedPitchFont());
    AddMenu();
    connect(ui_->cmdBrowse, &QPushButton::clicked, this,
            [this] { RunGuarded(*this, [this] { BrowseForSource(texts_, files_, dialogs_, *this); }); });
    connect(ui_->cmdConvert, &QPushButton::clicked, this,
            [this] { RunGuarded(*this, [this] { Convert(); }); });
}

ConvertWindow::~ConvertWindow() = default;

void ConvertWindow::AddMenu() {
    platform::qt::WindowMenu menu(*this);
    menu.Menu("mnuFile", "&File")
        .Item("mnuFilePrint", "&Print", [this] { Print(); })
        .Item("mnuFileExit", "E&xit", [this] { close(); })
        .OnBar()
        .Item("mnuHelp", "&Help", [this] { ShowHelp(); });
    layout()->setMenuBar(&menu.Bar());
}

QBoxLayout& ConvertWindow::LayoutFrames() {
    return *ui_->layoutFrames;
}

void ConvertWindow::PutTabStopsFirst(QList<QWidget*> const& controls) {
    QWidget* before = nullptr;
    for (QWidget* control :
         controls + QList<QWidget*>{ui_->txtSrceFileName, ui_->cmdBrowse, ui_->txtDestFileName,
                                    ui_->cmdConvert, ui_->txtContents}) {
        if (before != nullptr) {
            setTabOrder(before, control);
        }
        before = control;
    }
}

void ConvertWindow::TakeWidth(int width) {
    layout()->activate();
    int const possible = std::max(width, layout()->totalMinimumSize().width());
    // The size hint alone would squeeze the frames: it does not know how the top label wraps.
    resize(possible, layout()->totalHeightForWidth(possible));
}

void ConvertWindow::RunModal() {
    platform::qt::CentreForm(*this);
    ui_->txtSrceFileName->setFocus();
    exec();
}

void ConvertWindow::ShowSourceName(std::string const& name) {
    ui_->txtSrceFileName->setText(ToQt(name));
}

void ConvertWindow::ShowSourceContents(std::string const& contents) {
    ui_->txtContents->setPlainText(ToQt(contents));
}

void ConvertWindow::Convert() {
    FileNames const names = {FromQt(ui_->txtSrceFileName->text()), FromQt(ui_->txtDestFileName->text())};
    if (!ValidateFileNames(names, dialogs_)) {
        return;
    }
    if (auto const layout = ReadLayout()) {
        ConvertDataFile(names, *layout, files_, dialogs_);
    }
}

void ConvertWindow::Print() {
    PrintSourceFile(FromQt(ui_->txtSrceFileName->text()), FromQt(ui_->txtContents->toPlainText()), printing_,
                    dialogs_);
}

QFont FixedPitchFont() {
    constexpr int PointSize = 9;
    QFont font(QStringLiteral("Courier New"), PointSize);
    font.setStyleHint(QFont::Monospace);
    return font;
}

} // namespace quorvex::convert::ui
