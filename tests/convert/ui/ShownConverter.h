// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A converter window with what it needs, shown without waiting, and hands that use it.
#pragma once

#include "platform/disk/DiskFiles.h"
#include "platform/fake/FailingFiles.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/RecordingPrinter.h"
#include "platform/fake/ScriptedDialogs.h"
#include "platform/pictures/QtTexts.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"

#include <QDialog>
#include <QStringList>
#include <QTest>
#include <string>

namespace quorvex::tests {

struct ConverterSurroundings {
    TemporaryFolder Folder;
    platform::disk::DiskFiles Files;
    platform::fake::MemoryFiles Memory;
    platform::fake::FailingFiles Failing{Memory}; // for windows that have these files
    platform::fake::ScriptedDialogs Dialogs;
    platform::fake::RecordingPrintQueue Printing;
    ModalAnswers Answers;
    int HelpCount = 0;

    // What the messages said, as "title|icon|text" where they had just an OK button, and forgets them.
    [[nodiscard]] QStringList TakeMessages();

    // The whole path of a name in the folder.
    [[nodiscard]] QString Path(std::string_view name) const {
        return platform::pictures::ToQt(Folder.File(name));
    }
};

[[nodiscard]] QString ConverterBox(QString const& icon, QString const& text);

// Replaces the text of the box by typing.
void TypeInto(QWidget& window, char const* name, QString const& text);

// What stands in the box.
[[nodiscard]] QString TextOf(QWidget const& window, char const* name);
[[nodiscard]] QString PreviewOf(QWidget const& window);

// Chooses the menu item by its keys, such as "fp" for File > Print.
void ChooseByKeys(QWidget& window, QString const& letters);

// Clicks Browse and chooses this in the file dialog. The empty text cancels it.
void BrowseTo(ConverterSurroundings& around, QWidget& window, QString const& path);

// The names of the controls that Tab visits, starting with the one that has the focus.
[[nodiscard]] QStringList TabStops(QWidget& window, int count);

// The visible labels, buttons and lists that are smaller than their texts need, with both sizes.
[[nodiscard]] QStringList ClippedControls(QWidget const& window);

void ShowWindow(QDialog& window);

// Shows a window over the files that fail, and lets each of their calls do so while it converts the line, of
// one day, and while it browses: it tells so, whole files stay, and the next time it does what it should.
void LetEveryCallFail(ConverterSurroundings& around, QDialog& window, std::string const& line);

} // namespace quorvex::tests
