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
#include "richtext/basRichText.h"
#include "text/RunTimeError.h"
#include "text/basFolders.h"

#include <QApplication>
#include <QMenuBar>
#include <QPointer>
#include <QResizeEvent>
#include <QScreen>
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
      menuBar_(new QMenuBar(this)),
      richTextBox1_(new QTextEdit(this)) {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(QStringLiteral("Quorvex Help"));
    setSizeGripEnabled(true);
    AddMenu();
    richTextBox1_->setObjectName(QStringLiteral("RichTextBox1"));
    richTextBox1_->setAccessibleName(QStringLiteral("Help document"));
    richTextBox1_->setReadOnly(true);
    richTextBox1_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    resize(InitialSize.boundedTo(screen()->availableSize()));
}

void frmHelp::AddMenu() {
    menuBar_->setNativeMenuBar(false);
    QMenu* menu = menuBar_->addMenu(QStringLiteral("&File"));
    menu->setObjectName(QStringLiteral("mnuFile"));
    QAction* print = menu->addAction(QStringLiteral("&Print"));
    print->setObjectName(QStringLiteral("mnuFilePrint"));
    connect(print, &QAction::triggered, this, [this] { Print(); });
    menu->addSeparator();
    QAction* exit = menu->addAction(QStringLiteral("E&xit"));
    exit->setObjectName(QStringLiteral("mnuFileExit"));
    exit->setMenuRole(QAction::NoRole);
    connect(exit, &QAction::triggered, this, [this] {
        platform::qt::CloseMenus();
        accept();
    });
}

void frmHelp::RunModal(std::string const& helpFileName) {
    helpFileName_ = helpFileName;
    platform::qt::CentreForm(*this);
    platform::qt::RunGuarded(*this, [this] { ShowDocument(); });
    richTextBox1_->setFocus();
    exec();
}

bool frmHelp::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        platform::qt::RunGuarded(*this, [this] { ShowDocument(); });
    }
    return QDialog::event(event);
}

void frmHelp::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (isVisible()) {
        platform::qt::RunGuarded(*this, [this] { ShowDocument(); });
    }
}

void frmHelp::ShowDocument() {
    menuBar_->setGeometry(0, 0, width(), menuBar_->sizeHint().height());
    QSize const client(width(), height() - menuBar_->height());
    richTextBox1_->setGeometry(TextPlace(client).translated(0, menuBar_->height()));
    auto document = std::make_unique<QTextDocument>();
    // A document that cannot be read leaves the box empty.
    static_cast<void>(text::Trap([&] {
        std::string const path = text::EndWithSeparator(programFolder_) + helpFileName_;
        document = MakeTextDocument(richtext::ReadRichText(platform::ReadWholeFile(files_, path)));
    }));
    Show(std::move(document));
}

// The box starts at the top of a new document, and has only this one.
void frmHelp::Show(std::unique_ptr<QTextDocument> document) {
    constexpr double Margin = 12;
    QPointer<QTextDocument> const former = richTextBox1_->document();
    document->setDocumentMargin(Margin);
    document->setParent(richTextBox1_);
    richTextBox1_->setDocument(document.release());
    delete former; // unless the box did
}

void frmHelp::Print() {
    platform::qt::CloseMenus();
    // Keys and mouse do not come through while a dialog is open; assistive technology does.
    if (QApplication::activeModalWidget() != this) {
        return;
    }
    std::string const documentName = helpFileName_.substr(0, helpFileName_.rfind('.'));
    platform::qt::RunGuarded(
        *this, [&] { platform::qt::PrintText(*richTextBox1_, documentName, settings_.DataPath, dialogs_); });
}

} // namespace quorvex::auxiliary::ui
