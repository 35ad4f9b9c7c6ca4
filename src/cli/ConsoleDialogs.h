// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <string>
#include <utility>

namespace quorvex::cli {

// Puts the program's messages about one file on standard error and has no one to answer questions.
class ConsoleDialogs final : public platform::Dialogs {
public:
    explicit ConsoleDialogs(std::string fileName) : fileName_(std::move(fileName)) {}

    platform::Answer Show(platform::Message const& message) override;
    [[nodiscard]] std::string Ask(platform::Question const& question) override;
    [[nodiscard]] std::optional<std::string> Choose(platform::FileKind kind,
                                                    std::span<std::string const> names) override;
    [[nodiscard]] std::string AskForFile(platform::FileQuestion const& question) override;
    [[nodiscard]] std::string AskWhereToSave(platform::SaveQuestion const& question) override;

    // Whether the program had to say something.
    [[nodiscard]] bool HasShown() const { return hasShown_; }

private:
    std::string fileName_;
    bool hasShown_ = false;
};

} // namespace quorvex::cli
