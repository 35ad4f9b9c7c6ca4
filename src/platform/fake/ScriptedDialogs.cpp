// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/ScriptedDialogs.h"

#include <stdexcept>
#include <utility>

namespace quorvex::platform::fake {

namespace {

template <class Value>
Value TakeFirst(std::deque<Value>& script, char const* question) {
    if (script.empty()) {
        throw std::logic_error(std::string("The script has no answer to: ") + question);
    }
    Value answer = std::move(script.front());
    script.pop_front();
    return answer;
}

} // namespace

Answer ScriptedDialogs::Show(Message const& message) {
    Messages.push_back(message);
    return message.Offered == Buttons::Ok ? Answer::Ok : TakeFirst(Answers, message.Text.c_str());
}

std::string ScriptedDialogs::Ask(Question const& question) {
    Questions.push_back(question);
    return TakeFirst(Texts, question.Prompt.c_str());
}

std::optional<std::string> ScriptedDialogs::Choose(FileKind kind, std::span<std::string const> names) {
    Choosers.push_back(kind);
    OfferedFiles.emplace_back(names.begin(), names.end());
    return TakeFirst(Choices, "which file");
}

std::string ScriptedDialogs::AskForFile(FileQuestion const& question) {
    FileQuestions.push_back(question);
    return TakeFirst(Paths, "which file to open");
}

std::string ScriptedDialogs::AskWhereToSave(SaveQuestion const& question) {
    SaveQuestions.push_back(question);
    return TakeFirst(Paths, "where to save");
}

std::optional<PrintRange> ScriptedDialogs::AskWhatToPrint(PrintDialog& dialog) {
    OfferedRanges.push_back(dialog.Offered());
    return TakeFirst(Ranges, "what to print");
}

} // namespace quorvex::platform::fake
