// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

namespace quorvex::bench {

// Shows nothing and keeps nothing.
class SilentDialogs final : public platform::Dialogs {
public:
    platform::Answer Show(platform::Message const&) override { return platform::Answer::Ok; }

    [[nodiscard]] std::string Ask(platform::Question const&) override { return {}; }

    [[nodiscard]] std::optional<std::string> Choose(platform::FileKind,
                                                    std::span<std::string const>) override {
        return std::nullopt;
    }

    [[nodiscard]] std::string AskForFile(platform::FileQuestion const&) override { return {}; }

    [[nodiscard]] std::string AskWhereToSave(platform::SaveQuestion const&) override { return {}; }
};

} // namespace quorvex::bench
