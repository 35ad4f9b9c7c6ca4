// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/StandardStreams.h"
#include "platform/Dialogs.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace quorvex::cli {

// Takes a message about the file of this name.
using MessageSink = std::function<void(std::string_view name, std::string_view message)>;

// Puts the program's messages about one file on standard error, or wherever else they are to go, and has no
// one to answer questions.
class ConsoleDialogs final : public platform::Dialogs {
public:
    explicit ConsoleDialogs(std::string fileName, MessageSink sink = Complain)
        : fileName_(std::move(fileName)),
          sink_(std::move(sink)) {}

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
    MessageSink sink_;
    bool hasShown_ = false;
};

} // namespace quorvex::cli
