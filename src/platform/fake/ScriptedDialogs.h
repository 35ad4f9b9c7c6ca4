// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <deque>
#include <string>
#include <vector>

namespace quorvex::platform::fake {

// Dialogs for tests: keeps what was shown and answers from a script. A question that the script does not
// foresee is a mistake of the test and throws std::logic_error.
class ScriptedDialogs final : public Dialogs {
public:
    Answer Show(Message const& message) override;
    [[nodiscard]] std::string Ask(Question const& question) override;
    [[nodiscard]] std::optional<std::string> Choose(FileKind kind,
                                                    std::span<std::string const> names) override;
    [[nodiscard]] std::string AskForFile(FileQuestion const& question) override;
    [[nodiscard]] std::string AskWhereToSave(SaveQuestion const& question) override;

    [[nodiscard]] std::optional<PrintRange> AskWhatToPrint(PrintDialog& dialog) override;

    // What was shown, in order.
    std::vector<Message> Messages;
    std::vector<Question> Questions;
    std::vector<FileKind> Choosers;
    std::vector<std::vector<std::string>> OfferedFiles;
    std::vector<FileQuestion> FileQuestions;
    std::vector<SaveQuestion> SaveQuestions;
    std::vector<PrintRange> OfferedRanges;

    // What to answer, first one first. A box with only an OK button needs no answer.
    std::deque<Answer> Answers;
    std::deque<std::string> Texts;
    std::deque<std::optional<std::string>> Choices;
    std::deque<std::string> Paths;                // empty where a file dialog is cancelled
    std::deque<std::optional<PrintRange>> Ranges; // nothing where the print dialog is cancelled
};

} // namespace quorvex::platform::fake
