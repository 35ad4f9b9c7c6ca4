// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The questions and messages that stop the program until the user answers.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace quorvex::platform {

enum class Icon { None, Information, Exclamation, Critical, Question };

enum class Buttons { Ok, YesNo, YesNoCancel };

enum class Answer { Ok, Yes, No, Cancel };

// A message box. Line breaks in the text are LF.
struct Message {
    std::string Text;
    std::string Title;
    Icon Shown = Icon::None;
    Buttons Offered = Buttons::Ok;
};

// An input box with the text that stands in it at first.
struct Question {
    std::string Prompt;
    std::string Title;
    std::string Default;
};

// A dialog that opens a file, as it is at first.
struct FileQuestion {
    std::string Folder; // the user's own folder stands in where there is none of this name
    std::string Name;   // in the name box, may be a pattern
    std::string Filter; // description|pattern, all joined by "|", first one chosen
};

// A dialog that names a file to write, as it is at first.
struct SaveQuestion {
    std::string Title;
    std::string Folder; // as above
    std::string Name;   // in the name box
    std::string Filter; // as above
    std::string Ending; // without the point; of a name that is typed without one
};

enum class PrintRange { All, Selection };

// The host's print dialog for a document. Whoever prints the document makes it; Dialogs decides whether it is
// shown.
class PrintDialog {
public:
    PrintDialog() = default;
    PrintDialog(PrintDialog const&) = delete;
    PrintDialog& operator=(PrintDialog const&) = delete;
    virtual ~PrintDialog() = default;

    // What stands in it at first. Selection is not offered unless it is that.
    [[nodiscard]] virtual PrintRange Offered() const = 0;

    // Shows it. Returns what to print, nothing when it was cancelled.
    [[nodiscard]] virtual std::optional<PrintRange> Show() = 0;
};

// The kinds of file that are chosen from a list.
enum class FileKind { Quotes, Parameters };

class Dialogs {
public:
    Dialogs() = default;
    Dialogs(Dialogs const&) = delete;
    Dialogs& operator=(Dialogs const&) = delete;
    virtual ~Dialogs() = default;

    // Shows the message and returns the button that closed it; closing the box by other means is Cancel where
    // that is offered, else No or Ok.
    virtual Answer Show(Message const& message) = 0;

    // The text that the user entered, as typed; empty when the box was cancelled.
    [[nodiscard]] virtual std::string Ask(Question const& question) = 0;

    // The chooser of this kind of file: the name chosen among those offered, nothing when it was cancelled.
    [[nodiscard]] virtual std::optional<std::string> Choose(FileKind kind,
                                                            std::span<std::string const> names) = 0;

    // The host's own file dialog: the whole path of an existing file, empty when it was cancelled.
    [[nodiscard]] virtual std::string AskForFile(FileQuestion const& question) = 0;

    // The host's own file dialog: the whole path of a file to write, empty when it was cancelled. Whether an
    // existing file may be replaced is asked by whoever writes it.
    [[nodiscard]] virtual std::string AskWhereToSave(SaveQuestion const& question) = 0;

    // The host's own print dialog: what to print of the document, nothing when it was cancelled.
    [[nodiscard]] virtual std::optional<PrintRange> AskWhatToPrint(PrintDialog& dialog) {
        return dialog.Show();
    }
};

} // namespace quorvex::platform
