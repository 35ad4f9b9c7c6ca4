// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ConsoleDialogs.h"

namespace quorvex::cli {

platform::Answer ConsoleDialogs::Show(platform::Message const& message) {
    hasShown_ = true;
    sink_(fileName_, message.Text);
    return message.Offered == platform::Buttons::Ok ? platform::Answer::Ok : platform::Answer::Cancel;
}

std::string ConsoleDialogs::Ask(platform::Question const&) {
    return {};
}

std::optional<std::string> ConsoleDialogs::Choose(platform::FileKind, std::span<std::string const>) {
    return std::nullopt;
}

std::string ConsoleDialogs::AskForFile(platform::FileQuestion const&) {
    return {};
}

std::string ConsoleDialogs::AskWhereToSave(platform::SaveQuestion const&) {
    return {};
}

} // namespace quorvex::cli
