// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/ui/frmHelp.h"

#include "auxiliary/ui/basRichTextView.h"
#include "platform/basFiles.h"
#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/NominalFrame.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/TextPrinting.h"
#include "platform/qt/WindowMenu.h"
#include "richtext/basRichText.h"
#include "text/RunTimeError.h"
#include "text/basFolders.h"

#include <QPointer>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <memory>
#include <utility>

namespace quorvex::auxiliary::ui {

namespace {

using platform::pictures::TwipsPerPixel;

constexpr QSize InitialSize(760, 640);

// Where the text stands in a window whose client area below the menu has this size: in pixels.
QRect TextPlace(QSize client) {
    constexpr double Left = 50;
    constexpr double Margins = 200;
    constexpr double HeightShare = 0.9;
    double const width = platform::qt::OuterWidth(client) - Margins;
    double const height = platform::qt::OuterHeight(client) * HeightShare;
    return {static_cast<int>(Left / TwipsPerPixel), 0, std::max(0, static_cast<int>(width / TwipsPerPixel)),
            std::clamp(static_cast<int>(height / TwipsPerPixel), 0, client.height())};
}

} // namespace

frmHelp::frmHelp(QWidget* parent, std::string const& programFolder, settings::Settings const& settings,
                 platform::Files const& files, platform::Dialogs& dialogs)
    : QDialog(parent),
      programFolder_(programFolder),
      settings_(settings),
      files_(files),
      dialogs_(dialogs),
      menuBar_(MakeMenu()),
      richTextBox1_(new QTextEdit(this)) {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(QStringLiteral("Quorvex Help"));
    setSizeGripEnabled(true);
    richTextBox1_->setObjectName(QStringLiteral("RichTextBox1"));
    richTextBox1_->setAccessibleName(QStringLiteral("Help document"));
    richTextBox1_->setReadOnly(true);
    richTextBox1_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    resize(InitialSize.boundedTo(screen()->availableSize()));
}

QMenuBar* frmHelp::MakeMenu() {
    platform::qt::WindowMenu menu(*this);
    menu.Menu("mnuFile", "&File")
        .Item("mnuFilePrint", "&Print", [this] { Print(); })
        .Separator()
        .Item("mnuFileExit", "E&xit", [this] { accept(); });
    return &menu.Bar();
}

void frmHelp::RunModal(std::string const& helpFileName) {
    helpFileName_ = helpFileName;
    platform::qt::CentreForm(*this);
    platform::qt::RunGuarded(*this, [this] { LoadDocument(); });
    richTextBox1_->setFocus();
    exec();
}

bool frmHelp::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        platform::qt::RunGuarded(*this, [this] { LoadDocument(); });
    }
    return QDialog::event(event);
}

void frmHelp::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (isVisible()) {
        platform::qt::RunGuarded(*this, [this] { LoadDocument(); });
    }
}

void frmHelp::LayOut() {
    menuBar_->setGeometry(0, 0, width(), menuBar_->sizeHint().height());
    QSize const client(width(), height() - menuBar_->height());
    richTextBox1_->setGeometry(TextPlace(client).translated(0, menuBar_->height()));
}

// Opening a window activates it and may change its size, so that the file is read more than once: only what
// is new in it is made into a document.
void frmHelp::LoadDocument() {
    LayOut();
    std::optional<std::string> content = ReadDocument();
    if (content != content_) {
        content_ = std::move(content);
        richtext::RichTextDocument document;
        // What cannot be understood leaves the box empty.
        static_cast<void>(text::Trap([&] {
            if (content_) {
                document = richtext::ReadRichText(*content_);
            }
        }));
        Show(MakeTextDocument(document));
    }
    GoToTop();
}

// Nothing when the file cannot be read.
std::optional<std::string> frmHelp::ReadDocument() const {
    std::optional<std::string> content;
    static_cast<void>(text::Trap([&] {
        content = platform::ReadWholeFile(files_, text::EndWithSeparator(programFolder_) + helpFileName_);
    }));
    return content;
}

// The box has only this document.
void frmHelp::Show(std::unique_ptr<QTextDocument> document) {
    QPointer<QTextDocument> const former = richTextBox1_->document();
    document->setParent(richTextBox1_);
    richTextBox1_->setDocument(document.release());
    delete former; // unless the box did
}

// The cursor alone would leave the margin above the first line out of sight.
void frmHelp::GoToTop() {
    richTextBox1_->setTextCursor(QTextCursor(richTextBox1_->document()));
    richTextBox1_->verticalScrollBar()->setValue(0);
    richTextBox1_->horizontalScrollBar()->setValue(0);
}

void frmHelp::Print() {
    std::string const documentName = helpFileName_.substr(0, helpFileName_.rfind('.'));
    platform::qt::PrintText(*richTextBox1_, documentName, settings_.DataPath, dialogs_);
}

} // namespace quorvex::auxiliary::ui
