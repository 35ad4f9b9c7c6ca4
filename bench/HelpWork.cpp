// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "HelpWork.h"

#include "ShownDialog.h"
#include "app/ui/basResources.h"
#include "auxiliary/ui/frmHelp.h"

#include <QDialog>
#include <QDir>
#include <QTextEdit>
#include <QVBoxLayout>
#include <stdexcept>

namespace quorvex::bench {

HelpWork::HelpWork() {
    app::ui::FillProgramFolder(folder_, files_);
    for (QString const& name : QDir(QString::fromStdString(folder_)).entryList({QStringLiteral("*.rtf")})) {
        TakeDocument(name.toStdString());
    }
    if (name_.empty()) {
        throw std::runtime_error("There is no help document.");
    }
}

// Keeps it when it is the longest so far.
void HelpWork::TakeDocument(std::string const& name) {
    auxiliary::ui::frmHelp help(nullptr, folder_, settings_, files_, dialogs_);
    CloseWhenShown(help, [&] {
        QTextDocument const& shown = *help.findChild<QTextEdit*>()->document();
        if (shown.characterCount() > length_) {
            name_ = name;
            length_ = shown.characterCount();
            html_ = shown.toHtml();
            size_ = help.size();
        }
    });
    help.RunModal(name);
}

void HelpWork::ShowHelp() {
    auxiliary::ui::frmHelp help(nullptr, folder_, settings_, files_, dialogs_);
    CloseWhenShown(help);
    help.RunModal(name_);
}

void HelpWork::ShowHtml() const {
    QDialog dialog;
    auto* text = new QTextEdit;
    (new QVBoxLayout(&dialog))->addWidget(text);
    text->setReadOnly(true);
    text->setHtml(html_);
    dialog.resize(size_);
    CloseWhenShown(dialog);
    dialog.exec();
}

} // namespace quorvex::bench
