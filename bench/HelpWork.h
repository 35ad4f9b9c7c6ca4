// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SilentDialogs.h"
#include "TemporaryQuoteFile.h"
#include "platform/disk/DiskFiles.h"
#include "settings/Settings.h"

#include <QSize>
#include <QString>
#include <string>

namespace quorvex::bench {

// The longest of the help documents, shown by the window for help and as HTML by the least that Qt needs.
class HelpWork {
public:
    // REQUIRES: a QApplication with the program's resources. Throws when there is no document.
    HelpWork();

    // Makes a window for help, shows the document in it, paints it, and closes it.
    void ShowHelp();

    // The same with a dialog as large that has nothing but a text edit, which reads the same text as HTML.
    void ShowHtml() const;

private:
    void TakeDocument(std::string const& name);

    TemporaryQuoteFile file_{""}; // for its folder
    std::string folder_ = file_.Folder();
    platform::disk::DiskFiles files_;
    settings::Settings settings_;
    SilentDialogs dialogs_;
    std::string name_;
    QString html_;
    QSize size_;
    int length_ = 0; // of the document, in characters
};

} // namespace quorvex::bench
